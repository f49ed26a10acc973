// How numbers come into the four fields, and the operands as lines.

#include "complex/frm_complex.h"
#include "engine/fault.h"
#include "engine/number_text.h"

namespace tarnmill {

namespace {

/// An operand as one line of text. Overflow when a part is beyond the range.
Text operand_line(const Text& real, const Text& imaginary) {
  const double a = NumberFromText(real);
  const double b = NumberFromText(imaginary);
  if (b < 0) return real + u"  +  i (" + imaginary + u")";
  if (a == 0 && b != 0) return u"i (" + imaginary + u")";
  if (a != 0 && b == 0) return real;
  return real + u"  +  i " + imaginary;
}

}  // namespace

void frmComplex::connect_entry() {
  Readout.Change.handle(this, &frmComplex::Readout_Change);
  for (const auto& key : Number) {
    key->Click.handle([this, digit = key->Caption.get()] { enter([&] { entry_.press_digit(digit); }); });
  }
  Decimal.Click.handle([this] { enter([this] { entry_.press_point(); }); });
  cmdPlusMinus.Click.handle([this] {
    enter([this] { entry_.press_sign(); });
    take_focus();
  });
  CancelEntry.Click.handle([this] { enter([this] { entry_.clear_entry(); }); });
  cmdClearAll.Click.handle(this, &frmComplex::cmdClearAll_Click);
}

void frmComplex::connect_parts() {
  for (const Part& part : parts_) {
    part.key.Click.handle([this, &part] { choose(part); });
    part.field.KeyDown.handle(this, &frmComplex::field_KeyDown);
    part.field.MouseMove.handle(
        [&part](int, int, float, float) { part.field.ToolTipText = part.tooltip + part.field.Text.get(); });
  }
  const auto line_of = [this](TextBox& line, TextBox& real, TextBox& imaginary, const char16_t* tooltip) {
    real.Change.handle([&] {
      show_operand(line, real, imaginary);
      // Only the real parts ask for a new calculation.
      CommandCalculate.Caption = u"CALCULATE !";
    });
    imaginary.Change.handle([&] { show_operand(line, real, imaginary); });
    line.MouseMove.handle(
        [&line, tooltip](int, int, float, float) { line.ToolTipText = tooltip + line.Text.get(); });
  };
  line_of(Label1c, txtCa, txtCb, u"a + ib = ");
  line_of(Label2c, txtCc, txtCd, u"c + id = ");
}

/// Nobody is told of a failure here; the entry stays as far as it came.
void frmComplex::report(const Text& /*message*/, MessageIcon /*icon*/) {}

void frmComplex::enter(const std::function<void()>& key) {
  try {
    key();
  } catch (const Fault&) {
    take_focus();
  }
}

const frmComplex::Part& frmComplex::active_part() const {
  for (const Part& part : parts_) {
    if (part.chosen.Value != 0) return part;
  }
  return parts_[0];
}

void frmComplex::Readout_Change() { active_part().field.Text = Readout.Caption; }

void frmComplex::choose(const Part& part) {
  for (const Part& each : parts_) {
    each.chosen.Value = &each == &part ? std::int16_t{1} : std::int16_t{0};
    each.key.Picture = &each == &part ? u"selected" : u"unselected";
  }
  // The field is chosen by now, so what this changes in the display empties it.
  Readout.Caption = entry_.zero();
  entry_.clear_entry();
}

void frmComplex::cmdClearAll_Click() {
  entry_.clear_all();
  for (const Part& part : parts_) part.field.Text = Readout.Caption;
  LabelRezultat.Caption = u"";
  lblRunning.Caption = u"";
  take_focus();
}

void frmComplex::field_KeyDown(int& KeyCode, int /*Shift*/) {
  constexpr int letter_a = 65;
  constexpr int letter_d = 68;
  constexpr int keypad_0 = 96;
  constexpr int keypad_9 = 105;
  if (KeyCode >= letter_a && KeyCode <= letter_d) return parts_[KeyCode - letter_a].key.press();
  if (KeyCode >= keypad_0 && KeyCode <= keypad_9) return Number(KeyCode - keypad_0).press();
  switch (KeyCode) {
    case 106:  // the keypad's multiply
      return cmdmnozenje.press();
    case 107:  // add
      return cmdzbir.press();
    case 109:  // subtract
      return cmdrazlika.press();
    case 111:  // divide
      return cmddeljenje.press();
    case 110:  // decimal
      return Decimal.press();
    case 46:  // Delete
      return cmdClearAll.press();
    default:
      return;
  }
}

void frmComplex::show_operand(TextBox& line, const TextBox& real, const TextBox& imaginary) {
  try {
    line.Text = operand_line(real.Text, imaginary.Text);
  } catch (const Fault&) {
    // A part that is no number of this machine leaves the line as it was.
    return;
  }
}

}  // namespace tarnmill
