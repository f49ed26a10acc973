#pragma once

#include <ostream>
#include <string>

#include "graph_fixture.h"

namespace tarnmill {

/// Which commands of a zoom menu are checked, as letters in the menu's order: "iodf" for all of them.
using Marks = std::string;

/// The two zoom menus, and the words in which their tests are told.
class ZoomTest : public GraphTest {
 protected:
  [[nodiscard]] Marks edit_marks() {
    return marks(menus().mnuzoomin, menus().mnuzoomout, menus().mnudef, menus().mnufinzoom);
  }
  [[nodiscard]] Marks popup_marks() {
    return marks(menus().mnuzin2, menus().mnuzout2, menus().mnudef2, menus().mnifinezoom2);
  }

  [[nodiscard]] double pixels_per_unit() { return form().plane().pixels_per_unit; }

  /// Answers the question for a factor.
  void fine_zoom(const Answer& answer) {
    program.desk.answer(answer);
    EXPECT_TRUE(program.bench.enter([&] { form().ask_for_zoom(); }));
  }

  /// What clearing and the grid at a pitch of 20, 40 or 10 pixels draw.
  static void expect_clean_plane(const std::vector<PictureBox::Operation>& drawn, double pitch) {
    const auto lines_each_way = static_cast<std::size_t>(2 * (200 / pitch + 1));
    ASSERT_EQ(drawn.size(), 1 + 2 * lines_each_way + 2);
    EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
    const auto& axis = std::get<LineDrawn>(drawn.back());
    EXPECT_EQ(axis.x2, 400);
    EXPECT_EQ(axis.y2, 200);
  }

 private:
  static Marks marks(const MenuItem& in, const MenuItem& out, const MenuItem& standard,
                     const MenuItem& fine) {
    Marks found;
    if (in.Checked) found += 'i';
    if (out.Checked) found += 'o';
    if (standard.Checked) found += 'd';
    if (fine.Checked) found += 'f';
    return found;
  }
};

}  // namespace tarnmill
