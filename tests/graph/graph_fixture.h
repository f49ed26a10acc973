#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "forms/files.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "support/message_expectation.h"
#include "support/test_program.h"

namespace tarnmill {

/// The program with graph mode loaded, and the words in which its tests are told.
class GraphTest : public testing::Test {
 protected:
  using LineDrawn = PictureBox::LineDrawn;

  frmFunc& form() { return program.window<frmFunc>(); }
  [[nodiscard]] frmZoom& menus() { return program.window<frmZoom>(); }

  /// Presses keypad keys by their captions: "K^(1/3)".
  void key_in(TextView keys) {
    for (const char16_t key : keys) press_key_of(key);
  }

  /// A key of the keyboard, in the y field; gives the code as the handler left it.
  int press_code(int code) {
    form().txtY.KeyDown.raise(code, 0);
    return code;
  }

  /// Sets both fields without keys.
  void set_fields(const Text& y, const Text& x = u"K") {
    form().txtY.Text = y;
    form().txtX.Text = x;
  }

  /// What an action draws on the surface.
  std::vector<PictureBox::Operation> operations(const std::function<void()>& action) {
    form().pDraw.Record(true);
    action();
    form().pDraw.Record(false);
    return form().pDraw.Ops();
  }

  /// The lines of it.
  std::vector<LineDrawn> lines(const std::function<void()>& action) {
    std::vector<LineDrawn> drawn;
    for (const auto& each : operations(action)) {
      if (const auto* line = std::get_if<LineDrawn>(&each)) drawn.push_back(*line);
    }
    return drawn;
  }

  /// The lines of a plot.
  std::vector<LineDrawn> plot(const Text& y, const Text& x = u"K") {
    set_fields(y, x);
    return lines([&] { form().plot(); });
  }

  [[nodiscard]] Text history() { return read_text_file(program.folder() / "GraphLog.txt"); }

  /// The one dialog shown; fails when there are none or more.
  [[nodiscard]] DialogShown only_dialog() {
    EXPECT_EQ(program.desk.dialogs().size(), 1U);
    return program.desk.dialogs().empty() ? DialogShown{} : program.desk.dialogs().front();
  }

  void expect_message(const Text& text, MessageIcon icon = MessageIcon::none, const Text& title = u"Tarnmill",
                      MessageButtons buttons = MessageButtons::ok, int default_button = 1) {
    expect_one_message(program.desk, text, icon, title, buttons, default_button);
  }

  /// Does something once, at the first turn that a plot gives the event loop.
  void at_first_yield(const std::function<void()>& action) {
    // The desk runs a copy at each turn, so what is left to do stands outside.
    pending_ = action;
    program.desk.on_yield = [this] {
      const auto due = std::exchange(pending_, {});
      if (due) program.bench.enter(due);
    };
  }

  TestProgram program;

 private:
  std::function<void()> pending_;

  void press_key_of(char16_t key) {
    if (key == u'^') return form().cmdStepen.press();
    for (const auto& each : form().cmdSymbol) {
      if (each->Caption.get() == Text{key}) return each->press();
    }
    FAIL() << "no key " << to_utf8(Text{key});
  }
};

}  // namespace tarnmill
