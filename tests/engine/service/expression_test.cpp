#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using testing::fault_of;
using testing::overflow;
using testing::text_of;
using testing::value_of;

struct Row {
  TextView text;
  double value;
};

void expect_values(const std::vector<Row>& rows) {
  for (const auto& [text, value] : rows) {
    EXPECT_DOUBLE_EQ(value_of(text), value) << to_utf8(text);
  }
}

void expect_faults(const std::vector<TextView>& texts, std::int32_t number) {
  for (const TextView text : texts) EXPECT_EQ(fault_of(text), number) << to_utf8(text);
}

TEST(ServiceExpression, OperatorsHaveTheUsualPrecedence) {
  expect_values({{u"2+3*4", 14},
                 {u"2*3+4", 10},
                 {u"8/2/2", 2},
                 {u"2-3-4", -5},
                 {u"2*3^2", 18},
                 {u"(2+3)*4", 20},
                 {u"12/4*3", 9},
                 {u"2-(3-4)", 3}});
}

TEST(ServiceExpression, PowersGroupToTheLeft) {
  expect_values({{u"2^3^2", 64}, {u"2^(3^2)", 512}, {u"2^(1/2)^2", 2}, {u"e^(3)^2", std::exp(6)}});
}

TEST(ServiceExpression, ASignStraightBeforeANumberBelongsToIt) {
  expect_values({{u"((-1^2))", 1},
                 {u"-1^2", 1},
                 {u"2*-1", -2},
                 {u"1--1", 2},
                 {u"2^-1", 0.5},
                 {u"1-+2", -1},
                 {u"+5", 5},
                 {u"-2^2*3", 12},
                 {u"6/-2", -3},
                 {u"2^-1^2", 0.25}});
}

TEST(ServiceExpression, AMinusBehindAnOperandIsAnOperator) {
  expect_values({{u"3-1^2", 2}, {u"(3)-1^2", 2}, {u"pi-1^2", std::numbers::pi - 1}});
}

TEST(ServiceExpression, ASignBeforeABracketOrANameBindsLooserThanAPower) {
  expect_values({{u"-(2)^2", -4},
                 {u"-pi^2", -std::numbers::pi * std::numbers::pi},
                 {u"-sqr(4)^2", -4},
                 {u"2*-(3)^2", -18},
                 {u"2^-(2)", 0.25},
                 {u"2^-(1)^2", 0.5},
                 {u"2^-(2)*8", 2},
                 {u"+(2)", 2},
                 {u"--2", 2},
                 {u"-+-(2)", 2}});
}

TEST(ServiceExpression, AMissingTimesBindsLikeAWrittenOne) {
  expect_values({{u"2(1.5)", 3},
                 {u"2(3)^2", 18},
                 {u"-2(3)", -6},
                 {u"1/2(4)", 2},
                 {u"2^3(4)", 32},
                 {u"(2)(3)(4)", 24},
                 {u"(2)3", 6},
                 {u"2sin((1))", 2 * std::sin(1)},
                 {u"2pi", 2 * std::numbers::pi},
                 {u"pi2", 2 * std::numbers::pi},
                 {u"sqr(4)sqr(9)", 6},
                 {u"1+2(3)", 7},
                 {u"e(1)", std::numbers::e},
                 {u"2e", 2 * std::numbers::e}});
}

TEST(ServiceExpression, WordsWithoutATimesBetweenThemAreReadOneByOne) {
  expect_values({{u"epi", std::numbers::e * std::numbers::pi},
                 {u"pisin(1)", std::numbers::pi * std::sin(1)},
                 {u"ee^(2)", std::numbers::e * std::exp(2)}});
}

TEST(ServiceExpression, BothDecimalSeparatorsAreRead) {
  expect_values({{u"1.5", 1.5}, {u"1,5", 1.5}, {u"1,5+1.5", 3}, {u".5", 0.5}, {u",5", 0.5}, {u"5.", 5}});
}

