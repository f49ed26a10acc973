#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "engine/service/quadrature.h"
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
  double from;
  double to;
  double value;
};

void expect_integrals(const std::vector<Row>& rows, double relative_error) {
  for (const auto& [function, from, to, value] : rows) {
    EXPECT_NEAR(Service{}.integral(function, from, to), value,
                relative_error * std::max(1.0, std::fabs(value)))
        << to_utf8(function);
  }
}

TEST(ServiceIntegral, TwoHundredPartsGiveMoreThanTenDigitsOfSmoothFunctions) {
  expect_integrals({{u"x^2", 0, 1, 1.0 / 3},
                    {u"x^5", -1, 2, 10.5},
                    {u"sin(x)", 0, pi, 2},
                    {u"sin(x)", 0, 2 * pi, 0},
                    {u"e^x", 0, 1, std::numbers::e - 1},
                    {u"exp(-x^2)", -6, 6, std::sqrt(pi) * std::erf(6)},
                    {u"1/x", 1, 2, std::log(2)},
                    {u"1/(1+x^2)", -1, 1, pi / 2},
                    {u"sin(x)", 0, 1000, 1 - std::cos(1000)},
                    {u"tan(x)", -1, 1.5, std::log(std::cos(1)) - std::log(std::cos(1.5))},
                    {u"x*ln(x)", 1, 10, 50 * std::log(10) - 99.0 / 4},
                    {u"7", -2, 3, 35},
                    {u"0", 0, 1, 0},
                    {u"x", 1e6, 1e6 + 1, 1e6 + 0.5},
                    {u"1/(x^2+1E-12)", -1, 1, 2e6 * std::atan(1e6)}},
                   1e-13);
}

TEST(ServiceIntegral, OnePartServesWithRefinement) {
  Service service;
  EXPECT_NEAR(service.integral(u"sin(100*x)", 0, pi / 100, 1), 0.02, 1e-14);
  EXPECT_NEAR(service.integral(u"sin(x)", 0, 100, 1), 1 - std::cos(100), 1e-11);
}

TEST(ServiceIntegral, EndsWithoutAValueOrSlopeAreFineWhenTheAreaIsFinite) {
  expect_integrals({{u"sqr(x)", 0, 1, 2.0 / 3},
                    {u"sqr(1-x^2)", -1, 1, pi / 2},
                    {u"ln(x)", 0, 1, -1},
                    {u"1/sqr(x)", 0, 1, 2},
                    {u"x^(-0.9)", 0, 1, 10},
                    {u"cbm(x)", 0, 1, 1.5},
                    {u"sin(x)/x", 0, 1, 0.946083070367183},
                    {u"arcsin(x)", 0, 1, pi / 2 - 1}},
                   1e-10);
}

TEST(ServiceIntegral, SingularitiesAwayFromZeroAreFineWhenTheAreaIsFinite) {
  expect_integrals({{u"1/sqr(x-1)", 1, 2, 2},
                    {u"1/sqr(5-x)", 0, 5, 2 * std::sqrt(5)},
                    {u"1/sqr(abs(x-0.3))", 0, 1, 2 * (std::sqrt(0.3) + std::sqrt(0.7))},
                    {u"cbm(x-0.3)", 0, 1, 1.5 * (std::pow(0.7, 2.0 / 3) - std::pow(0.3, 2.0 / 3))},
                    {u"ln(abs(x-0.4))", 0, 1, 0.4 * std::log(0.4) + 0.6 * std::log(0.6) - 1}},
                   1e-7);
}

TEST(ServiceIntegral, JumpsAndCornersSettle) {
  expect_integrals({{u"sgn(x-1/3)", 0, 1, 1.0 / 3},
                    {u"abs(x-1/3)", 0, 1, 5.0 / 18},
                    {u"int(x)", 0, 10, 45},
                    {u"int(7.3*x)", 0, 10, (72 * 73 / 2.0) / 7.3},
                    {u"fix(3*x)", -1, 1, 0}},
                   1e-10);
}

TEST(ServiceIntegral, AboveBelowGivesMinusTheIntegralToTheBit) {
  for (const TextView function : {u"sin(x)", u"x^5-x", u"sqr(abs(x))", u"ln(abs(x-0.4))"}) {
    Service service;
    EXPECT_EQ(service.integral(function, 2, -1), -service.integral(function, -1, 2)) << to_utf8(function);
  }
}

TEST(ServiceIntegral, AnEmptyRangeHasNoArea) {
  EXPECT_EQ(Service{}.integral(u"x^2+1", 3, 3), 0);
  EXPECT_EQ(number_of_fault([] { Service{}.integral(u"1/x", 0, 0); }), division_by_zero);
}

