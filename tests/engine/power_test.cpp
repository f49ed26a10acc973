#include "engine/power.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/evaluator.h"
#include "fake_host.h"
#include "fault_expectation.h"

namespace tarnmill {
namespace {

using testing::FakeHost;
using Calls = std::vector<std::string>;

TEST(Power, RaisesToWholeAndFractionalExponents) {
  EXPECT_EQ(Power(-8, 3), -512);
  EXPECT_EQ(Power(2, -1), 0.5);
  EXPECT_EQ(Power(2.25, 0.5), 1.5);
  EXPECT_EQ(Power(0, 0), 1);
  EXPECT_EQ(Power(0, 2), 0);
  EXPECT_EQ(Power(10, -400), 0);
}

TEST(Power, RefusesFractionsOfNegativesAndNegativePowersOfZero) {
  EXPECT_FAULT(Power(-8, 1.0 / 3), InvalidArgument);
  EXPECT_FAULT(Power(0, -1), InvalidArgument);
  EXPECT_FAULT(Power(0, -0.5), InvalidArgument);
}

TEST(Power, OverflowsBeyondTheRange) {
  EXPECT_FAULT(Power(10, 309), Overflow);
  EXPECT_FAULT(Power(-10, 309), Overflow);
}

ExponentHint fraction(TextView numerator, TextView denominator) {
  return {.txtY3 = Text{numerator}, .txtImenilac = Text{denominator}, .lblY3 = u"OK", .lblGot = u"GOT"};
}

// What is evaluated with which fractions in the two windows, and what must come of it.
struct HintRow {
  std::string behaviour;
  ExponentHint graph;
  ExponentHint keypad;
  Text text;
  double value;
  int error;
  Calls calls;
};

const ExponentHint none{};
const Calls both_read{"graph_hint", "keypad_hint"};
const Calls graph_read{"graph_hint"};

void expect_hints(const std::vector<HintRow>& rows) {
  for (const HintRow& row : rows) {
    FakeHost host;
    host.graph = row.graph;
    host.keypad = row.keypad;
    Evaluator evaluator{host};
    EXPECT_DOUBLE_EQ(evaluator.Evaluate(row.text, true), row.value) << row.behaviour;
    EXPECT_EQ(evaluator.error(), row.error) << row.behaviour;
    EXPECT_EQ(host.calls, row.calls) << row.behaviour;
  }
}

TEST(HintedPower, WithoutHintsIsThePlainPower) {
  expect_hints({
      {"a positive base", none, none, u"8^(1/3)", 2, 0, both_read},
      {"a whole exponent of a negative base", none, none, u"(-8)^3", -512, 0, both_read},
      {"a negative base faults before the keypad is read", none, none, u"(-8)^(1/3)", 0, 16, graph_read},
      {"each power reads both hints once",
       none,
       none,
       u"2^2+3^2",
       13,
       0,
       {"graph_hint", "keypad_hint", "graph_hint", "keypad_hint"}},
  });
}

TEST(HintedPower, OneWindowAloneDoesNotHelpANegativeBase) {
  const ExponentHint third = fraction(u"1", u"3");
  expect_hints({
      {"the graph alone", third, none, u"(-8)^(1/3)", 0, 16, both_read},
      {"the keypad alone", none, third, u"(-8)^(1/3)", 0, 16, graph_read},
      {"both", third, third, u"(-8)^(1/3)", -2, 0, both_read},
  });
}

TEST(HintedPower, TheSignFollowsTheParityOfTheKeypadsFraction) {
  const ExponentHint third = fraction(u"1", u"3");
  expect_hints({
      {"odd over odd keeps the sign", third, third, u"(-8)^(1/3)", -2, 0, both_read},
      {"odd over even drops it", third, fraction(u"3", u"4"), u"(-16)^(3/4)", 8, 0, both_read},
      {"even over odd faults", third, fraction(u"2", u"3"), u"(-8)^(2/3)", 0, 16, both_read},
      {"the last digits decide", third, fraction(u"11", u"23"), u"(-1024)^(1/2)", -32, 0, both_read},
      {"the keypad's outcome replaces the graph's", fraction(u"1", u"2"), third, u"(-8)^(1/3)", -2, 0,
       both_read},
      {"a positive base is plain", third, third, u"8^(1/3)", 2, 0, both_read},
      {"an exponent of 0 is plain", third, third, u"(-8)^0", 1, 0, both_read},
      {"a base of -1 is plain and faults", third, third, u"(-1)^(1/3)", 0, 16, graph_read},
      {"a base of -1 with a whole exponent", third, third, u"(-1)^3", -1, 0, both_read},
      {"an even whole exponent is given a sign", third, third, u"(-8)^2", -64, 0, both_read},
  });
}

TEST(HintedPower, TheGraphsFractionMayFaultFirst) {
  const ExponentHint third = fraction(u"1", u"3");
  expect_hints({
      {"even over odd", fraction(u"2", u"3"), third, u"(-8)^(1/3)", 0, 16, graph_read},
      {"equal odd ends", fraction(u"13", u"3"), third, u"(-8)^(1/3)", 0, 16, graph_read},
      {"equal odd ends, positive base", fraction(u"13", u"3"), third, u"8^(1/3)", 2, 0, both_read},
      {"odd over even passes", fraction(u"1", u"2"), third, u"(-8)^(1/3)", -2, 0, both_read},
  });
}

TEST(HintedPower, TwoDifferentEvenEndsAreASymbolsError) {
  const ExponentHint evens = fraction(u"2", u"4");
  expect_hints({
      {"on the graph", evens, none, u"4^(1/2)", 2, 4, both_read},
      {"on the keypad", none, evens, u"4^(1/2)", 2, 4, both_read},
      {"equal even ends are no error", fraction(u"12", u"2"), fraction(u"2", u"12"), u"4^(1/2)", 2, 0,
       both_read},
      {"a fault replaces it", evens, none, u"(-4)^(1/2)", 0, 16, graph_read},
  });
}

TEST(HintedPower, AnEvenOverOddGraphFractionOfABaseBelowOneAsksForThePlainColour) {
  const ExponentHint two_thirds = fraction(u"2", u"3");
  expect_hints({
      {"between 0 and 1", two_thirds, none, u"0.125^(2/3)", 0.25, 0, {"graph_hint", "Boje3", "keypad_hint"}},
      {"at 0", two_thirds, none, u"0^(2/3)", 0, 0, both_read},
      {"at 1", two_thirds, none, u"1^(2/3)", 1, 0, both_read},
      {"odd over odd", fraction(u"1", u"3"), none, u"0.125^(1/3)", 0.5, 0, both_read},
      {"even over even", fraction(u"2", u"12"), none, u"0.25^(1/2)", 0.5, 0, both_read},
      {"the keypad does not ask", none, two_thirds, u"0.125^(2/3)", 0.25, 0, both_read},
      {"a fault comes first", two_thirds, none, u"0.1^(-400)", 0, 16, graph_read},
  });
}

TEST(HintedPower, AHintCountsOnlyWhenAllItsFieldsAgree) {
  const ExponentHint third = fraction(u"1", u"3");
  ExponentHint not_ok = third;
  not_ok.lblY3 = u"";
  ExponentHint not_got = third;
  not_got.lblGot = u"";
  expect_hints({
      {"numerator and denominator alike", third, fraction(u"3", u"3"), u"(-8)^(1/3)", 0, 16, both_read},
      {"no numerator", third, fraction(u"", u"3"), u"(-8)^(1/3)", 0, 16, both_read},
      {"no denominator", third, fraction(u"1", u""), u"(-8)^(1/3)", 0, 16, both_read},
      {"a numerator that ends in no digit", third, fraction(u"1.", u"3"), u"(-8)^(1/3)", 0, 16, both_read},
      {"a denominator that ends in no digit", third, fraction(u"1", u"3K"), u"(-8)^(1/3)", 0, 16, both_read},
      {"caption not OK on the keypad", third, not_ok, u"(-8)^(1/3)", 0, 16, both_read},
      {"caption not OK on the graph", not_ok, third, u"(-8)^(1/3)", 0, 16, graph_read},
      {"the keypad has not taken it over", third, not_got, u"(-8)^(1/3)", 0, 16, both_read},
      {"the graph needs no taking over", not_got, third, u"(-8)^(1/3)", -2, 0, both_read},
  });
}

TEST(HintedPower, TheRuleRunsEvenBehindAFailedOperand) {
  expect_hints({{"an unknown exponent", none, none, u"2^X", 1, 2, both_read}});
}

}  // namespace
}  // namespace tarnmill
