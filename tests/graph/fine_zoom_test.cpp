#include <set>

#include "zoom_fixture.h"

namespace tarnmill {
namespace {

using FineZoomTest = ZoomTest;

TEST_F(FineZoomTest, AsksForAFactor) {
  fine_zoom(u"50");
  const DialogShown asked = only_dialog();
  EXPECT_EQ(asked.kind, DialogShown::Kind::input);
  EXPECT_EQ(asked.title, u"Zooming");
  EXPECT_EQ(asked.text, u"Select zooming factor in range (5-100).");
}

struct Accepted {
  const char16_t* answer;
  double pixels_per_unit;
  const char* popup_marks;
};

class AcceptedZoomTest : public ZoomTest, public testing::WithParamInterface<Accepted> {};

TEST_P(AcceptedZoomTest, TakesTheNumberAndKeepsTheTextAsTyped) {
  plot(u"K");
  form().Line1.Visible = true;
  const auto drawn = operations([&] { fine_zoom(GetParam().answer); });
  EXPECT_EQ(pixels_per_unit(), GetParam().pixels_per_unit);
  EXPECT_EQ(form().lblzm.Caption.get(), GetParam().answer);
  EXPECT_EQ(edit_marks(), "");
  EXPECT_EQ(popup_marks(), GetParam().popup_marks);
  EXPECT_FALSE(form().Line1.Visible);
  ASSERT_FALSE(drawn.empty());
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
  EXPECT_EQ(only_dialog().kind, DialogShown::Kind::input);
}

INSTANTIATE_TEST_SUITE_P(Answers, AcceptedZoomTest,
                         testing::Values(Accepted{u"5", 5, "f"}, Accepted{u"100", 100, "f"},
                                         Accepted{u"5.5", 5.5, "f"}, Accepted{u"50", 50, "f"},
                                         Accepted{u"7.5 or so", 7.5, "f"}, Accepted{u"  30", 30, "f"},
                                         Accepted{u"1e1", 10, "f"}, Accepted{u"&H20", 32, "f"},
                                         Accepted{u"5 0", 50, "f"}, Accepted{u"10", 10, "o"},
                                         Accepted{u"20", 20, "d"}, Accepted{u"40", 40, "i"}));

struct Refused {
  const char16_t* answer;
  double pixels_per_unit;
};

class RefusedZoomTest : public ZoomTest, public testing::WithParamInterface<Refused> {};

TEST_P(RefusedZoomTest, SaysSoAndLeavesAllButTheNumber) {
  plot(u"K");
  form().Line1.Visible = true;
  EXPECT_TRUE(operations([&] { fine_zoom(GetParam().answer); }).empty());
  ASSERT_EQ(program.desk.dialogs().size(), 2U);
  const DialogShown& message = program.desk.dialogs().back();
  EXPECT_EQ(message.kind, DialogShown::Kind::message);
  EXPECT_EQ(message.text, u"Input out of range!");
  EXPECT_EQ(message.title, u"Tarnmill");
  EXPECT_EQ(message.icon, MessageIcon::none);
  EXPECT_EQ(message.buttons, MessageButtons::ok);
  EXPECT_EQ(pixels_per_unit(), GetParam().pixels_per_unit);
  EXPECT_EQ(form().lblzm.Caption.get(), u"20");
  EXPECT_EQ(edit_marks(), "d");
  EXPECT_EQ(popup_marks(), "d");
  EXPECT_TRUE(form().Line1.Visible);
}

INSTANTIATE_TEST_SUITE_P(Answers, RefusedZoomTest,
                         testing::Values(Refused{u"4.99", 4.99}, Refused{u"100.01", 100.01},
                                         Refused{u"200", 200}, Refused{u"abc", 0}, Refused{u"0", 0},
                                         Refused{u"-20", -20}, Refused{u" ", 0}, Refused{u"4,5", 4},
                                         Refused{u"1e-300", 1e-300}));

TEST_F(FineZoomTest, WithoutAnAnswerNothingHasChanged) {
  form().Line1.Visible = true;
  for (const Answer& answer : {Answer{u""}, Answer{Cancelled{}}}) {
    EXPECT_TRUE(operations([&] { fine_zoom(answer); }).empty());
    EXPECT_EQ(pixels_per_unit(), 20);
    EXPECT_EQ(form().lblzm.Caption.get(), u"20");
    EXPECT_EQ(edit_marks(), "d");
    EXPECT_EQ(popup_marks(), "d");
    EXPECT_TRUE(form().Line1.Visible);
  }
  EXPECT_EQ(program.desk.dialogs().size(), 2U) << "only the questions";
}

TEST_F(FineZoomTest, ANumberBeyondTheRangeLeavesTheZoomInSilence) {
  EXPECT_TRUE(operations([&] { fine_zoom(u"1e400"); }).empty());
  EXPECT_EQ(pixels_per_unit(), 20);
  EXPECT_EQ(form().lblzm.Caption.get(), u"20");
  EXPECT_EQ(only_dialog().kind, DialogShown::Kind::input);
  EXPECT_FALSE(program.bench.fault());
}

TEST_F(FineZoomTest, ThePopupShowsThePresetAlsoWhenTheTextStaysTheSame) {
  fine_zoom(u"20");
  EXPECT_EQ(popup_marks(), "d");
  EXPECT_EQ(edit_marks(), "");
  menus().mnudef.press();
  EXPECT_EQ(popup_marks(), "d");
  EXPECT_EQ(edit_marks(), "d");
}

TEST_F(FineZoomTest, TheEditMenusCommandChecksItselfFirst) {
  program.desk.answer(Cancelled{});
  menus().mnufinzoom.press();
  EXPECT_EQ(edit_marks(), "df");
  EXPECT_EQ(popup_marks(), "df");
  program.desk.answer(u"50");
  menus().mnufinzoom.press();
  EXPECT_EQ(edit_marks(), "f");
  EXPECT_EQ(popup_marks(), "f");
  program.desk.answer(u"40");
  menus().mnufinzoom.press();
  EXPECT_EQ(edit_marks(), "f");
  EXPECT_EQ(popup_marks(), "i");
}

TEST_F(FineZoomTest, ThePopupsCommandOnlyAsks) {
  program.desk.answer(Cancelled{});
  menus().mnifinezoom2.press();
  EXPECT_EQ(edit_marks(), "d");
  EXPECT_EQ(popup_marks(), "d");
  program.desk.answer(u"50");
  menus().mnifinezoom2.press();
  EXPECT_EQ(edit_marks(), "");
  EXPECT_EQ(popup_marks(), "f");
}

TEST_F(FineZoomTest, FiftyPixelsAUnitShowFourUnitsEachWay) {
  std::set<float> columns;
  for (const LineDrawn& line : lines([&] { fine_zoom(u"50"); })) {
    if (line.x1 == line.x2) columns.insert(line.x1);
  }
  EXPECT_EQ(columns, (std::set<float>{0, 50, 100, 150, 200, 250, 300, 350, 400}));
  const auto drawn = plot(u"K");
  ASSERT_EQ(drawn.size(), 400U);
  EXPECT_EQ(drawn.front().x1, 0) << "K = -4";
  EXPECT_EQ(drawn.back().x2, 400) << "K = 4";
}

TEST_F(FineZoomTest, ARefusedFactorRulesTheNextPlotAndGridButNotTheReadout) {
  fine_zoom(u"200");
  const auto drawn = plot(u"K");
  ASSERT_EQ(drawn.size(), 400U);
  EXPECT_EQ(drawn.back().x2, 400) << "K = 1";
  std::set<float> columns;
  for (const LineDrawn& line : lines([&] { form().redraw(); })) {
    if (line.x1 == line.x2) columns.insert(line.x1);
  }
  EXPECT_EQ(columns, (std::set<float>{0, 200, 400}));
  form().pDraw.MouseMove.raise(0, 0, 220, 200);
  EXPECT_EQ(form().LblChart.Caption.get(), u"   x = 1, y = 0");
  menus().mnudef.press();
  EXPECT_EQ(pixels_per_unit(), 20);
}

TEST_F(FineZoomTest, ARefusedZeroHangsNothingAndPlotsNothing) {
  for (const char16_t* answer : {u"abc", u"-20", u"1e-300"}) {
    fine_zoom(answer);
    EXPECT_EQ(lines([&] { form().Activate.raise(); }).size(), 2U) << "the axes";
    EXPECT_EQ(lines([&] { form().redraw(); }).size(), 2U);
  }
  program.desk.forget();
  fine_zoom(u"abc");
  program.desk.forget();
  EXPECT_TRUE(plot(u"K").empty());
  EXPECT_TRUE(program.desk.dialogs().empty());
  EXPECT_FALSE(form().Drawing);
  EXPECT_FALSE(form().GraphDrawn);
  EXPECT_EQ(history(), u"");
  fine_zoom(u"30");
  EXPECT_EQ(plot(u"K").size(), 400U);
}

TEST_F(FineZoomTest, EveryRefusedFactorLetsAPlotEnd) {
  for (const char16_t* answer : {u"1e-320", u"1e-300", u"0.001", u"-5", u"1e6", u"1e300"}) {
    fine_zoom(answer);
    EXPECT_LE(plot(u"K").size(), 401U) << to_utf8(answer);
    EXPECT_FALSE(form().Drawing) << to_utf8(answer);
    EXPECT_FALSE(program.bench.ended()) << to_utf8(answer);
  }
}

TEST_F(FineZoomTest, RestsWhileDrawing) {
  set_fields(u"K");
  at_first_yield([&] {
    program.desk.answer(u"50");
    menus().mnufinzoom.press();
  });
  form().cmdDraw.press();
  EXPECT_TRUE(program.desk.dialogs().empty());
  EXPECT_EQ(pixels_per_unit(), 20);
  EXPECT_EQ(popup_marks(), "df") << "the command checks itself all the same";
}

TEST_F(FineZoomTest, APresetMeanwhileClearsUnderThePlotWhichGoesOnAtTheNewZoom) {
  at_first_yield([&] { menus().mnuzoomin.press(); });
  set_fields(u"K/4");
  const auto drawn = operations([&] { form().cmdDraw.press(); });
  ASSERT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
  constexpr std::size_t grid = 26;
  ASSERT_EQ(drawn.size(), 1 + grid + 400);
  const auto& next = std::get<LineDrawn>(drawn[1 + grid]);
  EXPECT_EQ(next.x1, 400) << "the pen stands where the grid left it";
  EXPECT_EQ(next.y1, 200);
  EXPECT_NEAR(next.x2, 200 - 40 * 9.95, 0.01);
  const auto& last = std::get<LineDrawn>(drawn.back());
  EXPECT_NEAR(last.x2, 600, 0.01) << "to the end of the range of the start";
  EXPECT_NEAR(last.y2, 100, 0.01);
  EXPECT_EQ(form().lblzm.Caption.get(), u"40");
}

}  // namespace
}  // namespace tarnmill
