#include <gtest/gtest.h>

#include "calculator/calculator_keys.h"
#include "forms/desk.h"

namespace tarnmill {
namespace {

using Messages = std::vector<std::string>;

struct FunctionRow {
  const char* keys;
  const char16_t* display;
  const char* answer;
};

TEST(FunctionKeys, AnswerAtOnceAndLeaveTheEntryState) {
  const FunctionRow rows[] = {
      {"cmdlog", u"100", "2"},
      {"cmdlog", u"0.5", "-0.301029995663981"},
      {"cmdlog", u"12abc", "1.07918124604762"},
      {"Command3", u"1", "0"},
      {"Command3", u"2", "0.693147180559945"},
      {"cmdOver", u"4", "0.25"},
      {"cmdOver", u"-8", "-0.125"},
      {"cmdfaktor", u"0.", "1"},
      {"cmdfaktor", u"5", "120"},
      {"cmdfaktor", u"7", "5040"},
      {"cmdfaktor", u"2.5", "2"},
      {"cmdfaktor", u"3.5", "24"},
      {"cmdfaktor", u"-0.5", "1"},
      {"cmdfaktor", u"170", "7.25741561530799E+306"},
      {"cmdfaktor", u"170.5", "7.25741561530799E+306"},
      {"cmdconv", u"180", "3.14159265358979"},
      {"cmdconv", u"90", "1.5707963267949"},
      {"cmddeg cmdconv", u"3.14159265358979", "180"},
      {"cmddeg cmdconv", u"1", "57.2957795130824"},
  };
  for (const FunctionRow& row : rows) {
    Calculator calculator;
    calculator.put(row.display);
    calculator.lose_focus();
    calculator.key(row.keys);
    EXPECT_EQ(calculator.display(), row.answer) << row.keys << " " << to_utf8(row.display);
    EXPECT_EQ(calculator.messages(), Messages{}) << row.keys;
    EXPECT_EQ(calculator.focus(), "Readout") << row.keys;
    EXPECT_EQ(calculator.field("LastInput"), "") << row.keys;
    EXPECT_EQ(calculator.field("DecimalFlag"), "0") << row.keys;
    EXPECT_EQ(calculator.field("NumOps"), "0") << row.keys;
  }
}

TEST(FunctionKeys, AnOperatorTakesTheResultAsItsOperand) {
  Calculator calculator;
  calculator.key("9 0 cmdsing + 4 1/x =");
  EXPECT_EQ(calculator.display(), "1.25");
}

TEST(FunctionKeys, ConversionKeepsTheUnit) {
  Calculator calculator;
  calculator.key("9 cmdconv");
  EXPECT_EQ(calculator.form.Check2.Value, 1);
  calculator.radians();
  calculator.key("cmdconv");
  EXPECT_EQ(calculator.form.Check2.Value, 0);
}

TEST(FunctionKeys, LogarithmsTellOfAValueOutsideTheirDomain) {
  for (const char* key : {"cmdlog", "Command3"}) {
    for (const char16_t* outside : {u"0.", u"-1", u"abc"}) {
      Calculator calculator;
      calculator.put(outside);
      calculator.lose_focus();
      calculator.key(key);
      EXPECT_EQ(calculator.messages(), Messages{message("information", "Invalid input.")}) << key;
      EXPECT_EQ(calculator.display(), to_utf8(outside)) << key;
      EXPECT_EQ(calculator.focus(), "Readout") << key;
    }
  }
}

TEST(FunctionKeys, LogarithmsPassOverOtherFailures) {
  for (const char* key : {"cmdlog", "Command3"}) {
    Calculator calculator;
    calculator.put(u"1E+999");
    calculator.lose_focus();
    calculator.key(key);
    EXPECT_EQ(calculator.messages(), Messages{}) << key;
    EXPECT_EQ(calculator.display(), "1E+999") << key;
    EXPECT_EQ(calculator.focus(), "Readout") << key;
  }
}

TEST(FunctionKeys, TheReciprocalOfZeroIsToldAndClearsAll) {
  Calculator calculator;
  calculator.key("5 + 0");
  calculator.lose_focus();
  calculator.key("1/x");
  EXPECT_EQ(calculator.messages(), Messages{message("none", "Divide by zero?!")});
  EXPECT_EQ(calculator.display(), "0.");
  EXPECT_EQ(calculator.field("LastInput"), "NONE");
  EXPECT_EQ(calculator.field("OpFlag"), " ");
  EXPECT_EQ(calculator.field("NumOps"), "0");
  EXPECT_EQ(calculator.focus(), "Readout");
}

struct FactorialRow {
  const char16_t* display;
  const char* text;
};

TEST(FunctionKeys, FactorialsOutOfRangeAreToldAndShowZero) {
  const FactorialRow rows[] = {
      {u"171", "Input value is much to high."},
      {u"170.6", "Input value is much to high."},
      {u"32767", "Input value is much to high."},
      {u"-1", "Input value must be a non-negative integer."},
      {u"-32768", "Input value must be a non-negative integer."},
  };
  for (const FactorialRow& row : rows) {
    Calculator calculator;
    calculator.put(row.display);
    calculator.lose_focus();
    calculator.key("n!");
    EXPECT_EQ(calculator.messages(), Messages{message("critical", row.text)}) << to_utf8(row.display);
    EXPECT_EQ(calculator.display(), "0") << to_utf8(row.display);
    EXPECT_EQ(calculator.focus(), "Readout") << to_utf8(row.display);
  }
}

TEST(FunctionKeys, AFactorialTooGreatForItsWholeNumberIsSilent) {
  for (const char16_t* display : {u"32767.5", u"-32769", u"1E+999"}) {
    Calculator calculator;
    calculator.put(display);
    calculator.lose_focus();
    calculator.key("n!");
    EXPECT_EQ(calculator.messages(), Messages{});
    EXPECT_EQ(calculator.display(), to_utf8(display));
    EXPECT_EQ(calculator.focus(), "Readout");
  }
}

TEST(FunctionKeys, PiIsANumberWithItsPoint) {
  Calculator calculator;
  calculator.lose_focus();
  calculator.key("pi");
  EXPECT_EQ(calculator.display(), "3.14159265358979");
  EXPECT_EQ(calculator.field("LastInput"), "NUMS");
  EXPECT_EQ(calculator.field("DecimalFlag"), "-1");
  EXPECT_EQ(calculator.focus(), "Readout");
  calculator.key("3");
  EXPECT_EQ(calculator.display(), "3.141592653589793");
}

TEST(FunctionKeys, CopyPutsTheDisplayOnTheClipboard) {
  Calculator calculator;
  calculator.desk.set_clipboard_text(u"old");
  calculator.key("12");
  calculator.lose_focus();
  calculator.key("cmdcopy");
  EXPECT_EQ(to_utf8(calculator.desk.clipboard_text()), "12.");
  EXPECT_EQ(calculator.focus(), "Readout");
}

struct CommonDivisorRow {
  std::int16_t a;
  std::int16_t b;
  std::int16_t divisor;
};

TEST(FunctionKeys, TheCommonDivisorIsTheLastRemainder) {
  const CommonDivisorRow rows[] = {
      {12, 18, 6}, {18, 12, 6}, {7, 5, 1}, {0, 5, 5}, {-12, 18, 6}, {12, -8, 4}, {-32768, -1, -1},
  };
  Calculator calculator;
  for (const CommonDivisorRow& row : rows) {
    EXPECT_EQ(calculator.form.greatest_common_divisor(row.a, row.b), row.divisor) << row.a << " " << row.b;
  }
}

TEST(FunctionKeys, ACommonDivisorOfZeroIsADivisionByZero) {
  Calculator calculator;
  try {
    static_cast<void>(calculator.form.greatest_common_divisor(5, 0));
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_TRUE(fault.is(FaultCode::DivisionByZero));
  }
}

TEST(FunctionKeys, ProceduresAreReachedByName) {
  Calculator calculator;
  const std::vector<Variant> five{5};
  const std::vector<Variant> pair{12, 18};
  EXPECT_EQ((*calculator.form.find_procedure("factorial"))(five).to_number({}), 120);
  EXPECT_EQ((*calculator.form.find_procedure("GCD"))(pair).to_number({}), 6);
  EXPECT_NE((*calculator.form.find_procedure("IsOdd"))(five).to_number({}), 0);
}

}  // namespace
}  // namespace tarnmill
