#include "graph/frm_func.h"

namespace tarnmill {

frmFunc::frmFunc(Workbench& bench) : Window{bench, class_name} {
  lay_out();
  connect_window();
  connect_title_bar();
  connect_menu_bar();
  connect_entry();
  connect_exponent();
  connect_commands();
  connect_zoom();
  connect_catalogue();
}

void frmFunc::connect_window() {
  Load.handle(this, &frmFunc::Form_Load);
  Activate.handle(this, &frmFunc::Form_Activate);
  Resize.handle(this, &frmFunc::Form_Resize);
  Unloading.handle(this, &frmFunc::Form_Unload);
  KeyDown.handle(this, &frmFunc::Form_KeyDown);
  MouseMove.handle(this, &frmFunc::Form_MouseMove);
}

void frmFunc::connect_entry() {
  optAlign.handle(&OptionButton::Click, this, &frmFunc::optAlign_Click);
  cmdSymbol.handle(&Button::Click, this, &frmFunc::cmdSymbol_Click);
  cmdStepen.Click.handle(this, &frmFunc::cmdStepen_Click);
  cmdbrisi.Click.handle(this, &frmFunc::cmdbrisi_Click);
  C1.Click.handle(this, &frmFunc::C1_Click);
  C1.KeyDown.handle(this, &frmFunc::C1_KeyDown);
  for (TextBox* field : {&txtY, &txtX}) {
    field->KeyDown.handle(this, &frmFunc::field_KeyDown);
    field->Click.handle(this, &frmFunc::field_Click);
    field->MouseMove.handle([field](int, int, float, float) { field->ToolTipText = field->Text.get(); });
  }
}

void frmFunc::connect_exponent() {
  txtY.Change.handle(this, &frmFunc::txtY_Change);
  txtYs.Change.handle(this, &frmFunc::txtYs_Change);
  txtY2.Change.handle(this, &frmFunc::txtY2_Change);
  for (TextBox* field : {&txtY3, &txtImenilac}) {
    field->Change.handle([this, field] { copy_to_keypad(*field, "Text"); });
  }
  for (Label* flag : {&lblImenilac, &lblY3}) {
    flag->Change.handle([this, flag] { copy_to_keypad(*flag, "Caption"); });
  }
}

void frmFunc::connect_commands() {
  cmdDraw.Click.handle(this, &frmFunc::cmdDraw_Click);
  cmdClear.Click.handle(this, &frmFunc::cmdClear_Click);
  Command1.Click.handle(this, &frmFunc::Command1_Click);
  Command2.Click.handle(this, &frmFunc::Command2_Click);
  cmdDrawCage.Click.handle(this, &frmFunc::cmdDrawCage_Click);
  cmdEval.Click.handle(this, &frmFunc::cmdEval_Click);
  cmdrad.Click.handle(this, &frmFunc::cmdrad_Click);
  pDraw.MouseMove.handle(this, &frmFunc::pDraw_MouseMove);
}

}  // namespace tarnmill
