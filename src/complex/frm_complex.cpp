#include "complex/frm_complex.h"

#include "complex/frm_menu.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "shell/help_menus.h"
#include "shell/modes.h"

namespace tarnmill {

frmComplex::frmComplex(Workbench& bench) : Window{bench, class_name} {
  lay_out();
  connect_window();
  connect_mode_keys();
  connect_entry();
  connect_parts();
  connect_result();
  connect_keys();
  connect_memory();
}

void frmComplex::lay_out() {
  Caption.start_as(u"Tarnmill - Complex");
  Width.start_as(9900);
  Height.start_as(9720);
  LabelRezultat.ToolTipText.start_as(u" Result ");
  for (TextBox* box :
       {&txtCa, &txtCb, &txtCc, &txtCd, &Label1c, &Label2c, &TextResultReal, &TextResultImaginary}) {
    box->Locked.start_as(true);
  }
  for (const auto& key : Number) {
    key->Caption.start_as(Text(1, static_cast<char16_t>(u'0' + key->index())));
  }
  checka.Value.start_as(1);
  cmda.Picture.start_as(u"selected");
}

void frmComplex::connect_window() {
  Load.handle(this, &frmComplex::Form_Load);
  Activate.handle([this] { take_focus(); });
  MouseDown.handle(this, &frmComplex::Form_MouseDown);
  // A key that lost the mouse while it was down never stays pressed.
  MouseMove.handle(this, &frmComplex::release_mode_keys);
  for (Button* key : {&pi, &cmdconv, &cmdExit}) key->MouseMove.handle(this, &frmComplex::release_mode_keys);
  cmdExit.Click.handle([this] { bench().end(); });
  connect_menu_key(cmdconv, &frmmenu::mnumenu);
  connect_menu_key(cmdlog, &frmmenu::mnulog);
  connect_menu_key(cmdMemory2, &frmmenu::mnumemR);
  connect_menu_key(Command1, &frmmenu::mnuraddeg);
}

void frmComplex::connect_mode_keys() {
  Image11.Click.handle([this] {
    show_window(bench(), "Form1");
    Unload();
  });
  imev.Click.handle([this] {
    show_window(bench(), "frmTast");
    Unload();
  });
  img.Click.handle([this] {
    Unload();
    show_window(bench(), "frmFunc");
  });
}

void frmComplex::connect_menu_key(Button& key, MenuItem frmmenu::*menu) {
  key.MouseDown.handle([this, menu](int button, int, float, float) {
    if (button != 1) return;
    PopupMenu(bench().window<frmmenu>().*menu);
    take_focus();
  });
}

void frmComplex::Form_Load() {
  for (Button* key : {&cmdb, &cmdc, &cmdd}) key->Picture = u"unselected";
  for (const ComplexFunction& function : complex_functions()) ComboFunction.AddItem(function.name);
  ComboFunction.ListIndex = 0;
  LabelRule.Caption = complex_functions().front().rule;
  show_parts();
  Readout.Caption = entry_.zero();
  for (const Part& part : parts_) part.field.Text = entry_.zero();
  show_operand(Label1c, txtCa, txtCb);
  show_operand(Label2c, txtCc, txtCd);
  Check1.Value = 0;
  Check2.Value = 1;
}

void frmComplex::Form_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  if (Button == 1) bench().desk().start_move(*this);
  if (Button == 2) PopupMenu(bench().window<Help>().mnuhelpcomplex);
}

void frmComplex::release_mode_keys(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  advanced_key_.release();
  evaluator_key_.release();
  graph_key_.release();
}

MessageSink frmComplex::messages() {
  return [this](const MessageBox& box) { bench().message(box); };
}

}  // namespace tarnmill
