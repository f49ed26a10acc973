#include <algorithm>
#include <cmath>

#include "engine/fault.h"
#include "graph_fixture.h"

namespace tarnmill {
namespace {

using PlotTest = GraphTest;

TEST_F(PlotTest, ADiagonalHas401PointsFromCornerToCorner) {
  const auto drawn = plot(u"K");
  ASSERT_EQ(drawn.size(), 400U);
  EXPECT_EQ(drawn.front().x1, 0);
  EXPECT_EQ(drawn.front().y1, 400) << "placed out of range, and joined to the next";
  EXPECT_EQ(drawn.front().x2, 1);
  EXPECT_EQ(drawn.front().y2, 399);
  EXPECT_EQ(drawn.back().x2, 400);
  EXPECT_EQ(drawn.back().y2, 0);
  for (std::size_t i = 1; i < drawn.size(); ++i) {
    EXPECT_EQ(drawn[i].x1, drawn[i - 1].x2);
    EXPECT_EQ(drawn[i].y1, drawn[i - 1].y2);
  }
}

TEST_F(PlotTest, TheCurveHasItsColourAndIsPixels) {
  form().CurveColor = rgb(1, 2, 3);
  const auto drawn = plot(u"0*K");
  EXPECT_TRUE(std::all_of(drawn.begin(), drawn.end(), [](const auto& l) { return l.color == rgb(1, 2, 3); }));
  EXPECT_EQ(form().pDraw.Point(77, 200), rgb(1, 2, 3));
}

TEST_F(PlotTest, APoleShowsNoVerticalStroke) {
  const auto drawn = plot(u"1/K");
  ASSERT_FALSE(drawn.empty());
  for (const auto& line : drawn) {
    EXPECT_FALSE(line.x1 < 200 && line.x2 > 200) << line.x1 << " to " << line.x2;
    EXPECT_FALSE(line.y1 > 400 && line.y2 < 0);
  }
  EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [](const auto& l) { return l.y2 >= 400; }));
  EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [](const auto& l) { return l.y1 <= 0; }));
}

TEST_F(PlotTest, AParabolaComesFromAboveAndReturns) {
  const auto drawn = plot(u"K^2");
  EXPECT_EQ(form().ExpressionY.get(), u"BinK");
  EXPECT_EQ(form().ExpressionX.get(), u"K");
  const auto vertex =
      std::max_element(drawn.begin(), drawn.end(), [](const auto& a, const auto& b) { return a.y2 < b.y2; });
  EXPECT_NEAR(vertex->x2, 200, 1e-3);
  EXPECT_NEAR(vertex->y2, 200, 1e-3);
  EXPECT_LT(drawn.front().y1, 0);
  EXPECT_LT(drawn.back().y2, 0);
}

TEST_F(PlotTest, KAndYAreCutToFourDecimalsBeforeTheyEnterX) {
  form().PixelsPerUnit = 7;
  double k = -200.0 / 7;
  for (const auto& line : plot(u"0*K", u"K")) {
    EXPECT_EQ(line.x1, static_cast<float>(200 + 7 * (std::floor(k * 10000) / 10000)));
    k += 1.0 / 7;
  }
  const auto drawn = plot(u"K/3", u"Y");
  ASSERT_EQ(drawn.size(), 400U);
  for (const auto& line : drawn) {
    const double y = (200 - static_cast<double>(line.y1)) / 7;
    EXPECT_NEAR(line.x1, 200 + 7 * std::floor(y * 10000) / 10000, 1e-3 + 7e-4);
  }
}

TEST_F(PlotTest, XOfYLiesOnTheDiagonal) {
  const auto drawn = plot(u"2*K", u"Y");
  ASSERT_FALSE(drawn.empty());
  for (const auto& line : drawn) EXPECT_NEAR(line.x2 - 200, 200 - line.y2, 0.01);
}

TEST_F(PlotTest, ACircleIsGoneRoundMoreThanThreeTimes) {
  const auto drawn = plot(u"3*sinK+3", u"3*cosK+3");
  EXPECT_EQ(drawn.size(), 400U);
  for (const auto& line : drawn) EXPECT_NEAR(std::hypot(line.x2 - 260.0, line.y2 - 140.0), 60, 0.05);
}

TEST_F(PlotTest, BesideTheSurfaceIsInRange) {
  const auto drawn = plot(u"K/2", u"100");
  EXPECT_EQ(drawn.size(), 400U);
  EXPECT_EQ(drawn.front().x2, 2200);
}

TEST_F(PlotTest, ACurveStartsCleanlyBehindUndefinedPoints) {
  const auto drawn = plot(u"LnK");
  ASSERT_EQ(drawn.size(), 199U);
  EXPECT_EQ(drawn.front().x1, 201);
}

