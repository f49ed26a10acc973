#include "zoom_fixture.h"

namespace tarnmill {
namespace {

struct PresetCommand {
  const char* item;
  double pixels_per_unit;
  const char16_t* text;
  const char* marks;
};

std::ostream& operator<<(std::ostream& out, const PresetCommand& each) { return out << each.item; }

class PresetTest : public ZoomTest, public testing::WithParamInterface<PresetCommand> {
 protected:
  void choose() { menus().find_control(GetParam().item)->press(); }
};

TEST_P(PresetTest, ZoomsAndShowsInBothMenus) {
  choose();
  EXPECT_EQ(pixels_per_unit(), GetParam().pixels_per_unit);
  EXPECT_EQ(form().lblzm.Caption.get(), GetParam().text);
  EXPECT_EQ(edit_marks(), GetParam().marks);
  EXPECT_EQ(popup_marks(), GetParam().marks);
}

TEST_P(PresetTest, WipesThePlaneAndHidesTheTangent) {
  form().Line1.Visible = true;
  expect_clean_plane(operations([&] { choose(); }), GetParam().pixels_per_unit);
  EXPECT_FALSE(form().Line1.Visible);
}

TEST_P(PresetTest, TwiceIsAsOnceAndWipesTheCurvesBothTimes) {
  choose();
  plot(u"K");
  expect_clean_plane(operations([&] { choose(); }), GetParam().pixels_per_unit);
  EXPECT_EQ(pixels_per_unit(), GetParam().pixels_per_unit);
  EXPECT_EQ(form().lblzm.Caption.get(), GetParam().text);
  EXPECT_EQ(edit_marks(), GetParam().marks);
  EXPECT_EQ(popup_marks(), GetParam().marks);
}

TEST_P(PresetTest, TakesTheMarksOfAFineZoomAway) {
  program.desk.answer(u"50");
  menus().mnufinzoom.press();
  choose();
  EXPECT_EQ(edit_marks(), GetParam().marks);
  EXPECT_EQ(popup_marks(), GetParam().marks);
}

TEST_P(PresetTest, SetsTheRangeOfTheNextCurve) {
  choose();
  const auto drawn = plot(u"0*K");
  ASSERT_EQ(drawn.size(), 400U);
  EXPECT_EQ(drawn.front().x1, 0);
  EXPECT_EQ(drawn.back().x2, 400);
  EXPECT_EQ(form().evaluate_x(200 / GetParam().pixels_per_unit, 0), 200 / GetParam().pixels_per_unit);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, PresetTest,
    testing::Values(PresetCommand{"mnuzoomin", 40, u"40", "i"}, PresetCommand{"mnuzin2", 40, u"40", "i"},
                    PresetCommand{"mnuzoomout", 10, u"10", "o"}, PresetCommand{"mnuzout2", 10, u"10", "o"},
                    PresetCommand{"mnudef", 20, u"20", "d"}, PresetCommand{"mnudef2", 20, u"20", "d"}));

struct MarkedZoom {
  bool in, out, standard;
  double pixels_per_unit;
  const char* marks;
};

class MarkedZoomTest : public ZoomTest, public testing::WithParamInterface<MarkedZoom> {};

TEST_P(MarkedZoomTest, ApplyingReadsTheEditMenusFirstMark) {
  menus().mnuzoomin.Checked = GetParam().in;
  menus().mnuzoomout.Checked = GetParam().out;
  menus().mnudef.Checked = GetParam().standard;
  menus().mnufinzoom.Checked = true;
  form().Line1.Visible = true;
  expect_clean_plane(operations([&] { (*form().find_procedure("Zumiraj"))({}); }),
                     GetParam().pixels_per_unit);
  EXPECT_EQ(pixels_per_unit(), GetParam().pixels_per_unit);
  EXPECT_EQ(edit_marks(), GetParam().marks + std::string{"f"}) << "the fine zoom's mark is left alone";
  EXPECT_TRUE(form().Line1.Visible) << "hiding the tangent is the commands' doing";
}

INSTANTIATE_TEST_SUITE_P(
    Marks, MarkedZoomTest,
    testing::Values(MarkedZoom{true, false, false, 40, "i"}, MarkedZoom{true, true, true, 40, "i"},
                    MarkedZoom{true, false, true, 40, "i"}, MarkedZoom{false, true, false, 10, "o"},
                    MarkedZoom{false, true, true, 10, "o"}, MarkedZoom{false, false, true, 20, "d"},
                    MarkedZoom{false, false, false, 20, "d"}));

TEST_F(ZoomTest, ApplyingThePresetInForceLeavesThePopupsMarks) {
  menus().mnuzin2.Checked = true;
  form().apply_zoom_preset();
  EXPECT_EQ(popup_marks(), "id") << "they follow a change of the zoom's text";
}

struct TextMarks {
  const char16_t* text;
  const char* marks;
};

class TextMarksTest : public ZoomTest, public testing::WithParamInterface<TextMarks> {};

TEST_P(TextMarksTest, ThePopupFollowsTheTextOfTheZoom) {
  form().lblzm.Caption = u"a text before";
  EXPECT_EQ(popup_marks(), "f");
  form().lblzm.Caption = GetParam().text;
  EXPECT_EQ(popup_marks(), GetParam().marks);
  EXPECT_EQ(edit_marks(), "d") << "the Edit menu does not";
  EXPECT_EQ(pixels_per_unit(), 20);
}

INSTANTIATE_TEST_SUITE_P(Texts, TextMarksTest,
                         testing::Values(TextMarks{u"20", "d"}, TextMarks{u"10", "o"}, TextMarks{u"40", "i"},
                                         TextMarks{u"50", "f"}, TextMarks{u" 20", "f"},
                                         TextMarks{u"20.0", "f"}, TextMarks{u"", "f"}));

TEST_F(ZoomTest, TheZoomKeyPopsItsMenuUpUnderTheLeftButtonOnly) {
  for (const auto& [button, shown] : {std::pair{2, false}, {4, false}, {1, true}}) {
    form().lblxy.Caption = u"X";
    form().txtY.SetFocus();
    form().cmdZoom.MouseDown.raise(button, 0, 1, 1);
    EXPECT_EQ(form().popup_shown(), shown ? &menus().mnuzoom : nullptr) << button;
    EXPECT_EQ(program.bench.focus(), &form().txtX) << button;
  }
}

TEST_F(ZoomTest, IsBackAtTheDefaultInTheNextRun) {
  menus().mnuzoomin.press();
  program.restart();
  EXPECT_EQ(pixels_per_unit(), 20);
  EXPECT_EQ(form().lblzm.Caption.get(), u"20");
  EXPECT_EQ(edit_marks(), "d");
  EXPECT_EQ(popup_marks(), "d");
}

TEST_F(ZoomTest, BeforeGraphModeTheMenusMakeItOnTheWay) {
  EXPECT_EQ(program.bench.find_window("frmFunc"), nullptr);
  menus().mnuzoomin.press();
  ASSERT_NE(program.bench.find_window("frmFunc"), nullptr);
  EXPECT_EQ(pixels_per_unit(), 40);
}

}  // namespace
}  // namespace tarnmill
