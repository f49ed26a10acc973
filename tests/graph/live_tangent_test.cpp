#include <cmath>

#include "graph_fixture.h"

namespace tarnmill {
namespace {

constexpr int left = 1;
constexpr int right = 2;

class LiveTangentTest : public GraphTest {
 protected:
  void press_at(float x, float y) { form().pDraw.MouseDown.raise(right, 0, x, y); }
  bool shows() { return form().Line1.Visible && form().Line2.Visible; }
};

TEST_F(LiveTangentTest, AtTheLowestPointOfAParabolaItLiesFlat) {
  plot(u"K^2");
  press_at(200, 100);
  EXPECT_TRUE(shows());
  EXPECT_EQ(form().TangentX->to_number({}), 0);
  EXPECT_EQ(form().TangentY->to_number({}), 0);
  EXPECT_EQ(form().TangentSlope->to_number({}), 0);
  EXPECT_EQ(form().Line1.X1, 120);
  EXPECT_EQ(form().Line1.Y1, 200);
  EXPECT_EQ(form().Line1.X2, 280);
  EXPECT_EQ(form().Line1.Y2, 200);
}

TEST_F(LiveTangentTest, AnUprightLineStandsUnderTheMouse) {
  plot(u"K");
  press_at(123, 45);
  EXPECT_EQ(form().Line2.X1, 123);
  EXPECT_EQ(form().Line2.Y1, 0);
  EXPECT_EQ(form().Line2.X2, 123);
  EXPECT_EQ(form().Line2.Y2, 400);
  EXPECT_EQ(form().Line1.BorderColor, 0x2352F1);
}

TEST_F(LiveTangentTest, IsASegmentEightUnitsLongAboutThePoint) {
  plot(u"2*K");
  press_at(210, 45);
  EXPECT_EQ(form().TangentX->to_number({}), 0.5);
  EXPECT_EQ(form().TangentY->to_number({}), 1);
  EXPECT_NEAR(form().TangentSlope->to_number({}), 2, 1e-9);
  const auto across = static_cast<float>(80 * std::cos(std::atan(2.0)));
  const auto up = static_cast<float>(80 * std::sin(std::atan(2.0)));
  EXPECT_NEAR(form().Line1.X1, 210 - across, 1e-3);
  EXPECT_NEAR(form().Line1.Y1, 180 + up, 1e-3);
  EXPECT_NEAR(form().Line1.X2, 210 + across, 1e-3);
  EXPECT_NEAR(form().Line1.Y2, 180 - up, 1e-3);
}

TEST_F(LiveTangentTest, TheSlopeIsAsRoughAsTheCutArguments) {
  plot(u"2*K");
  press_at(220, 45);
  EXPECT_EQ(form().TangentX->to_number({}), 1);
  EXPECT_NEAR(form().TangentSlope->to_number({}), 1, 1e-9) << "the arguments lie one thousandth apart";
}

TEST_F(LiveTangentTest, AtAPoleItStandsUpright) {
  plot(u"1/K");
  press_at(200, 100);
  EXPECT_TRUE(shows());
  EXPECT_GT(std::abs(form().TangentSlope->to_number({})), 1e5);
  EXPECT_NEAR(form().Line1.X1, form().Line1.X2, 1e-2);
}

TEST_F(LiveTangentTest, FollowsTheMouseWhileTheRightButtonIsDown) {
  plot(u"K^2");
  press_at(200, 100);
  form().pDraw.MouseMove.raise(right, 0, 220, 100);
  EXPECT_EQ(form().TangentX->to_number({}), 1);
  EXPECT_EQ(form().LblChart.Caption.get(), u"   x = 1, y = 5");
  form().pDraw.MouseMove.raise(0, 0, 240, 100);
  EXPECT_EQ(form().TangentX->to_number({}), 1) << "no button, no tangent";
  EXPECT_EQ(form().LblChart.Caption.get(), u"   x = 2, y = 5");
  form().pDraw.MouseMove.raise(left, 0, 260, 100);
  EXPECT_EQ(form().TangentX->to_number({}), 1);
}

TEST_F(LiveTangentTest, OnlyTheRightButtonBeginsIt) {
  plot(u"K^2");
  form().pDraw.MouseDown.raise(left, 0, 200, 100);
  EXPECT_FALSE(form().Line1.Visible);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
}

TEST_F(LiveTangentTest, AnyButtonsReleaseHidesIt) {
  plot(u"K^2");
  for (const int button : {left, right}) {
    press_at(200, 100);
    form().pDraw.MouseUp.raise(button, 0, 200, 100);
    EXPECT_FALSE(form().Line1.Visible);
    EXPECT_FALSE(form().Line2.Visible);
  }
}

TEST_F(LiveTangentTest, BeforeTheFirstPlotThereIsNone) {
  press_at(230, 170);
  EXPECT_FALSE(form().Line1.Visible);
  EXPECT_EQ(form().LblChart.Caption.get(), u"   x = 1.5, y = 1.5");
}

TEST_F(LiveTangentTest, NotWhileAPlotRuns) {
  plot(u"K");
  form().Drawing = true;
  press_at(230, 170);
  EXPECT_FALSE(form().Line1.Visible);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
}

TEST_F(LiveTangentTest, ACurveOfAnotherKindHasNoneAndNoReadout) {
  plot(u"3*sinK", u"3*cosK");
  press_at(230, 170);
  expect_message(
      u"This option is available only for \r\ny = f(k) ,  where   x = k .\r\nSet x = k and draw function "
      u"first.");
  EXPECT_FALSE(form().Line1.Visible);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
}

TEST_F(LiveTangentTest, TheKindIsThatOfTheCurveDrawnNotOfTheField) {
  plot(u"K", u"k");
  form().txtX.Text = u"Y";
  press_at(230, 170);
  EXPECT_TRUE(shows());
}

TEST_F(LiveTangentTest, AFailureLeavesLinesAndReadoutAsTheyWere) {
  plot(u"K");
  form().PixelsPerUnit = Variant{0.0};
  EXPECT_TRUE(program.bench.enter([&] { press_at(230, 170); }));
  EXPECT_FALSE(form().Line1.Visible);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
  EXPECT_TRUE(program.desk.dialogs().empty());
}

TEST_F(LiveTangentTest, AnUndefinedPointTakesTheValueThatTheEvaluatorGave) {
  plot(u"LnK");
  press_at(100, 170);
  EXPECT_TRUE(shows());
  EXPECT_TRUE(program.desk.dialogs().empty());
}

}  // namespace
}  // namespace tarnmill
