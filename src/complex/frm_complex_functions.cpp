// The drop-down's functions and the keys that compute.

#include "complex/frm_complex.h"
#include "engine/fault.h"
#include "engine/number_text.h"

namespace tarnmill {

namespace {

/// A key with an operation of its own.
struct DirectKey {
  Button frmComplex::*key;
  bool of_one;
  ComplexOperation operation;
};

constexpr DirectKey direct_keys[] = {
    {&frmComplex::cmdzbir, false, of_two<ComplexAdd>},
    {&frmComplex::cmdrazlika, false, of_two<ComplexSubtract>},
    {&frmComplex::cmdmnozenje, false, of_two<ComplexMultiply>},
    {&frmComplex::cmddeljenje, false, guarded_division},
    {&frmComplex::cmde, true, of_one<ComplexExp>},
    {&frmComplex::cmdSin, true, of_one<ComplexSin>},
    {&frmComplex::cmdCos, true, of_one<ComplexCos>},
    {&frmComplex::cmdtang, true, of_one<ComplexTan>},
    {&frmComplex::cmdSinh, true, of_one<ComplexSinh>},
    {&frmComplex::cmdCosh, true, of_one<ComplexCosh>},
    {&frmComplex::cmdTanh, true, of_one<ComplexTanh>},
    // Without a recovery: the reciprocal of zero ends the program.
    {&frmComplex::cmdOver, true, of_one<ComplexReciprocal>},
    {&frmComplex::cmdLn, true, logarithm_by_key},
    {&frmComplex::pi, true, magnitude},
};

}  // namespace

void frmComplex::connect_keys() {
  CommandCalculate.Click.handle(this, &frmComplex::CommandCalculate_Click);
  for (const DirectKey& each : direct_keys) {
    (this->*each.key).Click.handle([this, &each] { compute_by_key(each.operation, each.of_one); });
  }
  cmdExp.Click.handle(this, &frmComplex::cmdExp_Click);
}

ComplexOperands frmComplex::operands() const {
  return {NumberFromText(txtCa.Text.get()), NumberFromText(txtCb.Text.get()),
          NumberFromText(txtCc.Text.get()), NumberFromText(txtCd.Text.get())};
}

/// False when the operation refused its operands, which the person was told.
bool frmComplex::compute(ComplexOperation operation) {
  double re = ResultReal;
  double im = ResultImaginary;
  const auto refusal = operation(operands(), re, im, messages());
  ResultReal = re;
  ResultImaginary = im;
  if (refusal) MsgBox(refusal->text, MessageIcon::exclamation, refusal->title);
  return !refusal;
}

void frmComplex::CommandCalculate_Click() {
  CommandCalculate.Caption = u"Done";
  enable_second(true);
  const ComplexFunction* function = find_complex_function(ComboFunction.Text.get());
  if (function != nullptr && !compute(function->run)) return;
  update_display();
}

void frmComplex::compute_by_key(ComplexOperation operation, bool of_one) {
  enable_second(!of_one);
  if (compute(operation)) update_display();
  take_focus();
}

void frmComplex::cmdExp_Click() {
  try {
    compute_by_key(power_by_key, false);
  } catch (const Fault&) {
    take_focus();
  }
}

void frmComplex::logarithm_to_second() {
  enable_second(true);
  if (compute(logarithm_to_base_by_key)) update_display();
}

void frmComplex::argument_in_radians() {
  enable_second(false);
  compute(of_one<ComplexArgRad>);
  update_display();
}

void frmComplex::argument_in_degrees() {
  enable_second(false);
  const ComplexOperands z = operands();
  Text degrees;
  double im = ResultImaginary;
  ComplexArgDeg(z.a, z.b, degrees, im, regional(), messages());
  if (!degrees.empty()) ResultReal = NumberFromTextStrict(degrees, regional());
  ResultImaginary = im;
  update_display();
}

void frmComplex::update_display() {
  const ComplexFunction* function = find_complex_function(ComboFunction.Text.get());
  if (function == nullptr) return;
  LabelRule.Caption = function->rule;
  if (function->of_one) enable_second(false);
  show_parts();
}

void frmComplex::enable_second(bool enabled) {
  for (TextBox* box : {&txtCc, &txtCd, &Label2c}) box->Enabled = enabled;
}

}  // namespace tarnmill