TEST_F(PlotTest, UndefinedPointsBetweenDefinedOnesGiveAChord) {
  const auto drawn = plot(u"Sqr(K^2-4)");
  const auto chord = std::find_if(drawn.begin(), drawn.end(), [](const auto& l) { return l.x2 - l.x1 > 2; });
  ASSERT_NE(chord, drawn.end());
  EXPECT_NEAR(chord->x1, 160, 1.1);
  EXPECT_NEAR(chord->x2, 240, 1.1);
  EXPECT_NEAR(chord->y1, chord->y2, 15);
}

TEST_F(PlotTest, AnUndefinedXCountsAsTheValueThatIsLeft) {
  const auto drawn = plot(u"K/2", u"1/0");
  ASSERT_EQ(drawn.size(), 400U);
  for (const auto& line : drawn) EXPECT_EQ(line.x2, 200);
}

TEST_F(PlotTest, OutsideTheirDomainInverseSecantsTakeTheColourOfTheAxes) {
  form().AxisColor = rgb(1, 1, 1);
  form().lblBoja.BackColor = rgb(2, 2, 2);
  form().CurveColor = rgb(3, 3, 3);
  form().PixelsPerUnit = 1;
  const auto drawn = plot(u"ArcsecK");
  // Of 401 points those at 1 and -1 divide by zero and are skipped.
  ASSERT_EQ(drawn.size(), 398U);
  EXPECT_EQ(drawn.front().color, rgb(2, 2, 2));
  const auto placeholder =
      std::find_if(drawn.begin(), drawn.end(), [](const auto& l) { return l.y2 == 100; });
  ASSERT_NE(placeholder, drawn.end());
  EXPECT_EQ(placeholder->color, rgb(1, 1, 1));
  EXPECT_EQ(placeholder->x2, 200);
  EXPECT_EQ(drawn.back().color, rgb(2, 2, 2));
}

TEST_F(PlotTest, TheEndNamesTheWindowAndShowsTheFieldOfEntry) {
  form().lblxy.Caption = u"X";
  plot(u"K^2");
  EXPECT_EQ(form().Caption.get(), u"Graph Mode  Y = K^2 for X = K");
  EXPECT_EQ(form().lblcap.Caption.get(), u"Graph Mode");
  EXPECT_FALSE(form().Drawing);
  EXPECT_FALSE(form().lblPerCent.Visible);
  EXPECT_TRUE(form().GraphDrawn);
  EXPECT_EQ(program.bench.focus(), &form().txtX);
}

TEST_F(PlotTest, TheSixFieldsGoOnTheRecentLists) {
  key_in(u"K^(1/3)");
  form().cmdDraw.press();
  EXPECT_EQ(menus().mnuRecent(1).Caption.get(), u"K^(1/3)");
  EXPECT_EQ(menus().mnuRecentX(1).Caption.get(), u"K");
  EXPECT_EQ(menus().mnuRecentY2(1).Caption.get(), u"K^(1/3");
  EXPECT_EQ(menus().mnuRecentY3(1).Caption.get(), u"K^(1/3");
  EXPECT_EQ(menus().mnuRecentIm(1).Caption.get(), u"K^(1");
  EXPECT_EQ(menus().mnuOK(1).Caption.get(), u"OK");
  EXPECT_TRUE(menus().mnuRecent(1).Visible);
}

TEST_F(PlotTest, OtherNamesOfThePlot) {
  set_fields(u"K");
  for (const char* name : {"ponovo", "cepaj"}) {
    EXPECT_EQ(lines([&] { (*form().find_procedure(name))({}); }).size(), 400U) << name;
  }
}

TEST_F(PlotTest, APlotDrawsNoGridAndClearsNothing) {
  const auto drawn = operations([&] {
    set_fields(u"K");
    form().cmdDraw.press();
  });
  EXPECT_EQ(drawn.size(), 400U);
}

struct Refused {
  const char16_t* y;
  const char16_t* x;
  const char16_t* text;
  const char16_t* title;
};

constexpr const char16_t* y_message =
    u"Invalid input or:\r\n- fractional (as an argument) is not reduced;\r\n"
    u"- tangent is not defined in this point.";

class RefusedTest : public GraphTest, public testing::WithParamInterface<Refused> {};

