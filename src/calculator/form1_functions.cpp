// The keys that work on the displayed number.

#include "calculator/form1.h"
#include "engine/checked.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/desk.h"
#include "forms/workbench.h"

namespace tarnmill {

namespace {

constexpr double shown_ln_10 = 2.30258509299405;

constexpr const char16_t* invalid_input = u"Invalid input.";

}  // namespace

void Form1::connect_trigonometry() {
  constexpr Recovery no_number{FaultCode::TypeMismatch, MessageIcon::information};
  constexpr Recovery out_of_domain{FaultCode::InvalidArgument, MessageIcon::information};
  constexpr Recovery warned_out_of_domain{FaultCode::InvalidArgument, MessageIcon::exclamation};
  const FunctionKey keys[] = {
      {cmdSinr, sine_of_radians, no_number},
      {cmdsing, sine_of_degrees, no_number},
      {cmdcosr, cosine_of_radians, no_number},
      {cmdCosg, cosine_of_degrees, no_number},
      {cmdtanr, tangent_of_radians, no_number},
      {cmdtang, tangent_of_degrees, no_number},
      {cmdcotr, cotangent_of_radians, std::nullopt},
      {cmdcotg, cotangent_of_degrees, std::nullopt},
      {cmdasin, arcsine, out_of_domain},
      {cmdacos, arccosine, out_of_domain},
      {cmdatan, arctangent_key, warned_out_of_domain},
      {cmdacot, arccotangent, std::nullopt},
  };
  for (const FunctionKey& each : keys) {
    each.key.Click.handle([this, each] {
      if (each.recovery) {
        recovering(*each.recovery, [&] { answer(each.function); });
      } else {
        answer(each.function);
        take_focus();
      }
    });
  }
}

void Form1::connect_functions() {
  cmddeg.Picture.start_as(u"deg");
  cmdinv.Picture.start_as(u"inv");
  cmddeg.Click.handle(this, &Form1::cmddeg_Click);
  cmdinv.Click.handle(this, &Form1::cmdinv_Click);
  cmdconv.Click.handle(this, &Form1::cmdconv_Click);
  cmdlog.Click.handle(this, &Form1::cmdlog_Click);
  Command3.Click.handle(this, &Form1::Command3_Click);
  cmdfaktor.Click.handle(this, &Form1::cmdfaktor_Click);
  cmdOver.Click.handle(this, &Form1::cmdOver_Click);
  pi.Click.handle(this, &Form1::pi_Click);
  cmdcopy.Click.handle(this, &Form1::cmdcopy_Click);
}

void Form1::show_direct_keys(bool in_radians, bool in_degrees) {
  for (Button* key : {&cmdSinr, &cmdcosr, &cmdtanr, &cmdcotr}) key->Visible = in_radians;
  for (Button* key : {&cmdsing, &cmdCosg, &cmdtang, &cmdcotg}) key->Visible = in_degrees;
}

void Form1::show_inverse_keys(bool visible) {
  for (Button* key : {&cmdasin, &cmdacos, &cmdatan, &cmdacot}) key->Visible = visible;
}

AngleUnit Form1::angle_unit() const { return Check2.Value == 1 ? AngleUnit::degrees : AngleUnit::radians; }

double Form1::number() const { return NumberFromText(Readout.Text.get()); }

void Form1::show_number(double number) { Readout.Text = NumberToText(number, regional()); }

void Form1::recovering(const Recovery& recovery, const std::function<void()>& work) {
  try {
    work();
  } catch (const Fault& fault) {
    if (fault.is(recovery.reported)) MsgBox(invalid_input, recovery.icon);
  }
  take_focus();
}

void Form1::answer(const TrigonometricKey& function) {
  if (!function.special.empty()) {
    const double exact = NumberFromTextStrict(Readout.Text.get(), regional());
    if (const SpecialAnswer* special = function.find(exact, angle_unit())) {
      if (special->result) {
        show_number(*special->result);
      } else {
        MsgBox(invalid_input, MessageIcon::information);
      }
      return;
    }
  }
  show_number(function.general(number(), angle_unit()));
}

void Form1::cmddeg_Click() {
  if (Check1.Value == 0 && Check2.Value == 1) {
    Check2.Value = 0;
    cmddeg.Picture = u"rad";
    show_direct_keys(true, false);
  } else if (Check1.Value == 0 && Check2.Value == 0) {
    Check2.Value = 1;
    cmddeg.Picture = u"deg";
    show_direct_keys(false, true);
  } else if (Check1.Value == 1) {
    show_direct_keys(false, false);
    for (Button* key : {&cmdasin, &cmdacos, &cmdatan}) key->Visible = true;
  }
  take_focus();
}

void Form1::cmdinv_Click() {
  if (Check1.Value == 0) {
    Check1.Value = 1;
    cmdinv.Picture = u"inv-on";
    show_direct_keys(false, false);
    show_inverse_keys(true);
    cmddeg.Enabled = false;
    cmddeg.Picture = Check2.Value == 1 ? u"deg-disabled" : u"rad-disabled";
  } else {
    Check1.Value = 0;
    cmdinv.Picture = u"inv";
    show_inverse_keys(false);
    cmddeg.Enabled = true;
    // There and back brings out the direct keys and the picture of the unit that was set.
    cmddeg_Click();
    cmddeg_Click();
  }
  take_focus();
}

void Form1::cmdconv_Click() {
  show_number(angle_unit() == AngleUnit::degrees ? radians_of(number()) : degrees_of(number()));
  take_focus();
}

void Form1::cmdlog_Click() {
  recovering({FaultCode::InvalidArgument, MessageIcon::information},
             [this] { show_number(divide(natural_log(number()), shown_ln_10)); });
}

void Form1::Command3_Click() {
  recovering({FaultCode::InvalidArgument, MessageIcon::information},
             [this] { show_number(natural_log(number())); });
}

void Form1::cmdOver_Click() {
  const double x = number();
  if (x == 0) {
    MsgBox(u"Divide by zero?!");
    cmdClearAll_Click();
  } else {
    show_number(divide(1, x));
  }
  take_focus();
}

void Form1::cmdfaktor_Click() {
  try {
    show_number(factorial_of(ToInteger(number())));
  } catch (const Fault& fault) {
    if (fault.is(FaultCode::InvalidArgument)) MsgBox(Text{fault.description()});
  }
  take_focus();
}

double Form1::factorial_of(std::int16_t n) {
  if (n >= 171) {
    MsgBox(u"Input value is much to high.", MessageIcon::critical);
    return 0;
  }
  if (n < 0) {
    MsgBox(u"Input value must be a non-negative integer.", MessageIcon::critical);
    return 0;
  }
  if (n == 0) return 1;
  return multiply(n, factorial_of(static_cast<std::int16_t>(n - 1)));
}

std::int16_t Form1::greatest_common_divisor(std::int16_t a, std::int16_t b) const {
  std::int16_t remainder = 0;
  do {
    remainder = static_cast<std::int16_t>(Mod(a, b));
    a = b;
    b = remainder;
  } while (remainder != 0);
  return a;
}

void Form1::pi_Click() {
  show_number(shown_pi);
  entry_.DecimalFlag = -1;
  entry_.take_as_number();
  take_focus();
}

void Form1::cmdcopy_Click() {
  Desk& desk = bench().desk();
  desk.clear_clipboard();
  desk.set_clipboard_text(Readout.Text);
  take_focus();
}

}  // namespace tarnmill
