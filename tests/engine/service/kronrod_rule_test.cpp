#include "engine/service/kronrod_rule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/fault_expectation.h"

namespace tarnmill {
namespace {

TEST(KronrodRule, IsExactForPolynomialsUpToDegree23) {
  for (int degree = 0; degree <= 23; ++degree) {
    const auto estimate = kronrod_rule([degree](double x) { return std::pow(x, degree); }, 0, 2);
    const double exact = std::pow(2.0, degree + 1) / (degree + 1);
    EXPECT_NEAR(estimate.integral, exact, 1e-14 * exact) << degree;
  }
}

TEST(KronrodRule, ItsErrorFallsWithThe24thPowerOfTheWidth) {
  // Of degree 24, around the middle of the cell, so that the error is that of the leading term alone.
  const auto error = [](double half_width) {
    const auto estimate = kronrod_rule([](double x) { return std::pow(x, 24); }, -half_width, half_width);
    return std::fabs(estimate.integral - 2 * std::pow(half_width, 25) / 25);
  };
  const double ratio = error(4) / error(2);
  EXPECT_NEAR(std::log2(ratio), 25, 0.1);  // one power for the cell's own width
}

TEST(KronrodRule, TheErrorIsTheDifferenceFromTheGaussRule) {
  const auto seventh_gauss_is_exact = kronrod_rule([](double x) { return std::pow(x, 13); }, 0, 1);
  EXPECT_LT(seventh_gauss_is_exact.error, 1e-16);
  const auto no_longer = kronrod_rule([](double x) { return std::pow(x, 16); }, 0, 1);
  EXPECT_GT(no_longer.error, 1e-12);
}

TEST(KronrodRule, MagnitudeIsThatOfTheAbsoluteValue) {
  const auto estimate = kronrod_rule([](double x) { return x < 1 ? -1.0 : 1.0; }, 0, 2);
  EXPECT_NEAR(estimate.magnitude, 2, 1e-14);
}

TEST(KronrodRule, SamplesFifteenPointsInsideInAscendingOrder) {
  std::vector<double> points;
  kronrod_rule(
      [&points](double x) {
        points.push_back(x);
        return x;
      },
      1, 2);
  ASSERT_EQ(points.size(), 15U);
  EXPECT_TRUE(std::ranges::is_sorted(points));
  EXPECT_GT(points.front(), 1);
  EXPECT_LT(points.back(), 2);
  EXPECT_EQ(points[7], 1.5);
}

TEST(KronrodRule, AnAreaBeyondTheRangeOverflows) {
  EXPECT_FAULT(kronrod_rule([](double) { return 1e308; }, 0, 1000), Overflow);
}

}  // namespace
}  // namespace tarnmill
