#include <functional>

#include "calculus/frm_integral.h"
#include "engine/checked.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/workbench.h"

namespace tarnmill {
namespace {

constexpr int normal = 0;
constexpr int hourglass = 11;
constexpr std::int32_t overflow = static_cast<std::int32_t>(FaultCode::Overflow);
constexpr std::int32_t division_by_zero = static_cast<std::int32_t>(FaultCode::DivisionByZero);

/// Runs a computation; gives the number of the fault that ended it, or 0.
std::int32_t fault_of(const std::function<void()>& computation) {
  try {
    computation();
  } catch (const Fault& fault) {
    return fault.number();
  }
  return 0;
}

}  // namespace

void frmIntegral::cmdIntegral_Click() {
  Surface.Cls();
  if (txtmax.Text->empty() || txtmin.Text->empty() || Text4.Text->empty()) {
    MsgBox(u"Function/Range not defined.", MessageIcon::exclamation);
    return;
  }
  resume_next([this] { integrate(); });
  workbench().MousePointer(normal);
}

void frmIntegral::integrate() {
  workbench().MousePointer(hourglass);
  show_in_use(lblintg, lblavg);
  Text13.Text = Text4.Text.get();
  rewrite();
  Evaluator1.formula(u"Push(200)");
  Evaluator1.formula(u"Push(" + txtmin.Text.get() + u")");
  Evaluator1.formula(u"Push(" + txtmax.Text.get() + u")");
  Evaluator1.formula(u"Intg(" + Text13.Text.get() + u")");
  Text10.Text = rounded_result();
  Evaluator1.formula(u"PopAll()");
}

void frmIntegral::cmdsrednja_Click() {
  Surface.Cls();
  const std::int32_t fault = fault_of([this] { average(); });
  workbench().MousePointer(normal);
  if (fault == overflow) {
    Text10.Text = u"Range not defined";
  } else if (Text10.Text->empty()) {
    MsgBox(u"Check sintax or range.", MessageIcon::critical);
  }
}

void frmIntegral::average() {
  workbench().MousePointer(hourglass);
  show_in_use(lblavg, lblintg);
  Text13.Text = Text4.Text.get();
  rewrite();
  Evaluator1.formula(u"Push(" + txtmin.Text.get() + u")");
  Evaluator1.formula(u"Push(" + txtmax.Text.get() + u")");
  Evaluator1.formula(u"Avg(" + Text13.Text.get() + u")");
  Text10.Text = rounded_result();
}

void frmIntegral::Command3_Click() {
  Surface.Cls();
  if (Text7.Text->empty() || Text8.Text->empty()) {
    MsgBox(u"Function/Point not defined.", MessageIcon::exclamation);
    return;
  }
  const std::int32_t fault = fault_of([this] { differentiate(); });
  workbench().MousePointer(normal);
  if (fault == overflow || fault == division_by_zero) {
    Text11.Text = u"Point not defined";
  } else if (Text11.Text->empty()) {
    MsgBox(u"Invalid input.", MessageIcon::critical);
  }
}

void frmIntegral::differentiate() {
  workbench().MousePointer(hourglass);
  Text13.Text = Text7.Text.get();
  rewrite();
  Text7a.Text = Text13.Text.get();
  Evaluator1.formula(u"Push(2000)");
  Evaluator1.formula(u"Push(" + Text8.Text.get() + u")");
  Evaluator1.formula(u"diff(" + Text13.Text.get() + u")");
  Text11.Text = rounded_result();
  Evaluator1.formula(u"PopAll()");
}

/// The word of the method not in use fades into the window.
void frmIntegral::show_in_use(Label& used, Label& unused) {
  used.ForeColor = 0;
  unused.ForeColor = button_face;
}

Text frmIntegral::rounded_result() {
  constexpr int decimals = 6;
  return NumberToText(RoundTo(Evaluator1.Result(), decimals), regional());
}

/// One unit is 20 pixels across and 30 up, from an origin at (200, 350). A point that the surface's
/// coordinates can't take is passed over.
void frmIntegral::draw_sample(double x, double y) {
  constexpr float base = 350;
  try {
    const float across = to_single(tarnmill::add(multiply(x, 20), 200));
    const float up = to_single(subtract(static_cast<double>(base), multiply(y, 30)));
    Surface.Line(across, base, across, up, Surface.ForeColor);
  } catch (const Fault& fault) {
    if (fault.is(FaultCode::Overflow)) workbench().MousePointer(normal);
  }
}

}  // namespace tarnmill
