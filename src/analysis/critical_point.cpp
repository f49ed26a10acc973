#include <cmath>

#include "analysis/frm_analiza.h"
#include "engine/checked.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "engine/variant.h"

namespace tarnmill {

void frmAnaliza::Command3_Click() {
  if (!is_range_defined() || !require_formula(u"Enter Function 1  first.")) return;
  run({.head = u"Critical point for y = " + txtformula.Text.get() + range_and_step(),
       .stops_at = [this](double x) { return is_critical(x); },
       .report = [this](double x) { report_critical(x); }});
}

bool frmAnaliza::is_critical(double /*x*/) {
  constexpr int decimals = 3;
  Evaluator1.formula(u"Push(" + txtnula.Text.get() + u")");
  Evaluator1.formula(u"diff(" + Text3.Text.get() + u")");
  Text9.Text = NumberToText(Evaluator1.Result(), regional());
  return RoundTo(Evaluator1.Result(), decimals) == 0;
}

void frmAnaliza::report_critical(double x) {
  constexpr int decimals = 6;
  const Text point = NumberToText(RoundTo(txtnula.Text.get(), decimals, regional()), regional());
  lblroot.Caption = point;
  cmdreplall_Click();
  txtrez2.Text = evaluated(Evaluator1, Text3);
  txtrez.Text = NumberToText(RoundTo(Evaluator1.Result(), decimals), regional());
  evaluate_sides(x);
  append_line(verdict() + txtrez.Text.get() + u" for x = " + point);
  MsgBox(u"Function y = " + txtformula.Text.get() + u" has critical point\r\nin x = " + point + u".",
         MessageIcon::none, u"Critical Point");
  end_progress();
}

void frmAnaliza::evaluate_sides(double x) {
  constexpr double aside = 0.1;
  nlevo.Text = NumberToText(subtract(x, aside), regional());
  Text1.Text = with_x(Text1, nlevo.Text.get());
  txtlevo.Text = evaluated(Evaluator2, Text1);
  ndesno.Text = NumberToText(tarnmill::add(x, aside), regional());
  Text2.Text = with_x(Text2, ndesno.Text.get());
  txtdesno.Text = evaluated(Evaluator3, Text2);
}

/// The second test takes the outcome of a comparison as a number. What it compares the value with is the text
/// "0" before that of the right-hand value, which reads as a number only where that value is not negative;
/// any other text counts as greater than every number.
Text frmAnaliza::verdict() {
  const double right = NumberFromText(txtdesno.Text.get());
  const double left = NumberFromText(txtlevo.Text.get());
  const double value = NumberFromText(txtrez2.Text.get());
  if (value >= 0 && right > value && left > value) return u" Ymin = ";
  const Regional& here = regional();
  const Variant text{u"0" + NumberToText(right, here)};
  const double reached = compare(text, value, here) <= 0 ? -1 : 0;
  if (value > reached && left < value) return u" Ymax = ";
  return std::abs(left) < std::abs(value) ? u" Ymin = " : u"Critical point: y = ";
}

}  // namespace tarnmill
