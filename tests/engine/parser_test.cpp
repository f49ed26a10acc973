#include "engine/parser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/evaluator.h"
#include "fake_host.h"

namespace tarnmill {
namespace {

using testing::FakeHost;

struct Outcome {
  Text text;
  double value;
  int error;
};

void expect_outcomes(const std::vector<Outcome>& rows) {
  FakeHost host;
  Evaluator evaluator{host};
  for (const Outcome& row : rows) {
    EXPECT_EQ(evaluator.Evaluate(row.text, true), row.value) << to_utf8(row.text);
    EXPECT_EQ(evaluator.error(), row.error) << to_utf8(row.text);
  }
}

TEST(Parser, KeepsThePrecedenceAndTheOrderOfOperations) {
  expect_outcomes({
      {.text = u"2+3*4", .value = 14, .error = 0},
      {.text = u"2*3+4", .value = 10, .error = 0},
      {.text = u"8/2/2", .value = 2, .error = 0},
      {.text = u"2-3-4", .value = -5, .error = 0},
      {.text = u"8/4*2", .value = 4, .error = 0},
      {.text = u"2*3^2", .value = 18, .error = 0},
      {.text = u"(2+3)*4", .value = 20, .error = 0},
      {.text = u"((2+3))*(4-1)", .value = 15, .error = 0},
      {.text = u"10-(2-(3-4))", .value = 7, .error = 0},
  });
}

TEST(Parser, BindsTheSignLooserThanThePower) {
  expect_outcomes({
      {.text = u"-2^2", .value = -4, .error = 0},
      {.text = u"(-2)^2", .value = 4, .error = 0},
      {.text = u"-(2)", .value = -2, .error = 0},
      {.text = u"-SGN(5)", .value = -1, .error = 0},
      {.text = u"+5", .value = 5, .error = 0},
      {.text = u"3-2^2", .value = -1, .error = 0},
      {.text = u"2^(-1)", .value = 0.5, .error = 0},
      {.text = u"2*(-3)", .value = -6, .error = 0},
      {.text = u"4^SGN(7)", .value = 4, .error = 0},
      {.text = u"BIN(2)^BIN(1)", .value = 4, .error = 0},
  });
}

TEST(Parser, StartsFromZeroBeforeALeadingOperator) {
  expect_outcomes({
      {.text = u"*5", .value = 0, .error = 0},
      {.text = u"/5", .value = 0, .error = 0},
      {.text = u"*5*3", .value = 0, .error = 0},
      {.text = u"/0", .value = 0, .error = 16},
      {.text = u"(*5)+1", .value = 1, .error = 0},
  });
}

TEST(Parser, ReadsNumbersThatStartWithADigit) {
  expect_outcomes({
      {.text = u"5.", .value = 5, .error = 0},
      {.text = u"0,25", .value = 0.25, .error = 0},
      {.text = u"007", .value = 7, .error = 0},
      {.text = u"123456789.125", .value = 123456789.125, .error = 0},
      {.text = u",5", .value = 0, .error = 2},
      {.text = u".5", .value = 0, .error = 2},
      {.text = u"1E5", .value = 0, .error = 4},
      {.text = u"1.2.3", .value = 0, .error = 4},
      {.text = u"1.2.", .value = 0, .error = 4},
      {.text = u"5^1.0.", .value = 5, .error = 2},
  });
}

TEST(Parser, ANumberBeyondTheRangeIsAnArithmeticFault) {
  expect_outcomes({{.text = Text(400, u'9'), .value = 0, .error = 16}});
}

TEST(Parser, ChainsNoPowers) {
  expect_outcomes({
      {.text = u"2^3^2", .value = 8, .error = 2},
      {.text = u"2^-1", .value = 1, .error = 2},
      {.text = u"2^", .value = 1, .error = 2},
      {.text = u"^2", .value = 0, .error = 2},
      {.text = u"(2^3)^2", .value = 64, .error = 0},
  });
}

TEST(Parser, TakesNoSignBehindAnOperator) {
  expect_outcomes({
      {.text = u"2*-3", .value = 0, .error = 2},
      {.text = u"--2", .value = 0, .error = 2},
      {.text = u"1++2", .value = 1, .error = 2},
      {.text = u"2**3", .value = 0, .error = 2},
      {.text = u"-", .value = 0, .error = 2},
      {.text = u"1+", .value = 1, .error = 2},
      {.text = u"5-", .value = 5, .error = 2},
  });
}

TEST(Parser, MultipliesNothingThatIsOnlyImplied) {
  expect_outcomes({
      {.text = u"2(3)", .value = 0, .error = 2},
      {.text = u"(2)(3)", .value = 0, .error = 2},
      {.text = u"(2)3", .value = 0, .error = 4},
      {.text = u"(2)(", .value = 0, .error = 4},
      {.text = u"SIN(1)COS(2)", .value = 0, .error = 4},
      {.text = u"2SIN(1)", .value = 0, .error = 4},
      {.text = u"2X", .value = 0, .error = 4},
  });
}

TEST(Parser, ReplacesTheCodeOfAnUnclosedBracket) {
  expect_outcomes({
      {.text = u"(1", .value = 0, .error = 4},
      {.text = u"(1+2", .value = 0, .error = 2},
      {.text = u"(", .value = 0, .error = 4},
      {.text = u"SIN(1", .value = 0, .error = 4},
      {.text = u"SIN(", .value = 0, .error = 4},
      {.text = u"2^(1", .value = 1, .error = 2},
      {.text = u"2*(3", .value = 0, .error = 4},
      {.text = u"(SIN(1)", .value = 0, .error = 4},
  });
}

TEST(Parser, TellsABracketThatClosesNothing) {
  expect_outcomes({
      {.text = u")", .value = 0, .error = 8},
      {.text = u"1)", .value = 0, .error = 8},
      {.text = u"1+2)", .value = 0, .error = 8},
      {.text = u")(", .value = 0, .error = 8},
      {.text = u"SIN(1))", .value = 0, .error = 8},
  });
}

TEST(Parser, SeesAStrayBracketBeforeItEvaluatesAnything) {
  FakeHost host;
  Evaluator evaluator{host};
  evaluator.Evaluate(u"ARCSEC(0)+1)", true);
  EXPECT_EQ(evaluator.error(), 8);
  EXPECT_TRUE(host.calls.empty());
}

TEST(Parser, WantsAnArgumentForEveryFunction) {
  expect_outcomes({
      {.text = u"", .value = 0, .error = 2},
      {.text = u"()", .value = 0, .error = 2},
      {.text = u"SIN()", .value = 0, .error = 2},
      {.text = u"PI()", .value = 3.141592653589793, .error = 2},
      {.text = u"PI", .value = 0, .error = 2},
      {.text = u"SIN", .value = 0, .error = 2},
      {.text = u"FOO(1)", .value = 0, .error = 2},
      {.text = u"SIN2(1)", .value = 0, .error = 2},
      {.text = u"X", .value = 0, .error = 2},
      {.text = u"X+1", .value = 0, .error = 2},
      {.text = u"1+X", .value = 1, .error = 2},
  });
}

TEST(Parser, ALaterFaultReplacesAnEarlierCode) {
  expect_outcomes({
      {.text = u"LN(X)", .value = 0, .error = 16},
      {.text = u"1/X", .value = 0, .error = 16},
      {.text = u"FOO(1/0)", .value = 0, .error = 2},
      {.text = u"SQR(X)", .value = 0, .error = 2},
      {.text = u"COS(X)", .value = 1, .error = 2},
  });
}

TEST(Parser, ARefusedFactorLeavesTheOperatorBeforeIt) {
  expect_outcomes({
      {.text = u"X/2", .value = 0, .error = 2},
      {.text = u"1*X/2", .value = 0, .error = 2},
      {.text = u"8/(2)3*2", .value = 0, .error = 16},
      {.text = u"6/FOO(1)*2", .value = 0, .error = 16},
  });
}

TEST(Parser, AQuotientThatFailedBeforeGoesOnToDivide) {
  FakeHost host;
  host.graph = {.txtY3 = u"2", .txtImenilac = u"4", .lblY3 = u"OK", .lblGot = u""};
  Evaluator evaluator{host};
  EXPECT_EQ(evaluator.Evaluate(u"6/2^1", true), 3);
  EXPECT_EQ(evaluator.error(), 4);
  EXPECT_EQ(evaluator.Evaluate(u"6/2^1*5", true), 0);
  EXPECT_EQ(evaluator.error(), 16);
}

TEST(Parser, ASumBeyondTheRangeIsAnArithmeticFault) {
  const Text sum = u"1" + Text(308, u'0') + u"+1" + Text(308, u'0');
  expect_outcomes({
      {.text = sum, .value = 0, .error = 16},
      {.text = u"1+(" + sum + u")", .value = 1, .error = 16},
      {.text = u"ATN(" + sum + u")", .value = 0, .error = 16},
  });
}

TEST(Parser, ATextBeyond32767CharactersIsAnArithmeticFault) {
  expect_outcomes({
      {.text = Text(32766, u'0') + u"7", .value = 7, .error = 0},
      {.text = Text(32767, u'0') + u"7", .value = 0, .error = 16},
  });
}

Text nested(std::size_t levels) { return Text(levels, u'(') + u"5" + Text(levels, u')'); }

TEST(Parser, ReadsDeepBrackets) { expect_outcomes({{.text = nested(900), .value = 5, .error = 0}}); }

TEST(Parser, BracketsDeeperThanItsStackAreAnArithmeticFault) {
  Text opened;
  for (int i = 0; i < 5000; ++i) opened += u"ABS(";
  expect_outcomes({
      {.text = nested(16000), .value = 0, .error = 16},
      {.text = opened + u"5" + Text(5000, u')'), .value = 0, .error = 16},
      {.text = u"1+1", .value = 2, .error = 0},
  });
}

TEST(Parser, EndlessOpenBracketsAreToldWithoutAnyDepth) {
  expect_outcomes({{.text = Text(32000, u'('), .value = 0, .error = 2}});
}

}  // namespace
}  // namespace tarnmill
