#include "shell/help_menus.h"

#include "engine/variant.h"
#include "forms/control.h"
#include "forms/desk.h"
#include "forms/procedure.h"
#include "forms/workbench.h"
#include "shell/help.h"
#include "shell/modes.h"

namespace tarnmill {

namespace {

constexpr std::string_view calculator = "Form1";
constexpr std::string_view complex_calculator = "frmComplex";
constexpr std::string_view keypad = "frmTast";
constexpr std::string_view graph = "frmFunc";
constexpr std::string_view value_table = "frmTabela";
constexpr std::string_view about = "frmAbout";
constexpr std::string_view editor = "MathPad";

}  // namespace

Help::Help(Workbench& workbench) : Window{workbench, class_name} {
  connect_calculator_menu();
  connect_complex_menu();
  connect_keypad_menu();
}

void Help::connect_calculator_menu() {
  shows(mnupad2, editor);
  changes_mode(mnicompl2, calculator, complex_calculator);
  changes_mode(mnugraph2, calculator, graph);
  changes_mode(mnueval2, calculator, keypad);
  shows_help(mnuht2);
  shows(mnuabout, about);
  mnuexit.Click.handle(this, &Help::mnuexit_Click);
}

void Help::connect_complex_menu() {
  shows(mnupad3, editor);
  changes_mode(muadv3, complex_calculator, calculator);
  changes_mode(mnugraph3, complex_calculator, graph);
  changes_mode(mnueval1, complex_calculator, keypad);
  shows_help(mnuhelp);
  mnuexit3.Click.handle([this] { bench().end(); });
}

void Help::connect_keypad_menu() {
  shows(mnupadev, editor);
  leaves_keypad(mniadev, calculator);
  leaves_keypad(mnicomev, complex_calculator);
  leaves_keypad(mnigraphev, graph);
  shows(mnutable, value_table);
  asks_keypad(mnicopyres, "CopyResult");
  asks_keypad(mnicopyexpr, "CopyExpression");
  mnupasteev.Click.handle(this, &Help::mnupasteev_Click);
  shows_help(mnuhev);
  mnuexev.Click.handle(this, &Help::mnuexev_Click);
}

void Help::mnuexit_Click() {
  if (!bench().is_visible(graph)) bench().end();
  hide_window(bench(), calculator);
}

void Help::mnupasteev_Click() {
  bench().window(keypad).find_control("Text1")->find_property("SelText")->write(
      bench().desk().clipboard_text());
}

void Help::mnuexev_Click() {
  if (!bench().is_visible(graph)) bench().end();
  unload_window(bench(), keypad);
}

void Help::shows(MenuItem& entry, std::string_view name) {
  entry.Click.handle([this, name] { show_window(bench(), name); });
}

void Help::changes_mode(MenuItem& entry, std::string_view from, std::string_view to) {
  entry.Click.handle([this, from, to] { change_mode(bench(), from, to); });
}

void Help::leaves_keypad(MenuItem& entry, std::string_view to) {
  entry.Click.handle([this, to] {
    show_window(bench(), to);
    unload_window(bench(), keypad);
  });
}

void Help::asks_keypad(MenuItem& entry, std::string_view procedure) {
  entry.Click.handle([this, procedure] { (*bench().window(keypad).find_procedure(procedure))({}); });
}

void Help::shows_help(MenuItem& entry) {
  entry.Click.handle([this] { show_program_help(bench().desk()); });
}

}  // namespace tarnmill
