#include <gtest/gtest.h>

#include "calculator/calculator_keys.h"

namespace tarnmill {
namespace {

using Messages = std::vector<std::string>;

constexpr Color yellow = 65535;
constexpr Color blue = 12582912;

TEST(Memory, StartsEmpty) {
  Calculator calculator;
  const Form1& form = calculator.form;
  EXPECT_EQ(to_utf8(form.lblMemory1.Caption.get()), "");
  EXPECT_EQ(to_utf8(form.cmdMemory1.Picture.get()), "memory-empty");
  EXPECT_EQ(to_utf8(form.Label2.Caption.get()), "M");
  EXPECT_FALSE(form.Label2.Visible);
  EXPECT_FALSE(form.Timer1.runs());
}

TEST(Memory, TheFirstStoreBringsTheIndicatorOut) {
  Calculator calculator;
  const Form1& form = calculator.form;
  calculator.key("12.50");
  calculator.lose_focus();
  calculator.key("MS");
  EXPECT_EQ(calculator.field("MemoryValue"), "12.5");
  EXPECT_EQ(to_utf8(form.lblMemory1.Caption.get()), "12.5");
  EXPECT_EQ(to_utf8(form.cmdMemory1.Picture.get()), "memory-used");
  EXPECT_TRUE(form.Label2.Visible);
  EXPECT_TRUE(form.Timer1.runs());
  EXPECT_EQ(form.Timer1.Interval, 900);
  EXPECT_EQ(calculator.focus(), "Readout");
  EXPECT_EQ(calculator.messages(), Messages{});
}

TEST(Memory, AStoreReplacesTheCell) {
  Calculator calculator;
  calculator.key("5 MS AC 7 MS");
  EXPECT_EQ(calculator.field("MemoryValue"), "7");
  EXPECT_TRUE(calculator.form.Label2.Visible);
}

TEST(Memory, StoringTheSameNumberAgainKeepsTheIndicator) {
  Calculator calculator;
  calculator.key("5 MS MS");
  EXPECT_TRUE(calculator.form.Label2.Visible);
  EXPECT_EQ(to_utf8(calculator.form.cmdMemory1.Picture.get()), "memory-used");
}

TEST(Memory, ANullResultIsRefusedAndYetStartsTheTimer) {
  for (const char16_t* zero : {u"0.", u"0"}) {
    Calculator calculator;
    calculator.put(zero);
    calculator.lose_focus();
    calculator.key("MS");
    EXPECT_EQ(calculator.messages(), Messages{message("information", "Can't add null result.")});
    EXPECT_TRUE(calculator.form.Timer1.runs());
    EXPECT_EQ(calculator.form.Timer1.Interval, 900);
    EXPECT_EQ(calculator.focus(), "cmdExit");
    EXPECT_EQ(to_utf8(calculator.form.lblMemory1.Caption.get()), "");
    EXPECT_FALSE(calculator.form.Label2.Visible);
  }
}

TEST(Memory, TheTimerIsOnBeforeARefusalIsTold) {
  Calculator calculator;
  calculator.form.Timer1.observe(&calculator,
                                 [&](const PropertyBase&) { EXPECT_EQ(calculator.messages(), Messages{}); });
  calculator.key("MS");
  calculator.form.Timer1.stop_observing(&calculator);
  EXPECT_TRUE(calculator.form.Timer1.Enabled);
}

TEST(Memory, StoringTextThatIsNoNumberEndsTheProgram) {
  Calculator calculator;
  calculator.put(u"-");
  calculator.key("MS");
  EXPECT_EQ(calculator.messages(),
            Messages{message("critical", "Run-time error '13':\r\n\r\nType mismatch")});
  EXPECT_TRUE(calculator.bench.ended());
}

TEST(Memory, ARecallShowsTheNumberAndLetsDigitsContinueIt) {
  Calculator calculator;
  calculator.key("12.5 MS AC");
  calculator.lose_focus();
  calculator.key("MR");
  EXPECT_EQ(calculator.display(), "12.5");
  EXPECT_EQ(calculator.field("LastInput"), "NUMS");
  EXPECT_EQ(calculator.field("DecimalFlag"), "0");
  EXPECT_EQ(calculator.focus(), "Readout");
  calculator.key("3");
  EXPECT_EQ(calculator.display(), "123.");
}

TEST(Memory, ARecalledNumberIsAnOperand) {
  Calculator calculator;
  calculator.key("12 MS AC 3 + MR =");
  EXPECT_EQ(calculator.display(), "15");
}

TEST(Memory, AnEmptyMemoryIsTold) {
  for (const char16_t* empty : {u"", u"0", u"0."}) {
    Calculator calculator;
    calculator.key("5 +");
    calculator.form.lblMemory1.Caption = empty;
    calculator.lose_focus();
    calculator.key("MR");
    EXPECT_EQ(calculator.messages(), Messages{message("information", "Memory is empty.")});
    EXPECT_EQ(calculator.display(), "5.");
    EXPECT_EQ(calculator.field("LastInput"), "OPS");
    EXPECT_EQ(calculator.focus(), "Readout");
  }
}

TEST(Memory, ClearingEmptiesItAndStopsTheBlinking) {
  Calculator calculator;
  const Form1& form = calculator.form;
  calculator.key("5 MS");
  calculator.lose_focus();
  calculator.key("MC");
  EXPECT_EQ(calculator.field("MemoryValue"), "0");
  EXPECT_EQ(to_utf8(form.lblMemory1.Caption.get()), "");
  EXPECT_EQ(to_utf8(form.cmdMemory1.Picture.get()), "memory-empty");
  EXPECT_FALSE(form.Label2.Visible);
  EXPECT_FALSE(form.Timer1.runs());
  EXPECT_EQ(calculator.focus(), "Readout");
}

TEST(Memory, AnyChangeOfItsTextBringsTheIndicatorOut) {
  Calculator calculator;
  calculator.form.lblMemory1.Caption = u"9";
  EXPECT_TRUE(calculator.form.Label2.Visible);
  EXPECT_EQ(to_utf8(calculator.form.cmdMemory1.Picture.get()), "memory-used");
}

TEST(Memory, TheIndicatorBlinksYellowAndBlue) {
  Calculator calculator;
  const Form1& form = calculator.form;
  calculator.key("5 MS");
  calculator.form.Label2.ForeColor = 0;
  calculator.desk.tick(899);
  EXPECT_EQ(form.Label2.ForeColor, 0);
  calculator.desk.tick(1);
  EXPECT_EQ(form.Label2.ForeColor, yellow);
  calculator.desk.tick(900);
  EXPECT_EQ(form.Label2.ForeColor, blue);
  calculator.desk.tick(1800);
  EXPECT_EQ(form.Label2.ForeColor, blue);
  calculator.key("MC");
  calculator.desk.tick(9000);
  EXPECT_EQ(form.Label2.ForeColor, blue);
}

TEST(Memory, ANewCaptionOfTheIndicatorSlowsTheBlinking) {
  Calculator calculator;
  calculator.key("5 MS");
  calculator.form.Label2.Caption = u"m";
  EXPECT_EQ(calculator.form.Timer1.Interval, 1000);
}

TEST(Memory, TheIndicatorTellsTheStoredNumberUnderThePointer) {
  Calculator calculator;
  calculator.key("5 MS");
  EXPECT_EQ(to_utf8(calculator.form.Label2.ToolTipText.get()), "");
  calculator.form.Label2.MouseMove.raise(0, 0, 10, 10);
  EXPECT_EQ(to_utf8(calculator.form.Label2.ToolTipText.get()), "5");
}

TEST(Memory, IsNotSavedBetweenRuns) {
  TestProgram program;
  program.window<Form1>().Number(5).press();
  program.window<Form1>().cmdMemory1.press();
  program.restart();
  EXPECT_EQ(program.window<Form1>().MemoryValue, 0);
  EXPECT_FALSE(program.window<Form1>().Label2.Visible);
}

}  // namespace
}  // namespace tarnmill
