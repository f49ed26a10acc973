#include "analysis/frm_analiza.h"
#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "forms/limit_field.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"

namespace tarnmill {

void frmAnaliza::Command1_Click() {
  Text3.Text = txtformula.Text.get();
  Text3a.Text = txtfunc2.Text.get();
}

void frmAnaliza::Command4_Click() {
  Text3.Text = tarnmill::ReplaceAll(Text3.Text.get(), txtk.Text.get(), txtX.Text.get());
}

void frmAnaliza::Command2_Click() {
  Text3.Text = tarnmill::ReplaceAll(Text3.Text.get(), txtX.Text.get(), txtk.Text.get());
  workbench().window<frmFunc>().txtY.Text = Text3.Text.get();
}

void frmAnaliza::cmdreplall_Click() { Text3.Text = with_x(Text3, txtnula.Text.get()); }

void frmAnaliza::cmdzam_Click() {
  Text3.Text = Rewriting::cmdzam(Text3.Text.get());
  Text3a.Text = Rewriting::cmdzam(Text3a.Text.get());
  Text15.Text = Text{Rewriting::cmdzam_rules().back().find};
  Text16.Text = Text{Rewriting::cmdzam_rules().back().replacement};
  pass_on_rewritten();
}

void frmAnaliza::rewrite() {
  Text3.Text = Rewriting::full(Text3.Text.get());
  Text3a.Text = Rewriting::full(Text3a.Text.get());
  Text15.Text = Text{Rewriting::full_rules().back().find};
  Text16.Text = Text{Rewriting::full_rules().back().replacement};
  pass_on_rewritten();
}

void frmAnaliza::pass_on_rewritten() {
  for (TextBox* copy : {&txtformula2, &Text1, &Text2}) copy->Text = Text3.Text.get();
  txtfunc2a.Text = Text3a.Text.get();
}

void frmAnaliza::restore_expressions() {
  Text3.Text = txtformula2.Text.get();
  Text3a.Text = txtfunc2a.Text.get();
}

Text frmAnaliza::with_x(const TextBox& expression, const Text& value) const {
  return tarnmill::ReplaceAll(expression.Text.get(), txtX.Text.get(), value);
}

Text frmAnaliza::evaluated(ServiceControl& evaluator, const TextBox& expression) {
  evaluator.formula(expression.Text.get());
  return NumberToText(evaluator.Result(), regional());
}

void frmAnaliza::normalise_range() {
  if (!range_evaluator_) range_evaluator_.emplace(workbench().evaluator_host());
  for (TextBox* limit : {&txtgore, &txtdole}) evaluate_limit(*limit, *range_evaluator_);
}

}  // namespace tarnmill
