#include "keypad/frm_tast.h"

#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "keypad/function_names.h"
#include "shell/help_menus.h"
#include "shell/modes.h"

namespace tarnmill {

frmTast::frmTast(Workbench& bench) : Window{bench, class_name} {
  Caption.start_as(u"Tarnmill - Evaluator");
  Width.start_as(9000);
  Height.start_as(5880);
  connect_window();
  connect_modes();
  connect_text();
  connect_commands();
}

void frmTast::connect_window() {
  Load.handle(this, &frmTast::Form_Load);
  Activate.handle(this, &frmTast::Form_Activate);
  Unloading.handle(this, &frmTast::Form_Unload);
  MouseDown.handle(this, &frmTast::Form_MouseDown);
}

void frmTast::connect_modes() {
  const auto leads_to = [this](Image& key, std::string_view mode) {
    key.Click.handle([this, mode] { change_mode(workbench(), class_name, mode); });
  };
  leads_to(img, "frmFunc");
  leads_to(imc, "frmComplex");
  leads_to(imev, "Form1");
}

void frmTast::Form_Load() {
  lblGot.Caption = u"GOT";
  if (workbench().is_visible<frmFunc>()) copy_hint_of_graph();
  for (const Text& name : keypad_function_names()) boxC1.AddItem(name);
}

/// A fraction entered as an exponent in the graph reaches the power rule from here as well.
void frmTast::copy_hint_of_graph() {
  const frmFunc& graph = workbench().window<frmFunc>();
  txtY2.Text = graph.txtY2.Text;
  txtY3.Text = graph.txtY3.Text;
  txtImenilac.Text = graph.txtImenilac.Text;
  lblImenilac.Caption = graph.lblImenilac.Caption;
  lblY3.Caption = graph.lblY3.Caption;
}

void frmTast::Form_Activate() {
  Text1.Text = workbench().window<frmFunc>().txtY.Text;
  Text1.SetFocus();
}

void frmTast::Form_Unload() {
  for (const char* mode : {"frmFunc", "Form1", "frmComplex"}) {
    if (workbench().is_visible(mode)) return;
  }
  workbench().end();
}

void frmTast::Form_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  if (Button == 1) workbench().desk().start_move(*this);
  if (Button == 2) PopupMenu(workbench().window<Help>().mnueval);
}

void frmTast::leave_for(std::string_view mode) {
  show_window(workbench(), mode);
  Unload();
}

void frmTast::show_editor() { show_window(workbench(), "MathPad"); }

void frmTast::Command2_Click() {
  if (workbench().is_visible<frmFunc>()) workbench().window<frmFunc>().choose_y();
  Unload();
}

void frmTast::Command4_MouseDown(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  PopupMenu(workbench().window<frmZoom>().mnuPastetest);
}

}  // namespace tarnmill
