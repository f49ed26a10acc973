#include "engine/evaluator.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "fake_host.h"
#include "fault_expectation.h"

namespace tarnmill {
namespace {

using testing::FakeHost;
using Calls = std::vector<std::string>;

const std::string long_message =
    "critical|Error|Can't evaluate.\r\nProbable reasons are:\r\n- Invalid input\r\n"
    "- Function is undefined for this argument.\r\n"
    "- In this form, function is undefined for negative argument.\r\n"
    "Try to use PREDEFINED functions, or draw function first.";
const std::string undefined_message = "information|Tarnmill|Undefined.";

class EvaluatorTest : public ::testing::Test {
 protected:
  FakeHost host;
  Evaluator evaluator{host};
};

TEST_F(EvaluatorTest, StartsEmptyWithoutError) {
  EXPECT_EQ(evaluator.Expression(), u"");
  EXPECT_EQ(evaluator.error(), 0);
  EXPECT_FALSE(evaluator.Assigned());
}

TEST_F(EvaluatorTest, PreparesTheTextItIsGiven) {
  evaluator.Expression(u" sin ( 1.5 ) + 2,5 ");
  EXPECT_EQ(evaluator.Expression(), u"SIN(1,5)+2,5");
}

TEST_F(EvaluatorTest, KeepsATab) {
  evaluator.Expression(u"1\t+ 1");
  EXPECT_EQ(evaluator.Expression(), u"1\t+1");
  evaluator.Result();
  EXPECT_EQ(evaluator.error(), 4);
}

TEST_F(EvaluatorTest, SettingTheTextEvaluatesNothing) {
  evaluator.Expression(u"1/0");
  EXPECT_EQ(evaluator.error(), 0);
}

TEST_F(EvaluatorTest, TakesPointAndCommaAlike) {
  EXPECT_EQ(evaluator.Evaluate(u"1.5", true), 1.5);
  EXPECT_EQ(evaluator.Evaluate(u"1,5", true), 1.5);
  host.settings.decimal_separator = u',';
  EXPECT_EQ(evaluator.Evaluate(u"1.5+1,5", true), 3);
}

TEST_F(EvaluatorTest, ResultEvaluatesAnewOnEveryRead) {
  evaluator.Expression(u"TIMER(0)");
  host.seconds = 1.5F;
  EXPECT_EQ(evaluator.Result(), 1.5);
  host.seconds = 2.5F;
  EXPECT_EQ(evaluator.Result(), 2.5);
  EXPECT_TRUE(evaluator.Assigned());
}

TEST_F(EvaluatorTest, RandomNumbersDifferFromReadToRead) {
  evaluator.Expression(u"RND(1)");
  const double first = evaluator.Result();
  EXPECT_NE(evaluator.Result(), first);
}

TEST_F(EvaluatorTest, AFailureKeepsTheTextAndClearsAssigned) {
  EXPECT_EQ(evaluator.Evaluate(u"1", true), 1);
  EXPECT_TRUE(evaluator.Assigned());
  EXPECT_EQ(evaluator.Evaluate(u"1/0", true), 0);
  EXPECT_EQ(evaluator.error(), 16);
  EXPECT_FALSE(evaluator.Assigned());
  EXPECT_EQ(evaluator.Expression(), u"1/0");
}

TEST_F(EvaluatorTest, ReadingTheResultClearsTheFormerError) {
  evaluator.Evaluate(u"1/0", true);
  evaluator.Evaluate(u"7", true);
  EXPECT_EQ(evaluator.error(), 0);
}

struct Reported {
  Text text;
  int error;
  std::string message;
};

const std::vector<Reported> failures{
    {.text = u")", .error = 8, .message = "critical|Error|Check bracket placement!"},
    {.text = u"1)", .error = 8, .message = "critical|Error|Check bracket placement!"},
    {.text = u"(1", .error = 4, .message = "critical|Error|Check symbols placement!"},
    {.text = u"(1+2", .error = 2, .message = "critical|Error|Check syntax!"},
    {.text = u"", .error = 2, .message = "critical|Error|Check syntax!"},
    {.text = u"1.2.3", .error = 4, .message = "critical|Error|Check symbols placement!"},
    {.text = u"X+1", .error = 2, .message = "critical|Error|Check syntax!"},
    {.text = u"SQR(-1)", .error = 16, .message = long_message},
    {.text = u"1/0", .error = 16, .message = long_message},
    {.text = u"LN(0)", .error = 16, .message = long_message},
    {.text = u"QVR(-1)", .error = 16, .message = long_message},
};

TEST_F(EvaluatorTest, TellsEveryFailureInItsWordsAndNoMore) {
  host.keypad_is_visible = true;
  for (const Reported& row : failures) {
    host.calls.clear();
    evaluator.Evaluate(row.text, false);
    EXPECT_EQ(evaluator.error(), row.error) << to_utf8(row.text);
    EXPECT_EQ(host.calls, Calls{row.message}) << to_utf8(row.text);
  }
}

TEST_F(EvaluatorTest, IsSilentWhenAsked) {
  host.keypad_is_visible = true;
  for (const Reported& row : failures) evaluator.Evaluate(row.text, true);
  evaluator.Evaluate(u"1+1", true);
  EXPECT_EQ(host.calls, Calls{});
}

TEST_F(EvaluatorTest, PutsTheResultOnAVisibleKeypad) {
  host.keypad_is_visible = true;
  EXPECT_EQ(evaluator.Evaluate(u"1+1", false), 2);
  EXPECT_EQ(host.calls, Calls{"result|2"});
}

TEST_F(EvaluatorTest, WritesTheResultWithTheRegionalSeparator) {
  host.keypad_is_visible = true;
  host.settings.decimal_separator = u',';
  evaluator.Evaluate(u"1/4", false);
  EXPECT_EQ(host.calls, Calls{"result|0,25"});
}

TEST_F(EvaluatorTest, ShowsNothingWhenTheKeypadIsHidden) {
  EXPECT_EQ(evaluator.Evaluate(u"1+1", false), 2);
  EXPECT_EQ(host.calls, Calls{});
}

TEST_F(EvaluatorTest, AHundredIsUndefinedEvenWhenItIsASum) {
  host.keypad_is_visible = true;
  EXPECT_EQ(evaluator.Evaluate(u"50+50", false), 100);
  EXPECT_EQ(host.calls, Calls{undefined_message});
  EXPECT_EQ(evaluator.error(), 0);
  EXPECT_TRUE(evaluator.Assigned());
}

TEST_F(EvaluatorTest, ASilentHundredIsAPlainValue) {
  EXPECT_EQ(evaluator.Evaluate(u"50+50", true), 100);
  EXPECT_EQ(evaluator.error(), 0);
  EXPECT_EQ(host.calls, Calls{});
}

TEST_F(EvaluatorTest, AnUndefinedInverseSecantAnswersUndefined) {
  EXPECT_EQ(evaluator.Evaluate(u"ARCSEC(0.5)", false), 100);
  EXPECT_EQ(host.calls, (Calls{"Boje2", undefined_message}));
}

TEST_F(EvaluatorTest, AnExceptionThatIsNoFaultPassesThroughAndHarmsNothing) {
  class EndingHost : public FakeHost {
   public:
    void Boje2() override { throw std::runtime_error{"ended"}; }
  };
  EndingHost ending;
  Evaluator other{ending};
  EXPECT_THROW(other.Evaluate(u"1+(2*ARCSEC(0))", false), std::runtime_error);
  EXPECT_EQ(other.Evaluate(u"1+(2*3)", true), 7);
}

TEST_F(EvaluatorTest, AFaultInACallToTheGraphLeavesTheMarkerStanding) {
  class FaultyHost : public FakeHost {
   public:
    void Boje2() override { throw Fault{FaultCode::TypeMismatch}; }
    void Boje3() override { throw Fault{FaultCode::TypeMismatch}; }
  };
  FaultyHost faulty;
  Evaluator other{faulty};
  EXPECT_EQ(other.Evaluate(u"ARCSEC(0)", true), 100);
  EXPECT_EQ(other.error(), 16);
  EXPECT_NE(other.Evaluate(u"ARCSEC(2)", true), 0);
  EXPECT_EQ(other.error(), 16);
}

TEST(ReplaceText, SearchesFromTheStartAfterEachReplacement) {
  EXPECT_EQ(Evaluator::ReplaceText(u"K+K^2", u"K", u"(3)"), u"(3)+(3)^2");
  EXPECT_EQ(Evaluator::ReplaceText(u"aabb", u"ab", u""), u"");
  EXPECT_EQ(Evaluator::ReplaceText(u"aab", u"ab", u"ba"), u"baa");
  EXPECT_EQ(Evaluator::ReplaceText(u"aaaa", u"aa", u"a"), u"a");
}

TEST(ReplaceText, GivesTheEmptyTextForAnEmptyOrIdleFind) {
  EXPECT_EQ(Evaluator::ReplaceText(u"abc", u"", u"x"), u"");
  EXPECT_EQ(Evaluator::ReplaceText(u"abc", u"b", u"b"), u"");
}

TEST(ReplaceText, OverflowsWhenTheReplacementHoldsWhatIsLookedFor) {
  EXPECT_FAULT(Evaluator::ReplaceText(u"x", u"x", u"(x)"), Overflow);
  EXPECT_EQ(Evaluator::ReplaceText(u"y", u"x", u"(x)"), u"y");
}

TEST(ReplaceText, OverflowsAtAPositionBeyond32767) {
  EXPECT_EQ(Evaluator::ReplaceText(Text(32766, u'a') + u"x", u"x", u"y"), Text(32766, u'a') + u"y");
  EXPECT_FAULT(Evaluator::ReplaceText(Text(32767, u'a') + u"x", u"x", u"y"), Overflow);
  EXPECT_EQ(Evaluator::ReplaceText(Text(40000, u'a'), u"x", u"y"), Text(40000, u'a'));
}

TEST_F(EvaluatorTest, ParityIsReadFromTheLastDigit) {
  EXPECT_TRUE(evaluator.IsItOdd(u"3"));
  EXPECT_TRUE(evaluator.IsItOdd(u"28/5"));
  EXPECT_FALSE(evaluator.IsItOdd(u"3.0"));
  EXPECT_FALSE(evaluator.IsItOdd(u"12"));
  EXPECT_FAULT(evaluator.IsItOdd(u"3x"), TypeMismatch);
  EXPECT_FAULT(evaluator.IsItOdd(u"3."), TypeMismatch);
  EXPECT_FAULT(evaluator.IsItOdd(u""), TypeMismatch);
}

TEST(MidMbcs, CountsBytesOfTheCodePage) {
  EXPECT_EQ(Evaluator::MidMbcs(u"abcdef", 2, 3), u"bcd");
  EXPECT_EQ(Evaluator::MidMbcs(u"abc", 2, 100), u"bc");
  EXPECT_EQ(Evaluator::MidMbcs(u"abc", 4, 1), u"");
  EXPECT_EQ(Evaluator::MidMbcs(u"abc", 1, 0), u"");
  EXPECT_EQ(Evaluator::MidMbcs(u"\u20AC\u00FC\u0416\U0001F600z", 1, 6), u"\u20AC\u00FC???z");
}

TEST(MidMbcs, RefusesAStartBelowOneAndANegativeLength) {
  EXPECT_FAULT(Evaluator::MidMbcs(u"abc", 0, 1), InvalidArgument);
  EXPECT_FAULT(Evaluator::MidMbcs(u"abc", 1, -1), InvalidArgument);
}

TEST(Factorial2, MultipliesUpTo170) {
  EXPECT_EQ(Evaluator::factorial2(0), 1);
  EXPECT_EQ(Evaluator::factorial2(1), 1);
  EXPECT_EQ(Evaluator::factorial2(5), 120);
  EXPECT_DOUBLE_EQ(Evaluator::factorial2(170), 7.257415615307994e306);
}

TEST(Factorial2, OverflowsAboveAndBelow) {
  EXPECT_FAULT(Evaluator::factorial2(171), Overflow);
  EXPECT_FAULT(Evaluator::factorial2(32767), Overflow);
  EXPECT_FAULT(Evaluator::factorial2(-1), Overflow);
}

}  // namespace
}  // namespace tarnmill
