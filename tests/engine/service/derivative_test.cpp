#include "engine/service/derivative.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using std::numbers::pi;
using testing::division_by_zero;
using testing::invalid_argument;
using testing::number_of_fault;
using testing::overflow;
using testing::Service;

struct Row {
  TextView function;
  double point;
  double value;
};

TEST(ServiceDerivative, HasMoreThanEightDigitsOnSmoothFunctions) {
  const std::vector<Row> rows{
      {u"x^2", 3, 6},
      {u"x^2", 0, 0},
      {u"3", 5, 0},
      {u"2x+1", 7, 2},
      {u"sin(x)", 1, std::cos(1)},
      {u"sin(x)", 100, std::cos(100)},
      {u"sin(x)", 1e6, std::cos(1e6)},
      {u"sin(1000*x)", 1, 1000 * std::cos(1000)},
      {u"sin(20*pi*x)", 0.3, 20 * pi * std::cos(6 * pi)},
      {u"cos(x)", 0, 0},
      {u"e^x", 1, std::numbers::e},
      {u"e^x", 30, std::exp(30)},
      {u"e^x", 700, std::exp(700)},
      {u"ln(x)", 2, 0.5},
      {u"ln(x)", 1e-9, 1e9},
      {u"sqr(x)", 1e-6, 500},
      {u"sqr(x)", 1e8, 0.5e-4},
      {u"1/x", 0.05, -400},
      {u"1/x", -1e-6, -1e12},
      {u"1/(x-1)", 1.0001, -1 / ((1.0001 - 1) * (1.0001 - 1))},
      {u"tan(x)", 1.5, 1 / (std::cos(1.5) * std::cos(1.5))},
      {u"arcsin(x)", 0.5, 1 / std::sqrt(0.75)},
      {u"x^x", 2, 4 * (std::log(2) + 1)},
      {u"x^2", 1e9, 2e9},
      {u"stef(x)", 0.7, 10 * std::cos(1.4)},
      {u"cbr(x)", -8, 1.0 / 12},
      {u"abs(x)", 1, 1},
      {u"int(x)", 2.5, 0},
  };
  for (const auto& [function, point, value] : rows) {
    EXPECT_NEAR(Service{}.derivative(function, point), value, 1e-10 * std::max(1.0, std::fabs(value)))
        << to_utf8(function) << " at " << point;
  }
}

TEST(ServiceDerivative, WindowsThatRoundToSixDecimalsSeeTheTrueOnes) {
  for (int i = -40; i <= 40; ++i) {
    const double x = i * 0.05;
    const double exact = 3 * x * x - std::sin(x) + 0.5;
    EXPECT_NEAR(Service{}.derivative(u"x^3+cos(x)+x/2", x), exact, 1e-11) << x;
  }
}

TEST(ServiceDerivative, SurvivesCancellationInTheFunction) {
  EXPECT_NEAR(Service{}.derivative(u"x^3-3*x^2+3*x-1", 1.1), 0.03, 1e-9);
  EXPECT_NEAR(Service{}.derivative(u"x^3-3*x^2+3*x-1", 1), 0, 1e-9);
}

TEST(ServiceDerivative, SurvivesAZeroReachedByCancellation) {
  const std::vector<Row> rows{
      {u"hsin(x)", 0, 1},         {u"htan(x)", 0, 1},         {u"e^x-1", 0, 1},
      {u"exp(x)-1", 0, 1},        {u"exp(x)+x-1-x", 0, 1},    {u"ln(1+x)", 0, 1},
      {u"sqr(1+x)-1", 0, 0.5},    {u"harcsin(x)", 0, 1},      {u"harctan(x)", 0, 1},
      {u"sin(x+pi)", 0, -1},      {u"e^x-e^(-x)", 0, 2},      {u"atn(x+1)-atn(1)", 0, 0.5},
      {u"e^x-1-x", 1e-12, 1e-12}, {u"e^x-1-x", -1e-8, -1e-8}, {u"(1000000+x)-1000000", 0, 1},
  };
  for (const auto& [function, point, value] : rows) {
    EXPECT_NEAR(Service{}.derivative(function, point), value, 1e-6) << to_utf8(function) << " at " << point;
  }
}

TEST(ServiceDerivative, SeesWhatIsNarrow) {
  EXPECT_NEAR(Service{}.derivative(u"x/(1+10000000000*x^2)", 0), 1, 1e-6);
  EXPECT_NEAR(Service{}.derivative(u"0.001*sin(1000*x)", 0), 1, 1e-6);
}

TEST(ServiceDerivative, NearAPoleCountsTheErrorBesideTheValue) {
  for (const double x : {1e-9, -1e-9, 8.8e-16}) {
    EXPECT_NEAR(Service{}.derivative(u"1/x", x) * x * x, -1, 1e-6) << x;
  }
}

TEST(ServiceDerivative, ACornerHasTheSlopeBetweenItsSides) {
  EXPECT_EQ(Service{}.derivative(u"abs(x)", 0), 0);
}

TEST(ServiceDerivative, APoleAtThePointRaises) {
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"1/x", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"1/x^2", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"sin(x)/x", 0); }), overflow);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"cot(x)", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"tan(x)", pi / 2); }), division_by_zero);
}

TEST(ServiceDerivative, APointOutsideTheDomainKeepsItsNumber) {
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"ln(x)", 0); }), invalid_argument);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"sqr(x)", -1); }), invalid_argument);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"exp(x)", 1000); }), overflow);
}

TEST(ServiceDerivative, AnEndOfTheDomainHasNone) {
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"sqr(x)", 0); }), invalid_argument);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"sqr(e^x-1)", 0); }), invalid_argument);
}

TEST(ServiceDerivative, AJumpAndAnInfiniteSlopeHaveNone) {
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"sgn(e^x-1)", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"cbr(e^x-1)", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"sgn(x)", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"int(x)", 2); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.derivative(u"cbr(x)", 0); }), division_by_zero);
}

TEST(Derivative, CallsTheFunctionAtThePointFirst) {
  std::vector<double> points;
  derivative(
      [&points](double x) {
        points.push_back(x);
        return x;
      },
      1.25);
  ASSERT_GT(points.size(), 2U);
  EXPECT_EQ(points.front(), 1.25);
  EXPECT_EQ(points[1] - 1.25, 1.25 - points[2]);
}

TEST(Derivative, PassesOverStepsAtWhichTheFunctionFaults) {
  const auto narrow = [](double x) {
    if (std::fabs(x - 1) > 1e-3) throw Fault{FaultCode::InvalidArgument};
    return x * x;
  };
  EXPECT_NEAR(derivative(narrow, 1), 2, 1e-9);
}

}  // namespace
}  // namespace tarnmill
