#include <cmath>

#include "calculus/frm_integral.h"
#include "engine/checked.h"
#include "engine/fault.h"
#include "engine/non_finite_text.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"

namespace tarnmill {

void frmIntegral::Command4_Click() {
  Text13.Text = tarnmill::ReplaceAll(Text13.Text.get(), txtk.Text.get(), txtX.Text.get());
}

void frmIntegral::Command2_Click() {
  Text12.Text = tarnmill::ReplaceAll(Text12.Text.get(), txtX.Text.get(), txtk.Text.get());
  workbench().window<frmFunc>().txtY.Text = Text12.Text.get();
}

void frmIntegral::cmdreplall_Click() {
  Text3.Text = tarnmill::ReplaceAll(Text3.Text.get(), txtX.Text.get(), Text14.Text.get());
}

void frmIntegral::Command1_Click() {
  resume_next([this] {
    Evaluator1.formula(Text3.Text.get());
    Text9.Text = rounded_result();
  });
}

void frmIntegral::cmdTangenta_Click() {
  resume_next([this] {
    Text7.Text = Text13.Text.get();
    rewrite();
    Text3.Text = Text13.Text.get();
    cmdreplall_Click();
    Text8.Text = Text14.Text.get();
    Command3_Click();
    Command1_Click();
    compose_line();
  });
}

/// Slope and value go into the text as they were found; the long form stands where one of them is no number.
void frmIntegral::compose_line() {
  constexpr int decimals = 6;
  const double slope = NumberFromText(Text11.Text.get());
  const double point = NumberFromText(Text8.Text.get());
  const double value = NumberFromText(Text9.Text.get());
  Text19.Text = Text11.Text.get() + u" * (x - (" + Text8.Text.get() + u" ))  + (" + Text9.Text.get() + u")";
  const double cut = RoundTo(tarnmill::add(value, multiply(point, negate(slope))), decimals);
  if (is_non_finite_text(Text9.Text.get()) || is_non_finite_text(Text11.Text.get())) {
    Text12.Text = Text19.Text.get();
  } else {
    const Text sign = cut < 0 ? u"*x - " : u"*x + ";
    Text12.Text = Text11.Text.get() + sign + NumberToText(std::abs(cut), regional());
  }
}

}  // namespace tarnmill
