#include "keypad/frm_tast.h"

#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "shell/help_menus.h"
#include "support/window_test.h"

namespace tarnmill {
namespace {

class Keypad : public WindowTest<frmTast> {
 protected:
  Keypad() {
    act([this] { form().Show(); });
  }

  void write(const Text& expression) {
    act([&] { form().Text1.Text = expression; });
  }
  [[nodiscard]] std::string expression() { return to_utf8(form().Text1.Text.get()); }
  [[nodiscard]] std::string result() { return to_utf8(form().lbrezultat.Caption.get()); }
  template <class C>
  void key_down(C& control, int code) {
    act([&] { control.KeyDown.raise(code, 0); });
  }
};

TEST_F(Keypad, OffersItsFunctionsInOrder) {
  const char* names[] = {
      "Stef",     "n!",       "Exp",     "Ln",      "Log",     "Sqr",       "Cbr",       "Qvr",    "Pbr",
      "Cub",      "Bin",      "Qvd",     "Pnt",     "Nil",     "Sin",       "Cos",       "Tan",    "Cotan",
      "Atn",      "Abs",      "Fix",     "Rnd",     "Sgn",     "Int",       "Arcsin",    "Arccos", "Arcsec",
      "Arccosec", "Arccotan", "Sec",     "Cosec",   "HSin",    "HCos",      "HTan",      "HSec",   "HCosec",
      "HCotan",   "HArcsin",  "HArccos", "HArctan", "HArcsec", "HArccosec", "HArccotan", "Pi",     "e(1)"};
  ASSERT_EQ(form().boxC1.items().size(), std::size(names));
  for (std::size_t i = 0; i < std::size(names); ++i) EXPECT_EQ(to_utf8(form().boxC1.items()[i]), names[i]);
  EXPECT_EQ(to_utf8(form().boxC1.Text.get()), "Functions ");
}

TEST_F(Keypad, ControlsHaveTheirWords) {
  const std::pair<const Control*, const char*> tooltips[] = {
      {&form().Command5, " Evaluate "},
      {&form().Command6, "Replace argument (X or K) with its value"},
      {&form().Command3, " Clear All "},
      {&form().Command1, " Copy Result "},
      {&form().Command4, " Paste expression or argument's value"},
      {&form().Command8, " Value Table "},
      {&form().Command2, " Exit "},
      {&form().cmdrad, " Convert Deg to Rad "},
      {&form().img, " Graph Mode "},
      {&form().imc, " Complex Mode "},
      {&form().imev, " Advanced Mode "}};
  for (const auto& [control, tooltip] : tooltips) {
    EXPECT_EQ(to_utf8(control->ToolTipText.get()), tooltip);
  }
  const std::pair<const Button*, const char*> captions[] = {
      {&form().TAB, "Tab"},   {&form().NUM, "Num"},      {&form().N5, "5"},         {&form().N6, "6"},
      {&form().N7, "7"},      {&form().HOME, "Home"},    {&form().OEM_PERIOD, "."}, {&form().NUMPAD5, "5"},
      {&form().NUMPAD6, "6"}, {&form().SHIFT1, "Shift"}, {&form().SHIFT2, "Shift"}};
  for (const auto& [key, caption] : captions) {
    EXPECT_EQ(to_utf8(key->Caption.get()), caption);
    EXPECT_TRUE(key->only_holds_state());
  }
}

TEST_F(Keypad, KeysWithoutBehaviourDoNothing) {
  write(u"1+1");
  for (Button* key : {&form().TAB, &form().NUM, &form().N5, &form().N6, &form().N7, &form().HOME,
                      &form().OEM_PERIOD, &form().NUMPAD5, &form().NUMPAD6, &form().SHIFT1, &form().SHIFT2}) {
    act([&] { key->press(); });
    EXPECT_EQ(expression(), "1+1");
  }
}

struct EvaluationRow {
  const char16_t* typed;
  const char* expression;
  const char* result;
};

class KeypadEvaluation : public Keypad, public ::testing::WithParamInterface<EvaluationRow> {};

TEST_P(KeypadEvaluation, PutsInShortConstantsAndShowsTheResult) {
  write(GetParam().typed);
  click(&frmTast::Command5);
  EXPECT_EQ(expression(), GetParam().expression);
  EXPECT_EQ(result(), GetParam().result);
  expect_no_message();
}

INSTANTIATE_TEST_SUITE_P(Expressions, KeypadEvaluation,
                         ::testing::Values(EvaluationRow{u"pi/2", "3.1415/2", "1.57075"},
                                           EvaluationRow{u"Pi", "3.1415", "3.1415"},
                                           EvaluationRow{u"2pi", "23.1415", "23.1415"},
                                           EvaluationRow{u"2*e(1)", "2*e(1)", "5.4365636569181"},
                                           EvaluationRow{u"2*(e)", "2*(2.718)", "5.436"},
                                           EvaluationRow{u"2*(E)", "2*(2.718)", "5.436"},
                                           EvaluationRow{u"PI(1)", "PI(1)", "3.14159265358979"},
                                           EvaluationRow{u"1+1", "1+1", "2"},
                                           EvaluationRow{u"1,5*2", "1,5*2", "3"}));

struct FailureRow {
  const char16_t* typed;
  const char16_t* message;
  const char16_t* title;
  MessageIcon icon;
};

TEST_F(Keypad, AFailureIsToldAndLeavesTheExpression) {
  const FailureRow rows[] = {
      {u"10*10", u"Undefined.", u"Tarnmill", MessageIcon::information},
      {u"X+1", u"Check syntax!", u"Error", MessageIcon::critical},
      {u"(1", u"Check symbols placement!", u"Error", MessageIcon::critical},
      {u"1)", u"Check bracket placement!", u"Error", MessageIcon::critical},
      {u"SQR(-1)",
       u"Can't evaluate.\r\nProbable reasons are:\r\n- Invalid input\r\n- Function is undefined for this "
       u"argument.\r\n- In this form, function is undefined for negative argument.\r\nTry to use PREDEFINED "
       u"functions, or draw function first.",
       u"Error", MessageIcon::critical},
  };
  for (const FailureRow& row : rows) {
    write(row.typed);
    click(&frmTast::Command5);
    expect_message(row.message, row.icon, row.title);
    EXPECT_EQ(expression(), to_utf8(row.typed));
    EXPECT_EQ(result(), "");
  }
}

TEST_F(Keypad, TheEqualsKeyEvaluatesWithoutTheConstants) {
  write(u"pi/2");
  click(&frmTast::rez);
  expect_message(u"Check syntax!", MessageIcon::critical, u"Error");
  EXPECT_EQ(expression(), "pi/2");
  write(u"3*4");
  act([this] { form().rez2({}); });
  EXPECT_EQ(result(), "12");
}

TEST_F(Keypad, AChangeOfTheExpressionEmptiesTheResult) {
  write(u"1+1");
  click(&frmTast::rez);
  EXPECT_EQ(result(), "2");
  write(u"1+2");
  EXPECT_EQ(result(), "");
}

TEST_F(Keypad, ReplacesTheArgumentByItsValueInBrackets) {
  act([this] { form().Text2.Text = u"-2"; });
  write(u"x^2");
  click(&frmTast::Command6);
  EXPECT_EQ(expression(), "(-2)^2");
  click(&frmTast::Command5);
  EXPECT_EQ(result(), "4");
  write(u"K+k+X+x");
  click(&frmTast::Command6);
  EXPECT_EQ(expression(), "(-2)+(-2)+(-2)+(-2)");
  act([this] { form().Text2.Text = u"3"; });
  write(u"Exp(x)");
  click(&frmTast::Command6);
  EXPECT_EQ(expression(), "E(3)p((3))");
  expect_no_message();
}

TEST_F(Keypad, WithoutAValueNothingIsReplaced) {
  write(u"x^2");
  click(&frmTast::Command6);
  expect_message(u"Enter value for X or K.", MessageIcon::information);
  EXPECT_EQ(expression(), "x^2");
}

TEST_F(Keypad, AChosenFunctionReplacesTheSelection) {
  write(u"2*y+1");
  act([this] {
    form().Text1.select(2, 1);
    form().boxC1.choose(14);
  });
  EXPECT_EQ(expression(), "2*Sin+1");
  EXPECT_EQ(form().Text1.sel_start(), 5);
  EXPECT_EQ(program.bench.focus(), &form().Text1);
  act([this] { form().boxC1.choose(14); });
  EXPECT_EQ(expression(), "2*SinSin+1");
}

TEST_F(Keypad, EnterEvaluatesAndDeleteClearsAll) {
  for (const bool in_list : {false, true}) {
    write(u"pi");
    act([this] { form().Text2.Text = u"7"; });
    if (in_list) {
      act([this] { form().boxC1.SetFocus(); });
      key_down(form().boxC1, 13);
    } else {
      key_down(form().Text1, 13);
    }
    EXPECT_EQ(result(), "3.1415");
    if (in_list) {
      EXPECT_EQ(program.bench.focus(), &form().Text1);
      key_down(form().boxC1, 46);
    } else {
      key_down(form().Text1, 46);
    }
    EXPECT_EQ(expression(), "");
    EXPECT_EQ(to_utf8(form().Text2.Text.get()), "");
    EXPECT_EQ(result(), "");
    EXPECT_EQ(program.bench.focus(), &form().Text1);
  }
}

TEST_F(Keypad, OtherKeysAreLeftAlone) {
  write(u"1+1");
  for (const int code : {8, 65, 107}) {
    key_down(form().Text1, code);
    EXPECT_EQ(expression(), "1+1");
    EXPECT_EQ(result(), "");
  }
}

TEST_F(Keypad, ClearAllEmptiesEverythingAndDelLeavesTheValue) {
  for (const bool all : {true, false}) {
    write(u"1+1");
    act([this] { form().Text2.Text = u"7"; });
    click(&frmTast::rez);
    click(all ? &frmTast::Command3 : &frmTast::DEL);
    EXPECT_EQ(expression(), "");
    EXPECT_EQ(result(), "");
    EXPECT_EQ(to_utf8(form().Text2.Text.get()), all ? "" : "7");
    EXPECT_EQ(program.bench.focus(), &form().Text1);
  }
  write(u"1+1");
  act([this] { form().cisti({}); });
  EXPECT_EQ(expression(), "");
}

TEST_F(Keypad, TextsAreCopied) {
  write(u"1+1");
  click(&frmTast::rez);
  click(&frmTast::Command1);
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "2");
  act([this] { form().CopyExpression({}); });
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "1+1");
  act([this] { form().CopyResult({}); });
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "2");
  act([this] { program.window<Help>().mnicopyexpr.press(); });
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "1+1");
  act([this] { program.window<Help>().mnicopyres.press(); });
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "2");
}

