// What the keypad does with the text of its expression.

#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "engine/rounding.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "keypad/frm_tast.h"
#include "shell/angle_conversion.h"
#include "shell/modes.h"

namespace tarnmill {

namespace {

constexpr int enter_key = 13;
constexpr int delete_key = 46;

/// Four digits of the constants are what people see in the field and what is computed with.
constexpr Rule short_constants[] = {
    {u"pi", u"3.1415"},
    {u"Pi", u"3.1415"},
    {u"(e)", u"(2.718)"},
    {u"(E)", u"(2.718)"},
};

}  // namespace

void frmTast::connect_text() {
  Text1.Change.handle(this, &frmTast::Text1_Change);
  Text1.KeyDown.handle(this, &frmTast::Text1_KeyDown);
  boxC1.KeyDown.handle(this, &frmTast::boxC1_KeyDown);
  boxC1.Click.handle(this, &frmTast::boxC1_Click);
  Text1.MouseMove.handle([this](int, int, float, float) { Text1.ToolTipText = Text1.Text; });
  Text2.MouseMove.handle([this](int, int, float, float) { Text2.ToolTipText = Text2.Text; });
  lbrezultat.MouseMove.handle(
      [this](int, int, float, float) { lbrezultat.ToolTipText = lbrezultat.Caption; });
}

void frmTast::connect_commands() {
  Command5.Click.handle(this, &frmTast::Command5_Click);
  rez.Click.handle(this, &frmTast::evaluate);
  DEL.Click.handle(this, &frmTast::clear_expression);
  Command3.Click.handle(this, &frmTast::Command3_Click);
  Command6.Click.handle(this, &frmTast::Command6_Click);
  cmdrad.Click.handle(this, &frmTast::cmdrad_Click);
  Command1.Click.handle(this, &frmTast::copy_result);
  Command4.MouseDown.handle(this, &frmTast::Command4_MouseDown);
  Command8.Click.handle([this] { show_window(workbench(), "frmTabela"); });
  Command2.Click.handle(this, &frmTast::Command2_Click);
}

Evaluator& frmTast::evaluator() {
  if (!evaluator_) evaluator_.emplace(workbench().evaluator_host());
  return *evaluator_;
}

void frmTast::evaluate() { evaluator().Evaluate(Text1.Text.get(), false); }

void frmTast::Command5_Click() {
  for (const Rule& rule : short_constants) {
    Text1.Text = tarnmill::ReplaceAll(Text1.Text.get(), rule.find, rule.replacement);
  }
  evaluate();
}

void frmTast::Command6_Click() {
  if (Text2.Text->empty()) {
    MsgBox(u"Enter value for X or K.", MessageIcon::information);
    return;
  }
  // The letters within the names of functions change as well.
  for (const TextView letter : {u"K", u"k", u"X", u"x"}) {
    Text1.Text = tarnmill::ReplaceAll(Text1.Text.get(), letter, u"(" + Text2.Text.get() + u")");
  }
}

void frmTast::boxC1_Click() {
  Text1.SetFocus();
  Text1.replace_selection(boxC1.Text.get());
  Text1.SetFocus();
}

void frmTast::Text1_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == enter_key) Command5_Click();
  if (KeyCode == delete_key) Command3_Click();
}

void frmTast::boxC1_KeyDown(int& KeyCode, int Shift) {
  if (KeyCode != enter_key && KeyCode != delete_key) return;
  Text1.SetFocus();
  Text1_KeyDown(KeyCode, Shift);
}

void frmTast::clear_expression() {
  Text1.Text = u"";
  lbrezultat.Caption = u"";
  Text1.SetFocus();
}

void frmTast::Command3_Click() {
  Text2.Text = u"";
  clear_expression();
}

void frmTast::copy(const Text& text) {
  Desk& desk = workbench().desk();
  desk.clear_clipboard();
  desk.set_clipboard_text(text);
}

void frmTast::cmdrad_Click() {
  AngleConversion conversion;
  conversion.refusal_title = u"Conversion";
  conversion.before = u"\r\n";
  conversion.question_icon = MessageIcon::information;
  conversion.default_button = 2;
  conversion.to_text = [this](double radians) {
    return NumberToText(RoundTo(PaddedNumberText(radians), 5, regional()), regional());
  };
  convert_selected_degrees(*this, Text1, lblconv, conversion);
  Text1.SetFocus();
}

}  // namespace tarnmill
