#include "graph_fixture.h"

namespace tarnmill {
namespace {

using PlotEventsTest = GraphTest;

TEST_F(PlotEventsTest, EachPointThatIsNotSkippedGivesOneTurn) {
  int turns = 0;
  program.desk.on_yield = [&] { ++turns; };
  plot(u"K");
  EXPECT_EQ(turns, 401);
  turns = 0;
  plot(u"LnK");
  EXPECT_EQ(turns, 200) << "K above 0";
}

TEST_F(PlotEventsTest, TheProgressTextCountsTheWidth) {
  std::vector<Text> texts;
  program.desk.on_yield = [&] {
    EXPECT_TRUE(form().lblPerCent.Visible);
    EXPECT_TRUE(form().Drawing);
    texts.push_back(form().lblPerCent.Caption);
  };
  plot(u"K");
  ASSERT_EQ(texts.size(), 401U);
  EXPECT_EQ(texts.front(), u"Drawing...    0%");
  EXPECT_EQ(texts[4], u"Drawing...    1%");
  EXPECT_EQ(texts[200], u"Drawing...    50%");
  EXPECT_EQ(texts.back(), u"Drawing...    100%");
}

TEST_F(PlotEventsTest, BeforeTheFirstPointTheTextIsDone) {
  std::vector<Text> texts;
  form().lblPerCent.Change.handle([&] { texts.push_back(form().lblPerCent.Caption); });
  plot(u"K");
  ASSERT_GE(texts.size(), 2U);
  EXPECT_EQ(texts[0], u"Done...    0 %");
  EXPECT_EQ(texts[1], u"Drawing...    0%");
  EXPECT_EQ(texts.size(), 102U) << "once for each new text";
}

TEST_F(PlotEventsTest, SkippedPointsLeaveTheProgressTextAlone) {
  Text seen;
  program.desk.on_yield = [&] {
    if (seen.empty()) seen = form().lblPerCent.Caption;
  };
  plot(u"LnK");
  EXPECT_EQ(seen, u"Drawing...    50%");
}

TEST_F(PlotEventsTest, ASecondPlotIsIgnoredButHidesTheFrame) {
  form().Line3.Visible = true;
  bool hidden = false;
  at_first_yield([&] {
    form().Line4.Visible = true;
    form().cmdDraw.press();
    hidden = !form().Line4.Visible;
  });
  EXPECT_EQ(plot(u"K").size(), 400U);
  EXPECT_TRUE(hidden);
  EXPECT_FALSE(form().Line3.Visible);
}

TEST_F(PlotEventsTest, CommandsAndTheReadoutRestMeanwhile) {
  at_first_yield([&] {
    form().pDraw.MouseMove.raise(0, 0, 220, 200);
    form().cmdClear.press();
    form().clear_without_grid();
    form().cmdDrawCage.press();
    form().Activate.raise();
  });
  EXPECT_EQ(plot(u"K").size(), 400U);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
}

TEST_F(PlotEventsTest, AZoomMeanwhileChangesTheMappingAndNotTheRange) {
  at_first_yield([&] { form().PixelsPerUnit = 40; });
  const auto drawn = plot(u"K/4");
  ASSERT_EQ(drawn.size(), 400U);
  EXPECT_NEAR(drawn.front().x1, 0, 0.01);
  EXPECT_NEAR(drawn.front().y1, 250, 0.01);
  EXPECT_NEAR(drawn.front().x2, 200 - 40 * 9.95, 0.01);
  EXPECT_NEAR(drawn.back().x2, 600, 0.01);
  EXPECT_NEAR(drawn.back().y2, 100, 0.01);
}

TEST_F(PlotEventsTest, AnEraseMeanwhileLetsTheNextSegmentStartAtTheCorner) {
  at_first_yield([&] { form().pDraw.Cls(); });
  const auto drawn = plot(u"K/4");
  EXPECT_EQ(drawn.front().x1, 0);
  EXPECT_EQ(drawn.front().y1, 0);
}

TEST_F(PlotEventsTest, TheExpressionsAreThoseOfTheStart) {
  at_first_yield([&] { set_fields(u"100", u"Y"); });
  const auto drawn = plot(u"K");
  EXPECT_EQ(drawn.back().x2, 400);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode  Y = 100 for X = Y") << "the end reads the fields anew";
}

TEST_F(PlotEventsTest, ANewColourMeanwhileIsTaken) {
  at_first_yield([&] { form().CurveColor = rgb(7, 7, 7); });
  const auto drawn = plot(u"K");
  EXPECT_EQ(drawn.back().color, rgb(7, 7, 7));
}

TEST_F(PlotEventsTest, ClosingTheWindowMeanwhileEndsTheProgram) {
  set_fields(u"K");
  int turns = 0;
  program.desk.on_yield = [&] {
    ++turns;
    program.bench.enter([&] { form().imclose.press(); });
  };
  EXPECT_FALSE(program.bench.enter([&] { form().cmdDraw.press(); }));
  EXPECT_EQ(turns, 1);
  EXPECT_TRUE(program.bench.ended());
  EXPECT_FALSE(program.bench.fault());
  EXPECT_EQ(history(), u"");
}

TEST_F(PlotEventsTest, AnEvaluationMeanwhileIsTakenForThatOfX) {
  // The code is read again behind the turn, and the evaluator is the window's only one.
  set_fields(u"K");
  at_first_yield([&] { form().graph_evaluator().Evaluate(u"1+", true); });
  form().cmdDraw.press();
  EXPECT_EQ(only_dialog().text, u"Invalid input!");
}

}  // namespace
}  // namespace tarnmill
