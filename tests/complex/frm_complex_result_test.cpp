#include "complex/complex_window.h"

namespace tarnmill {
namespace {

class ComplexResult : public ComplexWindow {
 protected:
  void show(double re, double im) {
    act([&] {
      form().ResultReal = re;
      form().ResultImaginary = im;
      form().show_parts();
    });
  }
};

struct LineRow {
  double re;
  double im;
  const char* line;
};

TEST_F(ComplexResult, StandsRoundedOnOneLine) {
  const LineRow rows[] = {{1, -2, "1  +  i (-2)"},
                          {1.0 / 3, 2.0 / 3, "0.33333  +  i 0.66667"},
                          {5, 0, "5"},
                          {0, 3, "0  +  i 3"},
                          {2, 0.000001, "2"},
                          {2, -0.000001, "2"},
                          {0.000025, 1, "2E-05  +  i 1"}};
  for (const LineRow& row : rows) {
    show(row.re, row.im);
    EXPECT_EQ(result(), row.line);
  }
  expect_no_message();
}

TEST_F(ComplexResult, PartsStandInFullLength) {
  show(1.0 / 3, -2.0 / 3);
  EXPECT_EQ(text(form().TextResultReal), "0.333333333333333");
  EXPECT_EQ(text(form().TextResultImaginary), "-0.666666666666667");
}

TEST_F(ComplexResult, AWideResultTellsToPointAtTheDisplay) {
  const Text hint = u"To see the whole result, put your mouse over the display.";
  operands(u"1E+25", u"0");
  click(&frmComplex::cmdzbir);
  expect_message(hint);
  EXPECT_EQ(result(), "1E+25");
  show(-1E+25, 0);
  expect_message(hint);
  show(1, 1E+25);
  expect_message(hint);
  show(2, -1E+25);
  expect_message(hint);
  show(2, 1E+25);  // only the box of the real part tells
  expect_no_message();
  show(1E+20, 0);
  expect_no_message();
}

TEST_F(ComplexResult, ThePointerReadsIt) {
  show(1, 2);
  act([this] { form().LabelRezultat.MouseMove.raise(0, 0, 1, 1); });
  EXPECT_EQ(to_utf8(form().LabelRezultat.ToolTipText.get()), "1  +  i 2");
}

TEST_F(ComplexResult, ReplacesAnOperandInFiveDecimals) {
  show(1.0 / 3, -2.0 / 3);
  pick(&frmmenu::mnur1);
  EXPECT_EQ(text(form().txtCa), "0.33333");
  EXPECT_EQ(text(form().txtCb), "-0.66667");
  pick(&frmmenu::mnur2);
  EXPECT_EQ(text(form().txtCc), "0.33333");
  EXPECT_EQ(text(form().txtCd), "-0.66667");
}

TEST_F(ComplexResult, OperandsAreSwapped) {
  operands(u"1.50", u"2.", u"3.", u"-4");
  pick(&frmmenu::mnuswap);
  EXPECT_EQ(text(form().txtCa), "3");
  EXPECT_EQ(text(form().txtCb), "-4");
  EXPECT_EQ(text(form().txtCc), "1.5");
  EXPECT_EQ(text(form().txtCd), "2");
}

TEST_F(ComplexResult, IsCopiedAsItStands) {
  show(1, -2);
  program.desk.set_clipboard_text(u"before");
  click(&frmComplex::cmdcopy);
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "1  +  i (-2)");
  EXPECT_EQ(program.bench.focus(), &form().txtCa);
}

class ComplexMemoryKeys : public ComplexResult {};

TEST_F(ComplexMemoryKeys, ANullResultIsRefusedAndYetTheTimerRuns) {
  EXPECT_EQ(form().Timer1.Enabled.get(), false);
  click(&frmComplex::cmdMemory1);
  expect_message(u"Can't add null result.", MessageIcon::information);
  EXPECT_TRUE(form().Timer1.Enabled);
  EXPECT_EQ(form().Timer1.Interval.get(), 900);
  EXPECT_FALSE(form().Label4.Visible);
  act([this] { form().LabelRezultat.Caption = u"0."; });
  click(&frmComplex::cmdMemory1);
  expect_message(u"Can't add null result.", MessageIcon::information);
}

TEST_F(ComplexMemoryKeys, StoresThePartsInFiveDecimalsAndTheLine) {
  show(1.0 / 3, -2);
  click(&frmComplex::cmdMemory1);
  EXPECT_EQ(text(form().txtmemoryReal), "0.33333");
  EXPECT_EQ(text(form().txtmemoryImaginar), "-2");
  EXPECT_EQ(to_utf8(form().lblMemory1.Caption.get()), "0.33333  +  i (-2)");
  EXPECT_EQ(to_utf8(form().ComplexMemory->to_text(form().regional())), "0.33333  +  i (-2)");
  EXPECT_TRUE(form().Label4.Visible);
  EXPECT_EQ(to_utf8(form().cmdMemory1.Picture.get()), "memory-used");
  expect_no_message();
}

TEST_F(ComplexMemoryKeys, TheIndicatorBlinks) {
  show(1, 0);
  click(&frmComplex::cmdMemory1);
  EXPECT_EQ(form().Label4.ForeColor.get(), 12582912);
  act([this] { form().Timer1.Tick.raise(); });
  EXPECT_EQ(form().Label4.ForeColor.get(), 65535);
  act([this] { form().Timer1.Tick.raise(); });
  EXPECT_EQ(form().Label4.ForeColor.get(), 12582912);
  act([this] { form().Label4.MouseMove.raise(0, 0, 1, 1); });
  EXPECT_EQ(to_utf8(form().Label4.ToolTipText.get()), "1");
}

TEST_F(ComplexMemoryKeys, WithoutNumbersAsksForACalculation) {
  act([this] {
    form().LabelRezultat.Caption = u"words";
    form().TextResultImaginary.Text = u"";
    form().LabelRezultat.Caption = u"words";
  });
  click(&frmComplex::cmdMemory1);
  expect_message(u"Perform some calculations first.", MessageIcon::information);
  EXPECT_EQ(to_utf8(form().lblMemory1.Caption.get()), "");
}

TEST_F(ComplexMemoryKeys, RecallsAsEitherOperand) {
  show(1, -2);
  click(&frmComplex::cmdMemory1);
  pick(&frmmenu::mnuasA);
  EXPECT_EQ(text(form().txtCa), "1");
  EXPECT_EQ(text(form().txtCb), "-2");
  EXPECT_EQ(text(form().Label1c), "1  +  i (-2)");
  EXPECT_EQ(text(form().txtCc), "0.");
  pick(&frmmenu::mnuasC);
  EXPECT_EQ(text(form().txtCc), "1");
  EXPECT_EQ(text(form().txtCd), "-2");
  EXPECT_EQ(text(form().Label2c), "1  +  i (-2)");
  expect_no_message();
}

TEST_F(ComplexMemoryKeys, DigitsContinueAfterARecall) {
  show(4, 0);
  click(&frmComplex::cmdMemory1);
  pick(&frmmenu::mnuasA);
  type("7");
  EXPECT_EQ(text(form().txtCa), "07.");  // the display behind the fields still held its zero
}

TEST_F(ComplexMemoryKeys, AnEmptyMemoryIsTold) {
  pick(&frmmenu::mnuasA);
  expect_message(u"Memory is empty.", MessageIcon::information);
  pick(&frmmenu::mnuasC);
  expect_message(u"Memory is empty.", MessageIcon::information);
}

TEST_F(ComplexMemoryKeys, ClearingEmptiesIt) {
  show(1, -2);
  click(&frmComplex::cmdMemory1);
  click(&frmComplex::cmdMemory3);
  EXPECT_FALSE(form().Timer1.Enabled);
  EXPECT_FALSE(form().Label4.Visible);
  EXPECT_EQ(to_utf8(form().cmdMemory1.Picture.get()), "memory-empty");
  EXPECT_EQ(to_utf8(form().lblMemory1.Caption.get()), "");
  EXPECT_EQ(text(form().txtmemoryReal), "");
  EXPECT_EQ(text(form().txtmemoryImaginar), "");
  EXPECT_TRUE(form().ComplexMemory->is_number());
  pick(&frmmenu::mnuasA);
  expect_message(u"Memory is empty.", MessageIcon::information);
}

}  // namespace
}  // namespace tarnmill
