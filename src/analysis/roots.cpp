#include "analysis/frm_analiza.h"
#include "engine/fault.h"
#include "engine/non_finite_text.h"
#include "engine/number_text.h"
#include "engine/rounding.h"

namespace tarnmill {

void frmAnaliza::cmdNula_Click() {
  if (!is_range_defined() || !require_formula(u"Enter Function 1 first.")) return;
  run({.head = u"Root(s) for y = " + txtformula.Text.get() + range_and_step(),
       .stops_at = [this](double x) { return is_root(x); },
       .report = [this](double) { report_root(); }});
}

bool frmAnaliza::is_root(double /*x*/) {
  constexpr int decimals = 3;
  cmdreplall_Click();
  Text9.Text = evaluated(Evaluator1, Text3);
  return RoundTo(Evaluator1.Result(), decimals) == 0;
}

void frmAnaliza::report_root() {
  constexpr int decimals = 3;
  const Text root = NumberToText(RoundTo(txtnula.Text.get(), decimals, regional()), regional());
  lblroot.Caption = root;
  append_line(u"x = " + root);
  MsgBox(u"Function y = " + txtformula.Text.get() + u"\r\nhas root in x = " + root + u".");
  end_progress();
}

void frmAnaliza::cmdypresek_Click() {
  if (!require_formula(u"Enter Function 1  first.")) return;
  try {
    find_y_intersection();
  } catch (const Fault&) {
    report_undefined_at_zero(u"NOTFOUND");
  }
}

void frmAnaliza::find_y_intersection() {
  constexpr int decimals = 6;
  lblroot.Caption = u"";
  append_head(u"Y-Intersection for y = " + txtformula.Text.get());
  Command1_Click();
  rewrite();
  Text3.Text = with_x(Text3, txtnulao.Text.get());
  Text9.Text = evaluated(Evaluator4, Text3);
  if (is_non_finite_text(Text9.Text.get())) {
    report_undefined_at_zero(u"NOT FOUND");
    return;
  }
  const Text value = NumberToText(RoundTo(Text9.Text.get(), decimals, regional()), regional());
  lblroot.Caption = value;
  append_line(u"y = " + value);
}

void frmAnaliza::report_undefined_at_zero(const Text& line) {
  MsgBox(u"Function is not defined for x = 0.", MessageIcon::exclamation);
  append_line(line);
}

}  // namespace tarnmill
