#include "calculator/entry_machine.h"

#include <gtest/gtest.h>

#include "calculator/calculator_keys.h"

namespace tarnmill {
namespace {

using Messages = std::vector<std::string>;

const std::string bad_number = message("exclamation", "Invalid input.");
const std::string no_number = message("information", "Invalid input.");
const std::string check_sign = message("exclamation", "Invalid input. Check the sign.");
const std::string division_by_zero = message("exclamation", "Division by zero?!");

struct KeyRow {
  const char* behaviour;
  const char* keys;
  const char* display;
};

class KeysGive : public ::testing::TestWithParam<KeyRow> {};

TEST_P(KeysGive, TheDisplay) {
  Calculator calculator;
  calculator.key(GetParam().keys);
  EXPECT_EQ(calculator.display(), GetParam().display);
  EXPECT_EQ(calculator.messages(), Messages{});
  EXPECT_EQ(calculator.focus(), "Readout");
}

constexpr KeyRow entry_rows[] = {
    {"DigitsGoBeforeThePoint", "78", "78."},
    {"AFreshDigitReplacesTheZero", "7", "7."},
    {"LeadingZerosStay", "007", "007."},
    {"DigitsBehindThePointAreAppended", "7.25", "7.25"},
    {"APointAloneBeginsWithZero", ".", "0."},
    {"APointThenADigit", ".5", "0.5"},
    {"RepeatedPointsChangeNothing", "1..2.3", "1.23"},
    {"APointOnAWholeNumberKeepsItsText", "78.", "78."},
    {"AnyNumberOfDigits", "1234567890123456789012345", "1234567890123456789012345."},
    {"AMinusOnAFreshCalculatorNegates", "-", "-0."},
    {"AMinusThenADigitBeginsANegativeNumber", "- 5", "-5."},
    {"OnlyTheFirstDigitTakesTheMinus", "- 56", "-56."},
    {"AMinusThenAPoint", "- .5", "-0.5"},
    {"ASecondMinusChangesNothing", "- -", "-0."},
    {"ASecondMinusStillNegatesTheNumber", "- - 5", "-5."},
    {"AnotherOperatorOnAFreshMinusDoesNothing", "- + 5", "-5."},
    {"AFreshPlusDoesNothing", "+", "0."},
    {"TheSignOfZeroStays", "+/-", "0."},
    {"TheSignKeyDropsThePoint", "78 +/-", "-78"},
    {"DigitsAfterTheSignKeyAreAppended", "78 +/- 5", "-785"},
    {"TheSignKeyTwice", "78 +/- +/-", "78"},
    {"TheSignKeyOnAFraction", "0.5 +/-", "-0.5"},
    {"TheSignKeyOnATypedZeroFraction", "0.0 +/-", "0"},
    {"ClearEntryKeepsThePendingOperation", "5 + 9 CE 2 =", "7"},
    {"ClearEntryShowsZero", "5 CE", "0."},
    {"ClearAllForgetsThePendingOperation", "5 + 9 AC 2 =", "2."},
    {"ClearAllShowsZero", "5 AC", "0."},
};

constexpr KeyRow operator_rows[] = {
    {"LeftToRightWithoutPrecedence", "2 + 3 X 4 =", "20"},
    {"ADigitAfterEqualsStartsAfresh", "2 + 3 = 7 X 2 =", "14"},
    {"TheOperatorShowsTheRunningResult", "2 + 3 X", "5"},
    {"AMinusAfterAnOperatorIsTheSignOfTheNextNumber", "5 X - 3 =", "-15"},
    {"AMinusAfterAnOperatorShowsAlone", "5 X -", "-"},
    {"AMinusAfterEqualsSubtracts", "5 = - 3 =", "2"},
    {"ALaterOperatorReplacesThePendingOne", "5 + X 3 =", "15"},
    {"EqualsDoesNotRepeat", "5 = =", "5."},
    {"EqualsAfterAResultDoesNotRepeat", "2 + 3 = = =", "5"},
    {"ANewNumberAfterEqualsReplacesTheResult", "2 + 3 = 7 =", "7"},
    {"AnOperatorAfterANewNumberTakesIt", "2 + 3 = 7 + 1 =", "8"},
    {"APlusFirstWaitsForNothing", "+ 5 =", "5."},
    {"ClearEntryIsNoOperand", "5 + 3 CE =", "0."},
    {"Add", "2 + 3.5 =", "5.5"},
    {"Subtract", "2 - 3.5 =", "-1.5"},
    {"Multiply", "2 X 3.5 =", "7"},
    {"Divide", "2 / 4 =", "0.5"},
    {"DivideZero", "0 / 4 =", "0"},
    {"PercentOfTheMainValue", "50 % 200 =", "25"},
    {"AmountOfTheMainValue", "50 %i 200 =", "100"},
    {"Power", "2 Exp 10 =", "1024"},
    {"PowerOfANegativeToAWholeNumber", "2 +/- Exp 3 =", "-8"},
    {"ZeroToThePowerZero", "0 Exp 0 =", "1"},
    {"Root", "9 nR 2 =", "3"},
    {"OddRootOfANegative", "8 +/- nR 3 =", "-2"},
    {"OddRootOfANegativeTypedWithMinus", "- 8 nR 3 =", "-2"},
    {"RootOfAFractionalDegree", "4 nR 0.5 =", "16"},
    {"ParityIsThatOfTheRoundedDegree", "8 +/- nR 2.6 =", "-2.22506295219297"},
    {"AFractionalDegreeRoundsHalfToEven", "8 +/- nR 3.4 =", "-1.84337928188173"},
    {"ALongSum", "0.1 + 0.2 =", "0.3"},
    {"AThird", "1 / 3 =", "0.333333333333333"},
};

std::string behaviour(const ::testing::TestParamInfo<KeyRow>& row) { return row.param.behaviour; }

INSTANTIATE_TEST_SUITE_P(Entry, KeysGive, ::testing::ValuesIn(entry_rows), behaviour);
INSTANTIATE_TEST_SUITE_P(Operators, KeysGive, ::testing::ValuesIn(operator_rows), behaviour);

TEST(EntryMachine, StartsAtZeroWithEmptyState) {
  Calculator calculator;
  EXPECT_EQ(calculator.display(), "0.");
  EXPECT_EQ(to_utf8(calculator.form.Label4.Caption.get()), "0.");
  EXPECT_EQ(calculator.field("NumOps"), "0");
  EXPECT_EQ(calculator.field("DecimalFlag"), "0");
  for (const char* name : {"Op1", "Op2", "LastInput", "OpFlag", "TempReadout"}) {
    EXPECT_EQ(calculator.field(name), "") << name;
  }
}

TEST(EntryMachine, TheLabelFollowsTheDisplay) {
  Calculator calculator;
  calculator.key("12");
  EXPECT_EQ(to_utf8(calculator.form.Label4.Caption.get()), "12.");
  calculator.put(u"anything");
  EXPECT_EQ(to_utf8(calculator.form.Label4.Caption.get()), "anything");
}

struct StateRow {
  const char* keys;
  const char* last_input;
  const char* num_ops;
  const char* decimal_flag;
  const char* op_flag;
};

TEST(EntryMachine, EachKeyLeavesItsState) {
  const StateRow rows[] = {
      {"5", "NUMS", "0", "0", ""},         {"5.", "NUMS", "0", "-1", ""},
      {"5 +/-", "NUMS", "0", "-1", ""},    {"+/-", "", "0", "0", ""},
      {"-", "NEG", "0", "0", ""},          {"+", "OPS", "0", "0", "+"},
      {"5.5 +", "OPS", "1", "-1", "+"},    {"5.5 + 2", "NUMS", "1", "0", "+"},
      {"5 X -", "NEG", "1", "0", "X"},     {"5 X - -", "NEG", "1", "0", "X"},
      {"5 + 2 nR", "OPS", "1", "0", "nR"}, {"5 + 2 =", "OPS", "1", "0", "="},
      {"5 + 2. CE", "CE", "1", "0", "+"},  {"5 + 2. AC", "NONE", "0", "0", " "},
  };
  for (const StateRow& row : rows) {
    Calculator calculator;
    calculator.key(row.keys);
    EXPECT_EQ(calculator.field("LastInput"), row.last_input) << row.keys;
    EXPECT_EQ(calculator.field("NumOps"), row.num_ops) << row.keys;
    EXPECT_EQ(calculator.field("DecimalFlag"), row.decimal_flag) << row.keys;
    EXPECT_EQ(calculator.field("OpFlag"), row.op_flag) << row.keys;
  }
}

TEST(EntryMachine, OperandsAreTextUntilAnOperationConvertsThem) {
  Calculator calculator;
  calculator.key("5 +");
  EXPECT_EQ(calculator.field("Op1"), "5.");
  calculator.key("2 =");
  EXPECT_EQ(calculator.field("Op1"), "7");
  EXPECT_EQ(calculator.field("Op2"), "2.");
  EXPECT_EQ(calculator.field("TempReadout"), "2.");
}

TEST(EntryMachine, ClearAllMakesTheOperandsZeroAndLeavesTheMemory) {
  Calculator calculator;
  calculator.key("8 MS 5 + 2 =");
  calculator.form.lblRunning.Caption = u"5 + 2";
  calculator.key("AC");
  EXPECT_EQ(calculator.field("Op1"), "0");
  EXPECT_EQ(calculator.field("Op2"), "0");
  EXPECT_EQ(to_utf8(calculator.form.lblRunning.Caption.get()), "");
  EXPECT_EQ(calculator.field("MemoryValue"), "8");
}

TEST(EntryMachine, OnlyClearAllEmptiesTheRunningLabel) {
  Calculator calculator;
  calculator.form.lblRunning.Caption = u"kept";
  calculator.key("5 + 2 = CE . +/-");
  EXPECT_EQ(to_utf8(calculator.form.lblRunning.Caption.get()), "kept");
}

TEST(EntryMachine, ClearEntryKeepsTheOperands) {
  Calculator calculator;
  calculator.key("5 + 2 X 3 CE");
  EXPECT_EQ(calculator.field("Op1"), "7");
  EXPECT_EQ(calculator.field("Op2"), "2.");
}

TEST(EntryMachine, TheSignKeyOnZeroLeavesStateAndFocus) {
  for (const char16_t* zero : {u"0.", u"0"}) {
    Calculator calculator;
    calculator.put(zero);
    calculator.lose_focus();
    calculator.key("+/-");
    EXPECT_EQ(calculator.display(), "0.");
    EXPECT_EQ(calculator.focus(), "cmdExit");
    EXPECT_EQ(calculator.field("LastInput"), "");
  }
}

TEST(EntryMachine, EveryOtherKeyGivesTheFocusBack) {
  for (const char* key : {"5", ".", "CE", "AC", "+", "-", "=", "Exp"}) {
    Calculator calculator;
    calculator.lose_focus();
    calculator.key(key);
    EXPECT_EQ(calculator.focus(), "Readout") << key;
  }
}

TEST(EntryMachine, DivisionByZeroIsToldAndKeepsTheOperand) {
  Calculator calculator;
  calculator.key("8 / 0 =");
  EXPECT_EQ(calculator.messages(), Messages{division_by_zero});
  EXPECT_EQ(calculator.display(), "8.");
  EXPECT_EQ(calculator.field("NumOps"), "1");
  EXPECT_EQ(calculator.field("OpFlag"), "=");
  EXPECT_EQ(calculator.focus(), "Readout");
}

TEST(EntryMachine, DivisionByZeroIsToldEvenWhenTheOperandIsNoNumber) {
  Calculator calculator;
  calculator.key("5 / - - 0 =");
  EXPECT_EQ(calculator.messages(), Messages{division_by_zero});
  EXPECT_EQ(calculator.display(), "-");
}

struct SignRow {
  const char* keys;
  const char* display;
};

TEST(EntryMachine, RootsThatDoNotExistAreToldAndKeepTheOperand) {
  const SignRow rows[] = {
      {"0 nR 3 =", "0."},       {"0 nR 2 =", "0."},       {"8 +/- nR 2 =", "-8"},
      {"8 +/- nR 2.4 =", "-8"}, {"8 +/- nR 3.5 =", "-8"}, {"8 +/- nR 0 =", "-8"},
  };
  for (const SignRow& row : rows) {
    Calculator calculator;
    calculator.key(row.keys);
    EXPECT_EQ(calculator.messages(), Messages{check_sign}) << row.keys;
    EXPECT_EQ(calculator.display(), row.display) << row.keys;
    EXPECT_EQ(calculator.field("NumOps"), "1") << row.keys;
  }
}

TEST(EntryMachine, TextThatIsNoNumberIsToldAndClearsTheEntry) {
  for (const char* keys : {"5 + - - 3 =", "5 X - - 3 +", "5 Exp - - 3 =", "5 nR - - 3 =", "5 % - - 3 ="}) {
    Calculator calculator;
    calculator.key(keys);
    EXPECT_EQ(calculator.messages(), Messages{no_number}) << keys;
    EXPECT_EQ(calculator.display(), "0.") << keys;
    EXPECT_EQ(calculator.field("LastInput"), "CE") << keys;
    EXPECT_EQ(calculator.field("NumOps"), "2") << keys;
    EXPECT_EQ(calculator.focus(), "Readout") << keys;
  }
}

TEST(EntryMachine, ARightOperandThatIsNoNumberIsToldAsWell) {
  for (const char* operation : {"+", "-", "X", "/", "=", "%", "%i", "Exp", "nR"}) {
    Calculator calculator;
    calculator.key(std::string{"5 "} + operation + " 3");
    calculator.put(u"three");
    calculator.key("=");
    EXPECT_EQ(calculator.messages(), Messages{no_number}) << operation;
    EXPECT_EQ(calculator.display(), "0.") << operation;
  }
}

TEST(EntryMachine, OtherFailuresAreSilentAndLeaveTheMachineStuckUntilClearAll) {
  const char* failing[] = {
      "5 % 0 =", "0 % 0 =", "8 +/- Exp 0.5 =", "0 Exp - 1 =", "9 nR 0 =", "9 nR 40000 ="};
  for (const char* keys : failing) {
    Calculator calculator;
    calculator.lose_focus();
    calculator.key(keys);
    EXPECT_EQ(calculator.messages(), Messages{}) << keys;
    EXPECT_EQ(calculator.field("NumOps"), "2") << keys;
    EXPECT_EQ(calculator.field("LastInput"), "NUMS") << keys;
    EXPECT_EQ(calculator.focus(), "Readout") << keys;
    const std::string kept = calculator.display();
    calculator.key("+");
    EXPECT_EQ(calculator.display(), kept) << keys;
    EXPECT_EQ(calculator.field("NumOps"), "3") << keys;
    calculator.key("2 + 3 =");
    EXPECT_EQ(calculator.display(), "3.") << keys;
    calculator.key("AC 2 + 3 =");
    EXPECT_EQ(calculator.display(), "5") << keys;
  }
}

TEST(EntryMachine, AResultBeyondTheRangeIsSilent) {
  Calculator calculator;
  calculator.key("2 X 3");
  calculator.put(u"1E+308");
  calculator.key("=");
  EXPECT_EQ(calculator.messages(), Messages{});
  EXPECT_EQ(calculator.display(), "1E+308");
  EXPECT_EQ(calculator.field("NumOps"), "2");
}

TEST(EntryMachine, TheCountOfOperandsOverflowsInSilence) {
  Calculator calculator;
  calculator.set_field("NumOps", 32767);
  calculator.key("5 +");
  EXPECT_EQ(calculator.messages(), Messages{});
  EXPECT_EQ(calculator.field("NumOps"), "32767");
  EXPECT_EQ(calculator.field("LastInput"), "NUMS");
}

TEST(EntryMachine, ADigitOnADisplayWithoutAPointIsRefusedAndStartsFromZero) {
  Calculator calculator;
  calculator.key("7 n!");
  ASSERT_EQ(calculator.display(), "5040");
  calculator.lose_focus();
  calculator.key("1");
  EXPECT_EQ(calculator.messages(), Messages{bad_number});
  EXPECT_EQ(calculator.display(), "0.");
  EXPECT_EQ(calculator.field("LastInput"), "NUMS");
  EXPECT_EQ(calculator.field("DecimalFlag"), "0");
  EXPECT_EQ(calculator.focus(), "Readout");
  calculator.key("7");
  EXPECT_EQ(calculator.display(), "07.");
}

TEST(EntryMachine, ADigitAfterAFunctionKeyContinuesItsResult) {
  Calculator calculator;
  calculator.key("2 1/x");
  ASSERT_EQ(calculator.display(), "0.5");
  calculator.key("7");
  EXPECT_EQ(calculator.display(), "07.");
}

TEST(EntryMachine, ANumberInPlaceOfTheStateWordMakesAnAdditionOneOfPi) {
  Calculator calculator;
  calculator.key("5 + 2");
  calculator.set_field("LastInput", 3.14159265358979);
  calculator.set_field("NumOps", 2);
  calculator.key("=");
  EXPECT_EQ(calculator.display(), "8.14159265358979");
}

TEST(EntryMachine, AnUnknownPendingOperatorLeavesTheOperand) {
  Calculator calculator;
  calculator.key("5 + 2");
  calculator.set_field("OpFlag", u" ");
  calculator.key("=");
  EXPECT_EQ(calculator.display(), "5.");
  EXPECT_EQ(calculator.field("NumOps"), "1");
}

TEST(EntryMachine, OddnessIsReadFromTheTextOfTheHalf) {
  const Regional point{u'.'};
  const Regional comma{u','};
  for (const int odd : {1, 3, -1, -7, 32767})
    EXPECT_TRUE(IsOdd(static_cast<std::int16_t>(odd), point)) << odd;
  for (const int even : {0, 2, -2, 32766, -32768}) {
    EXPECT_FALSE(IsOdd(static_cast<std::int16_t>(even), point)) << even;
  }
  EXPECT_FALSE(IsOdd(3, comma));
}

TEST(EntryMachine, UnderADecimalCommaTheDisplayCarriesTheComma) {
  const KeyRow rows[] = {
      {"", "78", "78,"},           {"", ".5", "0,5"},     {"", "- .", "-0,"},
      {"", "5 CE", "0,"},          {"", "5 AC", "0,"},    {"", "1.5 + 2.25 =", "3,75"},
      {"", "8 +/- nR 3 AC", "0,"}, {"", "78 +/-", "-78"},
  };
  for (const KeyRow& row : rows) {
    Calculator calculator;
    calculator.desk.decimal_separator(u',');
    calculator.key(row.keys);
    EXPECT_EQ(calculator.display(), row.display) << row.keys;
    EXPECT_EQ(calculator.messages(), Messages{}) << row.keys;
  }
}

TEST(EntryMachine, UnderADecimalCommaNoRootIsOdd) {
  Calculator calculator;
  calculator.desk.decimal_separator(u',');
  calculator.key("8 +/- nR 3 =");
  EXPECT_EQ(calculator.messages(), Messages{check_sign});
}

TEST(EntryMachine, UnderADecimalCommaTheSignKeyReadsUpToTheComma) {
  Calculator calculator;
  calculator.desk.decimal_separator(u',');
  calculator.key("7.5 +/-");
  EXPECT_EQ(calculator.display(), "-7");
}

}  // namespace
}  // namespace tarnmill
