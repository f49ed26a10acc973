#include "complex/complex_window.h"

namespace tarnmill {
namespace {

class ComplexEntry : public ComplexWindow {};

TEST_F(ComplexEntry, OpensWithTheFirstFunctionAndTheFirstFieldChosen) {
  EXPECT_EQ(to_utf8(form().Caption.get()), "Tarnmill - Complex");
  EXPECT_EQ(to_utf8(form().ComboFunction.Text.get()), "Addition");
  EXPECT_EQ(to_utf8(form().LabelRule.Caption.get()), "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)");
  EXPECT_EQ(to_utf8(form().CommandCalculate.Caption.get()), "CALCULATE !");
  EXPECT_EQ(to_utf8(form().Readout.Caption.get()), "0.");
  for (const TextBox* field : {&form().txtCa, &form().txtCb, &form().txtCc, &form().txtCd}) {
    EXPECT_EQ(text(*field), "0.");
    EXPECT_TRUE(field->Locked);
  }
  for (const TextBox* box :
       {&form().Label1c, &form().Label2c, &form().TextResultReal, &form().TextResultImaginary}) {
    EXPECT_TRUE(box->Locked);
  }
  EXPECT_EQ(text(form().TextResultReal), "0");
  EXPECT_EQ(text(form().TextResultImaginary), "0");
  EXPECT_EQ(result(), "0");
  EXPECT_EQ(form().checka.Value, 1);
  EXPECT_EQ(form().Check1.Value, 0);
  EXPECT_EQ(form().Check2.Value, 1);
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
  EXPECT_FALSE(form().Label4.Visible);
  expect_no_message();
}

TEST_F(ComplexEntry, TheDropDownHasItsTwelveFunctionsInOrder) {
  const char* names[] = {"Addition",
                         "Subtraction",
                         "Multiplication",
                         "Division",
                         "Magnitude of Complex 1",
                         "e ^ (Complex 1)",
                         "(Complex 1) ^ (Complex 2)",
                         "Log (Complex 1)",
                         "Log (Complex 1) [base (Complex 2)]",
                         "Sin (Complex 1)",
                         "Cos (Complex 1)",
                         "Tan (Complex 1)"};
  ASSERT_EQ(form().ComboFunction.items().size(), std::size(names));
  for (std::size_t i = 0; i < std::size(names); ++i) {
    EXPECT_EQ(to_utf8(form().ComboFunction.items()[i]), names[i]);
  }
}

TEST_F(ComplexEntry, KeysHaveTheirTooltips) {
  const std::pair<const Control*, const char*> rows[] = {
      {&form().cmda, " Real of Complex 1 "},
      {&form().cmdb, " Imaginary of Complex1 "},
      {&form().cmdc, "  Real of Complex 2  "},
      {&form().cmdd, "  Imaginary of Complex 2  "},
      {&form().LabelRezultat, " Result "},
      {&form().cmdconv, " Replace/Swap"},
      {&form().cmdlog, " Log (A+iB) to the base e or (C+iD) "},
      {&form().cmdMemory2, ""},
      {&form().Command1, " Argument of (A + i B)"},
      {&form().cmdExp, " ( A + i B )^( C + i D ) "},
      {&form().cmde, " e^( A + i B ) "},
      {&form().cmdSin, " Sinus of Complex ( A + i B ) "},
      {&form().cmdOver, " 1 / ( A + i B ) "},
      {&form().cmdLn, " log ( A + i B ) "},
      {&form().pi, " Magnitude of ( A + i B ) "},
      {&form().Image11, " Advanced Mode "},
      {&form().imev, " Evaluator "},
      {&form().img, " Graph Mode "},
  };
  for (const auto& [control, tooltip] : rows) {
    EXPECT_EQ(to_utf8(control->ToolTipText.get()), tooltip) << control->name();
  }
}

struct TypingRow {
  const char* keys;
  const char* field;
};

class ComplexTyping : public ComplexEntry, public ::testing::WithParamInterface<TypingRow> {};

TEST_P(ComplexTyping, BuildsTheNumberInTheChosenField) {
  type(GetParam().keys);
  EXPECT_EQ(text(form().txtCa), GetParam().field);
  EXPECT_EQ(text(form().txtCb), "0.");
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
  expect_no_message();
}

INSTANTIATE_TEST_SUITE_P(Keys, ComplexTyping,
                         ::testing::Values(TypingRow{"7", "7."}, TypingRow{"78", "78."},
                                           TypingRow{"1.5", "1.5"}, TypingRow{".5", "0.5"},
                                           TypingRow{"1..5", "1.5"}, TypingRow{"-", "0."},
                                           TypingRow{"78-", "-78"}, TypingRow{"78-5", "-785"},
                                           TypingRow{"78C", "0."}, TypingRow{"78C4", "4."},
                                           TypingRow{"78A", "0."}, TypingRow{"78A3", "3."}));

TEST_F(ComplexEntry, ADigitThatFindsNoPointIsNotTold) {
  type("5");
  act([this] { form().Readout.Caption = u"120"; });
  type("7");
  EXPECT_EQ(text(form().txtCa), "0.");
  expect_no_message();
}

TEST_F(ComplexEntry, ASignBeyondTheRangeIsNotTold) {
  act([this] { form().Readout.Caption = u"1E+999"; });
  type("-");
  EXPECT_EQ(to_utf8(form().Readout.Caption.get()), "1E+999");
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
  expect_no_message();
}

TEST_F(ComplexEntry, AFieldKeyChoosesItsField) {
  Button* const keys[] = {&form().cmda, &form().cmdb, &form().cmdc, &form().cmdd};
  CheckBox* const boxes[] = {&form().checka, &form().checkb, &form().checkc, &form().checkd};
  TextBox* const fields[] = {&form().txtCa, &form().txtCb, &form().txtCc, &form().txtCd};
  for (const std::size_t chosen : {1U, 2U, 3U, 0U}) {
    act([&] { keys[chosen]->press(); });
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_EQ(boxes[i]->Value, i == chosen ? 1 : 0);
      EXPECT_EQ(to_utf8(keys[i]->Picture.get()), i == chosen ? "selected" : "unselected");
    }
    EXPECT_EQ(program.bench.focus(), fields[chosen]);
  }
}

TEST_F(ComplexEntry, ChoosingAFieldAfterTypingEmptiesIt) {
  click(&frmComplex::cmdb);
  type("7");
  click(&frmComplex::cmda);
  type("4");
  EXPECT_EQ(text(form().txtCb), "7.");
  click(&frmComplex::cmdb);
  EXPECT_EQ(text(form().txtCb), "0.");
  EXPECT_EQ(text(form().txtCa), "4.");
}

TEST_F(ComplexEntry, ChoosingAFieldWhileTheDisplayIsZeroKeepsItsText) {
  operands(u"1", u"7");
  click(&frmComplex::cmdb);
  EXPECT_EQ(text(form().txtCb), "7");
  type("5");
  EXPECT_EQ(text(form().txtCb), "5.");
}

TEST_F(ComplexEntry, ClearAllEmptiesTheFieldsAndTheResultLineAndKeepsTheResult) {
  operands(u"1", u"2", u"3", u"4");
  click(&frmComplex::cmdzbir);
  type("A");
  for (const TextBox* field : {&form().txtCa, &form().txtCb, &form().txtCc, &form().txtCd}) {
    EXPECT_EQ(text(*field), "0.");
  }
  EXPECT_EQ(result(), "");
  EXPECT_EQ(to_utf8(form().lblRunning.Caption.get()), "");
  EXPECT_EQ(form().ResultReal.get(), 4);
  EXPECT_EQ(form().ResultImaginary.get(), 6);
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
}

struct KeyRow {
  int code;
  Button frmComplex::*key;
};

TEST_F(ComplexEntry, TheKeyboardPressesKeys) {
  const KeyRow rows[] = {{65, &frmComplex::cmda},         {66, &frmComplex::cmdb},
                         {67, &frmComplex::cmdc},         {68, &frmComplex::cmdd},
                         {106, &frmComplex::cmdmnozenje}, {107, &frmComplex::cmdzbir},
                         {109, &frmComplex::cmdrazlika},  {111, &frmComplex::cmddeljenje},
                         {110, &frmComplex::Decimal},     {46, &frmComplex::cmdClearAll}};
  for (TextBox* field : {&form().txtCa, &form().txtCb, &form().txtCc, &form().txtCd}) {
    for (const KeyRow& row : rows) {
      int pressed = 0;
      (form().*row.key).Click.handle([&pressed] { ++pressed; });
      int code = row.code;
      act([&] { field->KeyDown.raise(code, 0); });
      EXPECT_EQ(pressed, 1) << row.code;
    }
  }
}

TEST_F(ComplexEntry, TheKeypadTypesDigits) {
  for (int digit = 1; digit <= 10; ++digit) {
    int code = 96 + digit % 10;
    act([&] { form().txtCa.KeyDown.raise(code, 0); });
  }
  EXPECT_EQ(text(form().txtCa), "1234567890.");
}

TEST_F(ComplexEntry, OtherKeysOfTheKeyboardDoNothing) {
  type("5");
  for (int code : {13, 48, 57, 64, 69, 95, 108, 112}) {
    act([&] { form().txtCa.KeyDown.raise(code, 0); });
    EXPECT_EQ(text(form().txtCa), "5.") << code;
  }
  EXPECT_EQ(form().checka.Value, 1);
}

struct LineRow {
  const char16_t* real;
  const char16_t* imaginary;
  const char* line;
};

TEST_F(ComplexEntry, AnOperandStandsAsALine) {
  const LineRow rows[] = {{u"1.", u"-2", "1.  +  i (-2)"}, {u"0.", u"-2", "0.  +  i (-2)"},
                          {u"0.", u"2.", "i (2.)"},        {u"3.", u"0.", "3."},
                          {u"1.", u"2.", "1.  +  i 2."},   {u"0", u"0", "0  +  i 0"}};
  for (const LineRow& row : rows) {
    operands(row.real, row.imaginary, row.real, row.imaginary);
    EXPECT_EQ(text(form().Label1c), row.line);
    EXPECT_EQ(text(form().Label2c), row.line);
  }
}

TEST_F(ComplexEntry, APartBeyondTheRangeLeavesItsLine) {
  operands(u"1", u"2");
  act([this] { form().txtCa.Text = u"1E+999"; });
  EXPECT_EQ(text(form().Label1c), "1  +  i 2");
  expect_no_message();
}

TEST_F(ComplexEntry, OnlyARealPartAsksForANewCalculation) {
  for (TextBox* field : {&form().txtCa, &form().txtCb, &form().txtCc, &form().txtCd}) {
    click(&frmComplex::CommandCalculate);
    EXPECT_EQ(to_utf8(form().CommandCalculate.Caption.get()), "Done");
    act([&] { field->Text = field->Text.get() + u"1"; });
    const bool real = field == &form().txtCa || field == &form().txtCc;
    EXPECT_EQ(to_utf8(form().CommandCalculate.Caption.get()), real ? "CALCULATE !" : "Done");
  }
}

TEST_F(ComplexEntry, ThePointerReadsTheOperands) {
  operands(u"1", u"-2", u"3", u"4");
  const std::pair<TextBox*, const char*> rows[] = {{&form().txtCa, "a = 1"},
                                                   {&form().txtCb, "b = -2"},
                                                   {&form().txtCc, "c = 3"},
                                                   {&form().txtCd, "d = 4"},
                                                   {&form().Label1c, "a + ib = 1  +  i (-2)"},
                                                   {&form().Label2c, "c + id = 3  +  i 4"}};
  for (const auto& [box, tooltip] : rows) {
    TextBox& pointed_at = *box;
    act([&] { pointed_at.MouseMove.raise(0, 0, 1, 1); });
    EXPECT_EQ(to_utf8(pointed_at.ToolTipText.get()), tooltip);
  }
}

}  // namespace
}  // namespace tarnmill
