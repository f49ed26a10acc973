#include "graph/frm_unesit.h"

#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"

namespace tarnmill {

frmunesit::frmunesit(Workbench& bench) : Window{bench, class_name} {
  Caption.start_as(u"Use right mouse click or enter value for X");
  Width.start_as(5100);
  Height.start_as(2340);
  Load.handle(this, &frmunesit::Form_Load);
  Command1.Click.handle(this, &frmunesit::Command1_Click);
  Command2.Click.handle(this, &frmunesit::Command2_Click);
  Text1.KeyDown.handle(this, &frmunesit::Text1_KeyDown);
}

void frmunesit::Form_Load() { Text1.select(0, static_cast<int>(Text1.Text->size())); }

void frmunesit::refresh_prompt() {
  Label1.Caption = u"Tangent to the function\r\nY = " + workbench().window<frmFunc>().txtY.Text.get() +
                   u"\r\nthrough the point:";
  Text1.Text = u"0";
}

void frmunesit::Text1_KeyDown(int& KeyCode, int /*Shift*/) {
  constexpr int key_enter = 13;
  if (KeyCode == key_enter) Command1_Click();
}

void frmunesit::Command1_Click() {
  Hide();
  try {
    take_point();
    workbench().window<frmFunc>().draw_tangent();
  } catch (const Fault& fault) {
    MsgBox(u"Error. " + Text{fault.description()});
  }
}

/// The letter e is replaced twice, so that it ends as "e(1)(1)".
void frmunesit::take_point() {
  struct Replacement {
    TextView find;
    TextView put;
  };
  constexpr TextView pi = u"3.14159265358979";
  for (const auto& [find, put] : {Replacement{u"pi", pi}, Replacement{u"Pi", pi}, Replacement{u"e", u"e(1)"},
                                  Replacement{u"e", u"e(1)"}}) {
    Text1.Text = tarnmill::ReplaceAll(Text1.Text.get(), find, put);
  }
  Text1.Text = NumberToText(evaluator().Evaluate(Text1.Text.get(), false), regional());
}

void frmunesit::Command2_Click() {
  Text1.Text = u"0";
  Hide();
}

Evaluator& frmunesit::evaluator() {
  if (!evaluator_) evaluator_.emplace(workbench().evaluator_host());
  return *evaluator_;
}

}  // namespace tarnmill
