#include "engine/rewriting.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"

namespace tarnmill {

void frmFunc::txtY_Change() { txtYs.Text = txtY.Text.get(); }

void frmFunc::txtYs_Change() {
  rewrite_powers();
  if (txtYs.Text->empty()) {
    txtY2.Text = u"";
    lblY3.Caption = u"";
  } else if (lblZagrada.Caption.get() == u"DA" && lblstepen.Caption.get() == u"DA") {
    txtY2.Text = txtY.Text.get();
  } else {
    lblstepen.Caption = u"";
    lblZagrada.Caption = u"";
  }
}

void frmFunc::txtY2_Change() {
  txtY3.Text = lblY3.Caption.get() == u"OK" ? txtY2.Text.get() : Text{};
  if (lblImenilac.Caption.get() == u"Ime") txtImenilac.Text = txtY.Text.get();
  copy_to_keypad(txtY2, "Text");
}

// Each assignment that alters the text raises its change, which runs the whole chain before this run goes on.
void frmFunc::rewrite_powers() {
  for (const Rule& rule : Rewriting::Zamenisve_rules()) {
    txtYs.Text = tarnmill::ReplaceAll(txtYs.Text.get(), rule.find, rule.replacement);
  }
}

/// The expression keypad keeps a copy of the exponent under the same names.
void frmFunc::copy_to_keypad(const Control& source, std::string_view property) {
  constexpr std::string_view keypad = "frmTast";
  if (!workbench().knows(keypad)) return;
  Control* copy = workbench().window(keypad).find_control(source.name());
  if (copy != nullptr) copy->find_property(property)->write(source.find_property(property)->read());
}

}  // namespace tarnmill
