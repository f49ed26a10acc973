#include "calculator/form1.h"

#include "forms/desk.h"
#include "forms/workbench.h"
#include "shell/help_menus.h"
#include "shell/modes.h"

namespace tarnmill {

namespace {

constexpr std::string_view graph = "frmFunc";

}  // namespace

Form1::Form1(Workbench& workbench) : Window{workbench, class_name} {
  Caption.start_as(u"Tarnmill");
  Width.start_as(5700);
  Height.start_as(9720);
  Readout.Locked.start_as(true);
  label_keys();
  connect_entry();
  connect_trigonometry();
  connect_functions();
  connect_memory();
  connect_window();
}

void Form1::connect_window() {
  Load.handle(this, &Form1::Form_Load);
  Activate.handle([this] { take_focus(); });
  MouseDown.handle(this, &Form1::Form_MouseDown);
  // A key that lost the mouse while it was down never stays pressed.
  MouseMove.handle(this, &Form1::release_mode_keys);
  pi.MouseMove.handle(this, &Form1::release_mode_keys);
  cmdconv.MouseMove.handle(this, &Form1::release_mode_keys);
  cmdExit.MouseMove.handle(this, &Form1::release_mode_keys);
  cmdExit.Click.handle(this, &Form1::cmdExit_Click);
  imc.Click.handle([this] { change_mode(bench(), class_name, "frmComplex"); });
  imev.Click.handle([this] { change_mode(bench(), class_name, "frmTast"); });
  img.Click.handle([this] { change_mode(bench(), class_name, graph); });
}

void Form1::Form_Load() {
  Desk& desk = bench().desk();
  if (desk.previous_instance()) {
    MsgBox(desk.program_name() + u" is already running!", MessageIcon::exclamation, u"Tarnmill Warning");
    bench().end();
  }
  Readout.Text = entry_.zero();
  show_direct_keys(false, true);
  show_inverse_keys(false);
  Check1.Value = 0;
  Check2.Value = 1;
}

void Form1::Form_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  if (Button == 1) bench().desk().start_move(*this);
  if (Button == 2) PopupMenu(bench().window<Help>().mnuhelp2);
}

void Form1::release_mode_keys(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  complex_key_.release();
  evaluator_key_.release();
  graph_key_.release();
}

void Form1::cmdExit_Click() {
  if (!bench().is_visible(graph)) bench().end();
  Unload();
}

}  // namespace tarnmill
