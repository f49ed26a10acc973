#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using testing::division_by_zero;
using testing::fault_of;
using testing::number_of_fault;
using testing::Service;

TEST(ServiceStatement, TheFormulaStartsEmptyAndIsKeptAsGiven) {
  Service service;
  EXPECT_EQ(service.evaluator.formula(), u"");
  service.run(u" 1 + 1 ");
  EXPECT_EQ(service.evaluator.formula(), u" 1 + 1 ");
}

TEST(ServiceStatement, ResultMayBeReadAgain) {
  Service service;
  service.run(u"rnd(1)");
  const double first = service.evaluator.Result();
  EXPECT_EQ(service.evaluator.Result(), first);
}

TEST(ServiceStatement, PushTakesANumberOrAnExpression) {
  Service service;
  EXPECT_EQ(service.run(u"Push(2)"), 2);
  EXPECT_EQ(service.run(u"Push(2*(3+1))"), 8);
  EXPECT_EQ(service.run(u"Push(-1,5)"), -1.5);
  EXPECT_DOUBLE_EQ(service.run(u"Avg(x)"), 3.25);
}

TEST(ServiceStatement, StatementsCountInAnyCaseAndWithBlanks) {
  Service service;
  service.run(u"PUSH(0)");
  service.run(u" push ( 2 ) ");
  EXPECT_DOUBLE_EQ(service.run(u"avg(x)"), 1);
  service.run(u"Push(3)");
  EXPECT_NEAR(service.run(u"DIFF(x^2)"), 6, 1e-12);
  service.run(u"popall()");
}

TEST(ServiceStatement, IntegralTakesPartsAndLimits) {
  Service service;
  service.run(u"Push(200)");
  service.run(u"Push(0)");
  service.run(u"Push(1)");
  EXPECT_NEAR(service.run(u"Intg(x^2)"), 1.0 / 3, 1e-15);
  service.run(u"PopAll()");
}

TEST(ServiceStatement, TheIntegralTakesItsThreeValues) {
  Service service;
  service.integral(u"x", 0, 1);
  EXPECT_EQ(number_of_fault([&] { service.run(u"diff(x)"); }), statement_fault_number);
}

TEST(ServiceStatement, TheAverageTakesItsTwoValues) {
  Service service;
  EXPECT_DOUBLE_EQ(service.average(u"x", 0, 2), 1);
  EXPECT_DOUBLE_EQ(service.average(u"x", 0, 2), 1);
  EXPECT_EQ(number_of_fault([&] { service.run(u"diff(x)"); }), statement_fault_number);
}

TEST(ServiceStatement, TheDerivativeTakesThePointAlone) {
  Service service;
  service.run(u"Push(2000)");
  EXPECT_NEAR(service.derivative(u"x^2", 3), 6, 1e-12);
  EXPECT_NEAR(service.run(u"diff(x^2)"), 4000, 1e-8);
  EXPECT_EQ(number_of_fault([&] { service.run(u"diff(x)"); }), statement_fault_number);
}

TEST(ServiceStatement, AThousandDerivativesLeaveTheStackAsItWas) {
  Service service;
  for (int i = 0; i < 1000; ++i) service.derivative(u"x^2", i * 0.001);
  EXPECT_EQ(number_of_fault([&] { service.run(u"diff(x)"); }), statement_fault_number);
}

TEST(ServiceStatement, PopAllEmptiesTheStackAndKeepsTheResult) {
  Service service;
  service.run(u"Push(1)");
  service.run(u"Push(2)");
  EXPECT_EQ(service.run(u"PopAll()"), 2);
  EXPECT_EQ(number_of_fault([&] { service.run(u"Avg(x)"); }), statement_fault_number);
  EXPECT_EQ(number_of_fault([&] { service.run(u"PopAll()"); }), 0);
}

TEST(ServiceStatement, TooFewValuesAreAFaultAndStay) {
  Service service;
  service.run(u"Push(1)");
  EXPECT_EQ(number_of_fault([&] { service.run(u"Avg(x)"); }), statement_fault_number);
  service.run(u"Push(3)");
  EXPECT_EQ(number_of_fault([&] { service.run(u"Intg(x)"); }), statement_fault_number);
  EXPECT_DOUBLE_EQ(service.run(u"Avg(x)"), 2);
}

TEST(ServiceStatement, AFailedStatementHasTakenItsValues) {
  Service service;
  service.run(u"Push(7)");
  EXPECT_EQ(number_of_fault([&] { service.derivative(u"1/x", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([&] { service.derivative(u"foo(x)", 0); }), statement_fault_number);
  EXPECT_NEAR(service.run(u"diff(x^2)"), 14, 1e-10);
}

TEST(ServiceStatement, AFailedPushPushesNothing) {
  Service service;
  EXPECT_EQ(number_of_fault([&] { service.run(u"Push(1/0)"); }), division_by_zero);
  EXPECT_EQ(number_of_fault([&] { service.run(u"diff(x)"); }), statement_fault_number);
}

TEST(ServiceStatement, InstancesShareNoStack) {
  Service one;
  Service other;
  one.run(u"Push(1)");
  EXPECT_EQ(number_of_fault([&] { other.run(u"diff(x)"); }), statement_fault_number);
}

TEST(ServiceStatement, BrokenStatementsHaveAFaultOfTheirOwn) {
  for (const TextView text :
       {u"Push()", u"Push(", u"Push(1", u"Push(1))", u"Push(1)+Push(2)", u"Push(1)2", u"Intg()", u"PopAll",
        u"PopAll(", u"PopAll(1)", u"Push", u"Push1", u"diff x", u"1+Push(1)", u"Push(Push(1))", u"Avg(x"}) {
    EXPECT_EQ(fault_of(text), statement_fault_number) << to_utf8(text);
  }
}

TEST(ServiceStatement, BrokenFunctionsHaveAFaultOfTheirOwn) {
  for (const TextView function : {u"", u"foo(x)", u"(x", u"x)", u"x+", u"y"}) {
    Service service;
    EXPECT_EQ(number_of_fault([&] { service.integral(function, 0, 1); }), statement_fault_number);
    EXPECT_EQ(number_of_fault([&] { service.average(function, 0, 1); }), statement_fault_number);
    EXPECT_EQ(number_of_fault([&] { service.derivative(function, 1); }), statement_fault_number);
  }
}

TEST(ServiceStatement, DeepNestingIsNoDanger) {
  constexpr std::size_t depth = 100'000;
  const Text brackets = Text(depth, u'(') + u"7" + Text(depth, u')');
  EXPECT_EQ(testing::value_of(brackets), 7);
  EXPECT_EQ(fault_of(Text(depth, u'(')), statement_fault_number);
  EXPECT_EQ(fault_of(Text(depth, u'(') + u"7"), statement_fault_number);
  EXPECT_EQ(testing::value_of(Text(depth, u'-') + u"(7)"), 7);
  Text calls;
  Text powers;
  for (std::size_t i = 0; i < depth; ++i) {
    calls += u"abs(";
    powers += u"1^";
  }
  EXPECT_EQ(testing::value_of(calls + u"7" + Text(depth, u')')), 7);
  EXPECT_EQ(testing::value_of(powers + u"1"), 1);
}

}  // namespace
}  // namespace tarnmill