TEST(ServiceExpression, NumbersMayHaveAnExponent) {
  expect_values({{u"1E+15", 1e15},
                 {u"1.5E-05", 1.5e-5},
                 {u"1,5E-05", 1.5e-5},
                 {u"(-1.5E-05)", -1.5e-5},
                 {u"2E3", 2000},
                 {u"1e-5", 1e-5},
                 {u"1.23456789012346E+15", 1.23456789012346e15},
                 {u"1E-400", 0}});
}

TEST(ServiceExpression, AnEWithoutDigitsBehindItIsTheConstant) {
  expect_values({{u"2e", 2 * std::numbers::e},
                 {u"2E", 2 * std::numbers::e},
                 {u"2e^(2)", 2 * std::exp(2)},
                 {u"2e-(1)", 2 * std::numbers::e - 1},
                 {u"2e+pi", 2 * std::numbers::e + std::numbers::pi}});
}

TEST(ServiceExpression, ANumberBeyondTheRangeOverflows) {
  expect_faults({u"1E400", u"-1E+309", u"Push(1E400)"}, overflow);
}

TEST(ServiceExpression, BlanksAreSkipped) {
  expect_values({{u" 1 + 2 ", 3}, {u"2 (3)", 6}, {u"1 2", 12}, {u"s i n ( 0 )", 0}});
}

TEST(ServiceExpression, WordsCountInAnyCase) {
  expect_values({{u"SQR(4)", 2}, {u"Sqr(4)", 2}, {u"sqR(4)", 2}, {u"E", std::numbers::e}, {u"2Pi-2pI", 0}});
}

TEST(ServiceExpression, ConstantsHaveFullPrecision) {
  EXPECT_EQ(value_of(u"pi"), std::numbers::pi);
  EXPECT_EQ(value_of(u"e"), std::numbers::e);
  EXPECT_EQ(text_of(u"pi"), "3.14159265358979");
  EXPECT_EQ(text_of(u"e"), "2.71828182845905");
}

TEST(ServiceExpression, BrokenTextHasAFaultOfItsOwn) {
  expect_faults({u"",   u" ",   u"()",  u"1+",   u"*2",    u"/2",    u"^2",    u"2**3",  u"2+*3",
                 u"2^", u"-",   u"(",   u"(-)",  u"1.2.3", u"1,2,3", u"1.2,3", u"1E5.2", u".",
                 u",",  u".E5", u"sin", u"sin2", u"sin()", u"sin^2", u"2+sin"},
                statement_fault_number);
}

TEST(ServiceExpression, BracketsMustMatch) {
  expect_faults({u"(1", u"((1)", u"1)", u")", u"(1))", u"sin(1", u"sin(1))", u"(1)+(2", u")("},
                statement_fault_number);
}

TEST(ServiceExpression, UnknownNamesAndCharactersHaveAFaultOfTheirOwn) {
  expect_faults({u"foo(1)", u"sinh(1)", u"dms(2)", u"timer(1)", u"N!(3)", u"y", u"2a", u"1.#INF", u"1#2",
                 u"[1]", u"$", u"1;2", u"1\t+2", u"1\r\n", u"α", u"١", u"sİn(1)"},
                statement_fault_number);
}

TEST(ServiceExpression, ThereIsNoVariableOutsideOfFunctions) {
  expect_faults({u"x", u"2x", u"sin(x)", u"Push(x)", u"X"}, statement_fault_number);
}

TEST(ServiceExpression, TheFaultOfAStatementIsNoneOfArithmetic) {
  for (const int number : {5, 6, 11, 13}) EXPECT_NE(statement_fault_number, number);
}

TEST(ServiceExpression, FaultsSayWhatIsWrong) {
  const auto words = [](TextView statement) {
    try {
      value_of(statement);
    } catch (const Fault& fault) {
      return std::string{fault.what()};
    }
    return std::string{};
  };
  EXPECT_EQ(words(u"2+"), "Wrong syntax");
  EXPECT_EQ(words(u"foo(1)"), "Unknown name");
  EXPECT_EQ(words(u"(1"), "Unmatched brackets");
  EXPECT_EQ(words(u"Avg(x)"), "Too few values on the stack");
}

}  // namespace
}  // namespace tarnmill