TEST(ServiceIntegral, APoleRaisesWhereverItLies) {
  for (const double pole : {0.5, 0.1, 0.2, 0.3, 0.7, 0.9999, 0.31415, 1.0 / 3, 0.0, 1.0}) {
    const std::u16string shifted = u"(x-(" + NumberToText(pole, Regional{}) + u"))";
    for (const std::u16string& function : {u"1/" + shifted, u"1/" + shifted + u"^2", u"1/" + shifted + u"^3",
                                           u"1/abs" + shifted, u"1E-8/" + shifted + u"+1"}) {
      const auto number = number_of_fault([&] { Service{}.integral(function, 0, 1); });
      EXPECT_EQ(number, division_by_zero) << to_utf8(function);
    }
  }
}

TEST(ServiceIntegral, APoleRaisesWithAnyNumberOfParts) {
  for (const double parts : {1, 2, 3, 7, 50, 199, 200, 201, 1000}) {
    const auto number = number_of_fault([parts] { Service{}.integral(u"1/x", -1, 1, parts); });
    EXPECT_EQ(number, division_by_zero) << parts;
  }
}

TEST(ServiceIntegral, PolesOfFunctionsRaise) {
  struct Range {
    TextView function;
    double from;
    double to;
  };
  for (const Range& row : std::vector<Range>{{u"tan(x)", 0, 3},
                                             {u"sec(x)", 0, 2},
                                             {u"cot(x)", -1, 1},
                                             {u"1/sin(x)", -1, 2},
                                             {u"1/(x^2-2)", 0, 2},
                                             {u"x^(-2)", -1, 1},
                                             {u"pmt(x)", 0, 1},
                                             {u"tan(1000*x)", 0, 10}}) {
    EXPECT_EQ(number_of_fault([&] { Service{}.integral(row.function, row.from, row.to); }), division_by_zero)
        << to_utf8(row.function);
  }
}

TEST(ServiceIntegral, AFaultAtASampleKeepsItsNumber) {
  EXPECT_EQ(number_of_fault([] { Service{}.integral(u"1/(x-x)", 0, 1); }), division_by_zero);
  EXPECT_EQ(number_of_fault([] { Service{}.integral(u"exp(x)", 0, 1000); }), overflow);
  EXPECT_EQ(number_of_fault([] { Service{}.integral(u"sqr(x)", -1, 1); }), invalid_argument);
  EXPECT_EQ(number_of_fault([] { Service{}.integral(u"sin(x)/x", -1, 1, 1); }), overflow);
}

TEST(ServiceIntegral, ARandomFunctionIsNoPole) { EXPECT_NEAR(Service{}.integral(u"rnd(1)", 0, 1), 0.5, 0.1); }

TEST(ServiceIntegral, TheNumberOfPartsIsAWholeNumberInItsLimits) {
  Service service;
  EXPECT_NEAR(service.integral(u"x", 0, 1, 2.5), 0.5, 1e-15);
  EXPECT_NEAR(service.integral(u"x", 0, 1, most_parts), 0.5, 1e-12);
  for (const double parts : {0.0, 0.5, -1.0, most_parts + 1.0}) {
    EXPECT_EQ(number_of_fault([&] { service.integral(u"x", 0, 1, parts); }), invalid_argument) << parts;
  }
  EXPECT_EQ(number_of_fault([&] { service.integral(u"x", 0, 1, 1e10); }), overflow);
}

TEST(ServiceIntegral, ARangeBeyondTheNumbersOverflows) {
  EXPECT_EQ(number_of_fault([] { Service{}.integral(u"1", -1e308, 1e308); }), overflow);
}

TEST(ServiceAverage, IsTheIntegralDividedByTheRange) {
  Service service;
  EXPECT_NEAR(service.average(u"x^2", 0, 3), 3, 1e-13);
  EXPECT_NEAR(service.average(u"sin(x)", 0, pi), 2 / pi, 1e-14);
  EXPECT_NEAR(service.average(u"x", 2, 0), 1, 1e-14);
}

TEST(ServiceAverage, OfAnEmptyRangeOverflows) {
  EXPECT_EQ(number_of_fault([] { Service{}.average(u"x", 1, 1); }), overflow);
}

TEST(ServiceAverage, OfAPoleRaises) {
  EXPECT_EQ(number_of_fault([] { Service{}.average(u"1/x", -1, 1); }), division_by_zero);
}

}  // namespace
}  // namespace tarnmill
