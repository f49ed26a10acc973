#include "analysis/frm_analiza.h"
#include "engine/number_text.h"
#include "engine/rounding.h"

namespace tarnmill {
namespace {

/// Two functions agree where their values do to this many decimals.
constexpr int decimals = 2;

}  // namespace

void frmAnaliza::cmdinters_Click() {
  if (!is_range_defined()) return;
  if (txtformula.Text->empty() || txtfunc2.Text->empty()) {
    MsgBox(u"Enter Function 1 and Function 2 first.", MessageIcon::information);
    return;
  }
  run({.head = u"Intersection for functions y1 = " + txtformula.Text.get() + u" and  y2 = " +
               txtfunc2.Text.get() + range_and_step(),
       .stops_at = [this](double x) { return is_intersection(x); },
       .report = [this](double x) { report_intersection(x); },
       .hides_progress = true});
}

bool frmAnaliza::is_intersection(double /*x*/) {
  cmdreplall_Click();
  Text3a.Text = with_x(Text3a, txtnula.Text.get());
  Evaluator1.formula(Text3.Text.get());
  Evaluator2.formula(Text3a.Text.get());
  Text9.Text = NumberToText(Evaluator1.Result(), regional());
  Text9a.Text = NumberToText(Evaluator2.Result(), regional());
  return RoundTo(Evaluator1.Result(), decimals) == RoundTo(Evaluator2.Result(), decimals);
}

void frmAnaliza::report_intersection(double x) {
  const Text y_text = NumberToText(RoundTo(Text9.Text.get(), decimals, regional()), regional());
  const Text point =
      u"in [x ; y] = [" + NumberToText(RoundTo(x, decimals), regional()) + u" ; " + y_text + u"]";
  lblroot.Caption = y_text;
  MsgBox(u"Functions y1 = " + txtformula.Text.get() + u" and y2 = " + txtfunc2.Text.get() +
             u" have intersection\r\n" + point,
         MessageIcon::none, u"Intersection");
  end_progress();
  append_line(u"found " + point);
}

}  // namespace tarnmill