TEST_F(Keypad, TheClipboardGoesIntoTheSelection) {
  write(u"2*y");
  program.desk.set_clipboard_text(u"x^2");
  act([this] {
    form().Text1.select(2, 1);
    program.window<Help>().mnupasteev.press();
  });
  EXPECT_EQ(expression(), "2*x^2");
}

TEST_F(Keypad, ThePasteKeyOpensItsMenuOnThePressAlone) {
  click(&frmTast::Command4);
  EXPECT_EQ(form().popup_shown(), nullptr);
  act([this] { form().Command4.MouseDown.raise(1, 0, 1, 1); });
  EXPECT_EQ(form().popup_shown(), &program.window<frmZoom>().mnuPastetest);
}

TEST_F(Keypad, ThePointerReadsTheTexts) {
  write(u"1+1");
  act([this] { form().Text2.Text = u"7"; });
  click(&frmTast::rez);
  act([this] {
    form().Text1.MouseMove.raise(0, 0, 1, 1);
    form().Text2.MouseMove.raise(0, 0, 1, 1);
    form().lbrezultat.MouseMove.raise(0, 0, 1, 1);
  });
  EXPECT_EQ(to_utf8(form().Text1.ToolTipText.get()), "1+1");
  EXPECT_EQ(to_utf8(form().Text2.ToolTipText.get()), "7");
  EXPECT_EQ(to_utf8(form().lbrezultat.ToolTipText.get()), "2");
}

