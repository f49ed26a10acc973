#include "graph/frm_func.h"

#include "engine/number_text.h"

namespace tarnmill {

frmFunc::frmFunc(Workbench& bench) : Window{bench, class_name} {
  lay_out();
  connect_window();
  connect_title_bar();
  connect_menu_bar();
  connect_entry();
  connect_exponent();
  connect_commands();
  connect_plot();
  connect_output();
  connect_label();
  connect_label_box();
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
}

void frmFunc::connect_plot() {
  pDraw.MouseDown.handle(this, &frmFunc::pDraw_MouseDown);
  pDraw.MouseMove.handle(this, &frmFunc::pDraw_MouseMove);
  pDraw.MouseUp.handle(this, &frmFunc::pDraw_MouseUp);
  cmdtangenta.Click.handle(this, &frmFunc::cmdtangenta_Click);
}

void frmFunc::connect_output() {
  Command4.MouseDown.handle(this, &frmFunc::Command4_MouseDown);
  Command5.MouseDown.handle(this, &frmFunc::Command5_MouseDown);
  Command6.Click.handle(this, &frmFunc::save_graph);
}

void frmFunc::connect_label() {
  Command3.Click.handle(this, &frmFunc::Command3_Click);
  cmdLabel.Click.handle(this, &frmFunc::cmdLabel_Click);
  cmdTextCancel.Click.handle(this, &frmFunc::cmdTextCancel_Click);
  cmdFont.Click.handle(this, &frmFunc::cmdFont_Click);
  cmdBoja.Click.handle(this, &frmFunc::cmdBoja_Click);
  Check1.Click.handle([this] { pDraw.FontTransparent = Check1.Value != 0; });
  LabCUL.Click.handle([this] { LabCUL.BackColor = LabelColor.get(); });
  Text2.Change.handle(this, &frmFunc::Text2_Change);
  VsbPtrnNo.Change.handle([this] { txtAngle.Text = NumberToText(VsbPtrnNo.Value.get(), regional()); });
  txtAngle.Change.handle(this, &frmFunc::txtAngle_Change);
}

void frmFunc::connect_label_box() {
  picMCRBox.MouseDown.handle(this, &frmFunc::picMCRBox_MouseDown);
  picMCRBox.MouseMove.handle(this, &frmFunc::picMCRBox_MouseMove);
}

}  // namespace tarnmill
