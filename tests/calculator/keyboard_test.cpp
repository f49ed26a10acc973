#include <gtest/gtest.h>

#include "calculator/calculator_keys.h"

namespace tarnmill {
namespace {

void strike(Calculator& calculator, std::initializer_list<int> codes) {
  for (int code : codes) calculator.form.Readout.KeyDown.raise(code, 0);
}

struct CodeRow {
  std::initializer_list<int> codes;
  const char* display;
};

TEST(Keyboard, EveryCodeDoesTheWorkOfItsKey) {
  const CodeRow rows[] = {
      {{96}, "0."},
      {{97}, "1."},
      {{98}, "2."},
      {{99}, "3."},
      {{100}, "4."},
      {{101}, "5."},
      {{102}, "6."},
      {{103}, "7."},
      {{104}, "8."},
      {{105}, "9."},
      {{102, 106, 98, 13}, "12"},
      {{102, 107, 98, 13}, "8"},
      {{102, 109, 98, 13}, "4"},
      {{102, 111, 98, 13}, "3"},
      {{102, 107, 98, 108}, "8"},
      {{102, 110, 101}, "6.5"},
      {{102, 107, 98, 46, 97, 13}, "1."},
  };
  for (const CodeRow& row : rows) {
    Calculator calculator;
    strike(calculator, row.codes);
    EXPECT_EQ(calculator.display(), row.display) << *row.codes.begin();
  }
}

TEST(Keyboard, DeleteClearsAll) {
  Calculator calculator;
  strike(calculator, {102, 46});
  EXPECT_EQ(calculator.field("LastInput"), "NONE");
}

TEST(Keyboard, AllOtherCodesDoNothing) {
  for (int code = 0; code < 256; ++code) {
    const bool acts = (code >= 96 && code <= 111) || code == 13 || code == 46;
    if (acts) continue;
    Calculator calculator;
    calculator.key("5");
    strike(calculator, {code});
    EXPECT_EQ(calculator.display(), "5.") << code;
    EXPECT_EQ(calculator.field("LastInput"), "NUMS") << code;
    EXPECT_EQ(calculator.field("NumOps"), "0") << code;
  }
}

TEST(Keyboard, TheCodePassesOnUnchanged) {
  Calculator calculator;
  int code = 101;
  calculator.form.Readout.KeyDown.raise(code, 0);
  EXPECT_EQ(code, 101);
}

struct TooltipRow {
  const char* control;
  int index;
  const char* tooltip;
};

TEST(Keys, HaveTheirTooltips) {
  const TooltipRow rows[] = {
      {"Operator", 0, ""},
      {"Operator", 1, ""},
      {"Operator", 2, ""},
      {"Operator", 3, ""},
      {"Operator", 4, ""},
      {"Operator", 5, " A raised to the power B (A Exp B =) "},
      {"Operator", 6, " n-th Root of A (A nR n = ) "},
      {"Operator", 7, "Calculate PERCENT if you know Amount (A) and Main value (M) ( A % M = )"},
      {"Operator", 8, "Calculate AMOUNT if you know Percent (P) and Main value (M) (P  %i  M =) "},
      {"CancelEntry", -1, " Clear last entry "},
      {"cmdClearAll", -1, " Clear All "},
      {"cmdinv", -1, " Inverse Mode "},
      {"cmddeg", -1, " Switch between Deg/Rad Mode "},
      {"cmdconv", -1, "Convert Deg to Rad and viceversa"},
      {"cmdlog", -1, " Logarithm to the base 10 "},
      {"Command3", -1, " Logarithm to the base e "},
      {"cmdfaktor", -1, " Factorial "},
      {"cmdMemory1", -1, " Add to memory "},
      {"cmdMemory2", -1, " Recall memory "},
      {"cmdMemory3", -1, " Clear memory "},
      {"cmdcopy", -1, "Copy  Result "},
      {"imc", -1, " Complex Mode "},
      {"imev", -1, " Evaluator "},
      {"img", -1, " Graph Mode "},
  };
  Calculator calculator;
  for (const TooltipRow& row : rows) {
    const Control* control = calculator.form.find_control(row.control, row.index);
    ASSERT_NE(control, nullptr) << row.control;
    EXPECT_EQ(to_utf8(control->ToolTipText.get()), row.tooltip) << row.control << row.index;
  }
}

TEST(Keys, TheOperatorsAreKnownByTheirLabels) {
  Calculator calculator;
  const char* captions[] = {"/", "+", "X", "-", "=", "Exp", "nR", "%", "%i"};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(to_utf8(calculator.form.Label3(i).Caption.get()), captions[i]);
  calculator.form.Label3(1).Caption = u"X";
  calculator.key("3 + 4 =");
  EXPECT_EQ(calculator.display(), "12");
}

TEST(Keys, DigitsTypeTheirLabels) {
  Calculator calculator;
  for (int i = 0; i < 10; ++i) EXPECT_EQ(to_utf8(calculator.form.Label1(i).Caption.get()), std::to_string(i));
  calculator.form.Label1(3).Caption = u"8";
  calculator.key("3");
  EXPECT_EQ(calculator.display(), "8.");
}

}  // namespace
}  // namespace tarnmill