TEST_P(RefusedTest, AMessageStopsThePlotAndLeavesNoTrace) {
  plot(u"K");
  const Text history_before = history();
  form().lblxy.Caption = u"X";
  plot(GetParam().y, GetParam().x);
  const DialogShown box = only_dialog();
  EXPECT_EQ(box.text, GetParam().text);
  EXPECT_EQ(box.title, GetParam().title);
  EXPECT_EQ(box.icon, MessageIcon::critical);
  EXPECT_EQ(box.buttons, MessageButtons::ok);
  EXPECT_FALSE(form().Drawing);
  EXPECT_FALSE(form().lblPerCent.Visible);
  EXPECT_TRUE(form().GraphDrawn);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode  Y = K for X = K") << "that of the earlier plot";
  EXPECT_EQ(history(), history_before);
  EXPECT_EQ(menus().mnuRecent(2).Caption.get(), u"");
  EXPECT_EQ(program.bench.focus(), &form().txtX);
}

INSTANTIATE_TEST_SUITE_P(Texts, RefusedTest,
                         testing::Values(Refused{u"", u"K", y_message, u"Tarnmill"},
                                         Refused{u"K+", u"K", y_message, u"Tarnmill"},
                                         Refused{u"Foo(K)", u"K", y_message, u"Tarnmill"},
                                         Refused{u"K)", u"K", y_message, u"Tarnmill"},
                                         Refused{u"K", u"K)", u"Invalid input!", u"Error"},
                                         Refused{u"K", u"", u"Invalid input!", u"Error"}));

TEST_F(PlotTest, AMessageCountsAsDrawnAlsoOnAFreshWindow) {
  plot(u"K+");
  EXPECT_TRUE(form().GraphDrawn);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode ");
  EXPECT_EQ(history(), u"");
}

class SilentTest : public GraphTest, public testing::WithParamInterface<const char16_t*> {};

TEST_P(SilentTest, AFaultEndsThePlotWithoutAWord) {
  form().txtX.SetFocus();
  set_fields(GetParam());
  EXPECT_TRUE(program.bench.enter([&] { form().cmdDraw.press(); }));
  EXPECT_TRUE(program.desk.dialogs().empty());
  EXPECT_FALSE(form().Drawing);
  EXPECT_FALSE(form().lblPerCent.Visible);
  EXPECT_FALSE(form().GraphDrawn);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode ");
  EXPECT_EQ(history(), u"");
  EXPECT_EQ(menus().mnuRecent(1).Caption.get(), u"");
  EXPECT_EQ(program.bench.focus(), &form().txtX) << "the focus isn't moved";
}

INSTANTIATE_TEST_SUITE_P(Overflows, SilentTest,
                         testing::Values(u"10^300*10^7+0*K",  // the cut to four decimals
                                         u"10^39+0*K"));      // a pixel beyond Single

TEST_F(PlotTest, AtZoomZeroAPlotEndsWithoutAWord) {
  form().PixelsPerUnit = 0;
  EXPECT_TRUE(plot(u"K").empty());
  EXPECT_FALSE(form().Drawing);
  EXPECT_FALSE(form().GraphDrawn);
  EXPECT_EQ(history(), u"");
}

TEST_F(PlotTest, AZoomThatWasRefusedStillPlots) {
  form().PixelsPerUnit = 200;
  const auto drawn = plot(u"K");
  ASSERT_EQ(drawn.size(), 400U);
  EXPECT_EQ(drawn.front().x1, 0);
  EXPECT_EQ(drawn.back().x2, 400);
}

TEST_F(PlotTest, ATooLongExpressionIsAWrongSyntax) {
  form().ExpressionY = Text(40000, u'K');
  form().ExpressionX = Text(40000, u'Y');
  for (const auto& evaluate : std::vector<std::function<double()>>{[&] { return form().evaluate_y(1); },
                                                                   [&] { return form().evaluate_x(1, 2); }}) {
    try {
      evaluate();
      FAIL();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.description(), u"Wrong Syntax");
      EXPECT_EQ(fault.number(), 6);
    }
  }
}

TEST_F(PlotTest, TheFunctionsPutNumbersInPlaceOfLettersOfAnyCase) {
  form().ExpressionY = u"Bink+k";
  form().ExpressionX = u"y*K-Y";
  EXPECT_EQ(form().evaluate_y(-3), 6);
  EXPECT_EQ(form().evaluate_x(3, -2), -4);
  EXPECT_EQ(form().graph_evaluator().error(), 0);
  form().ExpressionY = u"1/K";
  form().evaluate_y(0);
  EXPECT_EQ(form().graph_evaluator().error(), 16);
}

TEST_F(PlotTest, ADecimalCommaPlotsTheSameCurve) {
  const auto with_point = plot(u"SinK");
  program.desk.decimal_separator(u',');
  const auto with_comma = plot(u"SinK");
  ASSERT_EQ(with_comma.size(), with_point.size());
  for (std::size_t i = 0; i < with_point.size(); ++i) EXPECT_EQ(with_comma[i].y2, with_point[i].y2);
}

}  // namespace
}  // namespace tarnmill