class KeypadAngles : public Keypad {
 protected:
  void select(const Text& expression, int start, int length) {
    write(expression);
    act([&] { form().Text1.select(start, length); });
  }
  void expect_question(const Text& degrees, const Text& radians) {
    expect_message(
        u"\r\nConversion done: " + degrees + u" Deg  = " + radians + u" Rad\r\n\r\nReplace argument?",
        MessageIcon::information, u"Conversion", MessageButtons::yes_no, 2);
  }
};

TEST_F(KeypadAngles, AConversionThatIsWantedStays) {
  select(u"Sin(90)", 4, 2);
  program.desk.answer(MessageResult::yes);
  click(&frmTast::cmdrad);
  expect_question(u"90", u"1.5708");
  EXPECT_EQ(expression(), "Sin(1.5708)");
  EXPECT_EQ(to_utf8(form().lblconv.Caption.get()), "Sin(90)");
  EXPECT_EQ(program.bench.focus(), &form().Text1);
}

TEST_F(KeypadAngles, AConversionThatIsNotWantedGoes) {
  select(u"Sin(-30)", 4, 3);
  program.desk.answer(MessageResult::no);
  click(&frmTast::cmdrad);
  expect_question(u"-30", u"-0.5236");
  EXPECT_EQ(expression(), "Sin(-30)");
  EXPECT_EQ(program.bench.focus(), &form().Text1);
}

TEST_F(KeypadAngles, WordsConvertToZero) {
  select(u"Sin(x)", 4, 1);
  program.desk.answer(MessageResult::yes);
  click(&frmTast::cmdrad);
  expect_question(u"x", u"0");
  EXPECT_EQ(expression(), "Sin(0)");
}

TEST_F(KeypadAngles, NothingSelectedIsTold) {
  write(u"Sin(90)");
  click(&frmTast::cmdrad);
  expect_message(
      u"Highlight argument of trigonometric function (in Degrees)\r\nyou want to convert to Radians.",
      MessageIcon::information, u"Conversion");
  EXPECT_EQ(expression(), "Sin(90)");
  EXPECT_EQ(program.bench.focus(), &form().Text1);
}

}  // namespace
}  // namespace tarnmill
