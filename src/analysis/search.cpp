#include "analysis/frm_analiza.h"
#include "engine/checked.h"
#include "engine/counted_loop.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/workbench.h"

namespace tarnmill {
namespace {

constexpr int normal = 0;
constexpr int hourglass = 11;

}  // namespace

bool frmAnaliza::is_range_defined() {
  const bool defined = !txtgore.Text->empty() && !txtdole.Text->empty();
  if (!defined) MsgBox(u"Range is not defined.", MessageIcon::information);
  return defined;
}

bool frmAnaliza::require_formula(const Text& complaint) {
  const bool given = !txtformula.Text->empty();
  if (!given) MsgBox(complaint, MessageIcon::information);
  return given;
}

Text frmAnaliza::range_and_step() const {
  return u" in range x = [" + txtdole.Text.get() + u";" + txtgore.Text.get() + u"] with Step = " +
         Combo1.Text.get();
}

/// A fault ends the search without a word: the head stays in the log with nothing behind it.
void frmAnaliza::run(const Search& search) {
  try {
    const double dole = NumberFromText(txtdole.Text.get());
    const double gore = NumberFromText(txtgore.Text.get());
    lblroot.Caption = u"";
    append_head(search.head);
    Command1_Click();
    rewrite();
    workbench().MousePointer(hourglass);
    if (walk(search, dole, gore)) return;
    if (lblroot.Caption->empty()) {
      append_line(u"NOT FOUND (Decrease both range and step and try again.)");
      if (search.hides_progress) pb1.Visible = false;
    }
    workbench().MousePointer(normal);
  } catch (const Fault&) {
    workbench().MousePointer(normal);
  }
}

bool frmAnaliza::walk(const Search& search, double dole, double gore) {
  const double step = NumberFromTextStrict(Combo1.Text.get(), regional());
  return counted_loop(dole, gore, step, [&](double x) {
    show_progress(x, dole, gore);
    txtnula.Text = NumberToText(x, regional());
    if (search.stops_at(x)) {
      search.report(x);
      return true;
    }
    restore_expressions();
    return false;
  });
}

void frmAnaliza::show_progress(double x, double dole, double gore) {
  constexpr double whole = 100;
  const double percent = RoundTo(divide(multiply(whole, subtract(x, dole)), subtract(gore, dole)), 0);
  pb1.Visible = true;
  pb1.advance_to(percent);
  if (pb1.value() == whole) pb1.Visible = false;
}

void frmAnaliza::end_progress() {
  workbench().MousePointer(normal);
  pb1.Visible = false;
}

}  // namespace tarnmill
