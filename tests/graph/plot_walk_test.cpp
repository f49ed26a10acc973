#include "graph/plot_walk.h"

#include <gtest/gtest.h>

#include <vector>

#include "engine/fault.h"
#include "graph/plane.h"

namespace tarnmill {
namespace {

Plane plane_at(double zoom) { return {200, 200, zoom}; }

std::vector<double> walk(double zoom) {
  std::vector<double> values;
  for (PlotWalk each{plane_at(zoom), 400}; !each.at_end(); each.advance()) values.push_back(each.k());
  return values;
}

TEST(PlotWalk, HasOnePointAPixelColumnAtEveryZoom) {
  for (double zoom = 5; zoom <= 100; zoom += 0.25) EXPECT_EQ(walk(zoom).size(), 401U) << zoom;
  for (const double zoom : {1e-300, 1e-6, 0.3, 1e4, 1e200}) EXPECT_EQ(walk(zoom).size(), 401U) << zoom;
}

TEST(PlotWalk, RunsFromEdgeToEdge) {
  const std::vector<double> values = walk(20);
  EXPECT_EQ(values.front(), -10);
  EXPECT_NEAR(values.back(), 10, 1e-12);
}

TEST(PlotWalk, AddsTheStepAgainAndAgain) {
  const std::vector<double> values = walk(20);
  double sum = -10;
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(values[i], sum) << i;
    sum += 0.05;
  }
}

TEST(PlotWalk, HasNoPointsAtAZoomBelowZero) { EXPECT_TRUE(walk(-5).empty()); }

TEST(PlotWalk, HasNoStepAtZoomZero) {
  try {
    walk(0);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_TRUE(fault.is(FaultCode::DivisionByZero));
  }
}

TEST(PlotWalk, EndsWhenAStepNoLongerCounts) {
  int points = 0;
  for (PlotWalk each{{1e30F, 200, 20}, 400}; !each.at_end() && points < 10; each.advance()) ++points;
  EXPECT_EQ(points, 1);
}

TEST(Plane, MapsPointsToPixels) {
  const Plane plane = plane_at(20);
  EXPECT_EQ(plane.column(0), 200);
  EXPECT_EQ(plane.column(-10), 0);
  EXPECT_EQ(plane.row(10), 0);
  EXPECT_EQ(plane.row(-2.5), 250);
  EXPECT_EQ(plane_at(40).row(5), 0);
  EXPECT_EQ(plane.left(), -10);
  EXPECT_EQ(plane.right(400), 10);
}

TEST(Plane, CountsTheWidthInWholeHundredths) {
  const Plane plane = plane_at(20);
  EXPECT_EQ(plane.percent_of_width(-10, 400), 0);
  EXPECT_EQ(plane.percent_of_width(-9.81, 400), 0);
  EXPECT_EQ(plane.percent_of_width(-9.76, 400), 1);
  EXPECT_EQ(plane.percent_of_width(0, 400), 50);
  EXPECT_EQ(plane.percent_of_width(10, 400), 100);
}

TEST(Plane, RefusesPixelsBeyondTheRange) {
  EXPECT_THROW((void)plane_at(1e300).column(1e300), Fault);
  EXPECT_THROW((void)plane_at(1e300).row(1e300), Fault);
}

}  // namespace
}  // namespace tarnmill
