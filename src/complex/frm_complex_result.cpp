// The result on the display, what is done with it, and the memory.

#include <cmath>

#include "complex/frm_complex.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/desk.h"
#include "forms/workbench.h"

namespace tarnmill {

namespace {

/// Places that a result is shown with, stored with and carried on with.
constexpr int places = 5;
/// From here on the display is said to be too small.
constexpr double too_wide = 1E20;

Text rounded(const TextBox& part, const Regional& regional) {
  return NumberToText(RoundTo(part.Text.get(), places, regional), regional);
}

}  // namespace

void frmComplex::connect_result() {
  TextResultReal.Change.handle(this, &frmComplex::TextResultReal_Change);
  TextResultImaginary.Change.handle(this, &frmComplex::show_result);
  LabelRezultat.MouseMove.handle(
      [this](int, int, float, float) { LabelRezultat.ToolTipText = LabelRezultat.Caption; });
  cmdcopy.Click.handle(this, &frmComplex::cmdcopy_Click);
}

void frmComplex::show_parts() {
  TextResultReal.Text = NumberToText(ResultReal.get(), regional());
  TextResultImaginary.Text = NumberToText(ResultImaginary.get(), regional());
}

void frmComplex::TextResultReal_Change() {
  if (std::abs(RoundTo(ResultReal, places)) > too_wide ||
      std::abs(RoundTo(ResultImaginary, places)) > too_wide) {
    MsgBox(u"To see the whole result, put your mouse over the display.");
  }
  show_result();
}

void frmComplex::show_result() {
  const double s = RoundTo(ResultImaginary, places);
  const Text real = NumberToText(RoundTo(ResultReal, places), regional());
  const Text imaginary = NumberToText(s, regional());
  if (s < 0) {
    LabelRezultat.Caption = real + u"  +  i (" + imaginary + u")";
  } else if (s == 0) {
    LabelRezultat.Caption = real;
  } else {
    LabelRezultat.Caption = real + u"  +  i " + imaginary;
  }
}

void frmComplex::replace(TextBox& real, TextBox& imaginary) {
  real.Text = rounded(TextResultReal, regional());
  imaginary.Text = rounded(TextResultImaginary, regional());
  show_parts();
}

void frmComplex::replace_first() { replace(txtCa, txtCb); }

void frmComplex::replace_second() { replace(txtCc, txtCd); }

void frmComplex::swap_operands() {
  const ComplexOperands z = operands();
  txtCa.Text = NumberToText(z.c, regional());
  txtCb.Text = NumberToText(z.d, regional());
  txtCc.Text = NumberToText(z.a, regional());
  txtCd.Text = NumberToText(z.b, regional());
  show_parts();
}

void frmComplex::cmdcopy_Click() {
  Desk& desk = bench().desk();
  desk.clear_clipboard();
  desk.set_clipboard_text(LabelRezultat.Caption);
  take_focus();
}

void frmComplex::connect_memory() {
  cmdMemory1.Click.handle(this, &frmComplex::cmdMemory1_Click);
  cmdMemory3.Click.handle(this, &frmComplex::cmdMemory3_Click);
}

void frmComplex::cmdMemory1_Click() {
  memory_.start_blinking();
  const Text& result = LabelRezultat.Caption;
  if (result == u"0." || result == u"0") {
    MsgBox(u"Can't add null result.", MessageIcon::information);
    return;
  }
  memory_.show_before_store();
  try {
    const Text real = rounded(TextResultReal, regional());
    const Text imaginary = rounded(TextResultImaginary, regional());
    txtmemoryReal.Text = real;
    txtmemoryImaginar.Text = imaginary;
    ComplexMemory = result;
    lblMemory1.Caption = result;
  } catch (const Fault& fault) {
    if (!fault.is(FaultCode::TypeMismatch)) throw;
    MsgBox(u"Perform some calculations first.", MessageIcon::information);
  }
  take_focus();
}

void frmComplex::cmdMemory3_Click() {
  ComplexMemory = 0;
  txtmemoryReal.Text = u"";
  txtmemoryImaginar.Text = u"";
  memory_.clear();
  take_focus();
}

void frmComplex::recall(TextBox& line, TextBox& real, TextBox& imaginary) {
  if (lblMemory1.Caption->empty()) {
    MsgBox(u"Memory is empty.", MessageIcon::information);
    return;
  }
  line.Text = ComplexMemory->to_text(regional());
  real.Text = txtmemoryReal.Text;
  imaginary.Text = txtmemoryImaginar.Text;
  entry_.take_as_number();
}

void frmComplex::recall_as_first() { recall(Label1c, txtCa, txtCb); }

void frmComplex::recall_as_second() { recall(Label2c, txtCc, txtCd); }

}  // namespace tarnmill
