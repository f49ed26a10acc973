#include "graph/frm_func.h"
#include "shell/modes.h"

namespace tarnmill {
namespace {

constexpr int divide_key = 14;
constexpr int open_key = 15;
constexpr int close_key = 17;

}  // namespace

TextBox& frmFunc::input_field() { return takes_input(u"X") ? txtX : txtY; }

void frmFunc::optAlign_Click(int /*Index*/) {
  if (optAlign(0).Value) {
    lblxy.Caption = u"Y";
    optAlign(1).Value = false;
    txtY.SetFocus();
    if (txtX.Text->empty()) txtX.Text = u"K";
  } else if (optAlign(1).Value) {
    lblxy.Caption = u"X";
    optAlign(0).Value = false;
    txtX.SetFocus();
  }
}

void frmFunc::choose_y() {
  optAlign(0).Value = true;
  lblxy.Caption = u"Y";
}

/// Puts a text in place of the input field's selection, with the caret behind it.
void frmFunc::insert(const Text& text) {
  TextBox& field = input_field();
  field.SetFocus();
  field.replace_selection(text);
  field.SetFocus();
}

void frmFunc::cmdSymbol_Click(int Index) {
  if (lblstepen.Caption.get() == u"DA" && Index == open_key) lblZagrada.Caption = u"DA";
  if (Index == close_key) lblstepen.Caption = u"Stop";
  if (Index == divide_key && !txtY2.Text->empty() && takes_input(u"Y")) {
    lblImenilac.Caption = u"";
    lblY3.Caption = u"OK";
  }
  insert(cmdSymbol(Index).Caption);
}

void frmFunc::cmdStepen_Click() {
  const bool into_y = takes_input(u"Y");
  if (into_y) lblY3.Caption = u"OK";
  insert(u"^");
  if (into_y) txtY_Change();
  lblstepen.Caption = u"DA";
  lblImenilac.Caption = u"Ime";
  input_field().SetFocus();
}

void frmFunc::cmdbrisi_Click() {
  if (takes_input(u"Y")) {
    txtY.Text = u"";
    txtY3.Text = u"1";
    txtImenilac.Text = u"1";
    lblZbir.Caption = u"";
    lblImenilac.Caption = u"";
    lblstepen.Caption = u"";
    lblY3.Caption = u"OK";
    txtY.SetFocus();
  } else if (takes_input(u"X")) {
    txtX.Text = u"";
    txtX.SetFocus();
  }
}

void frmFunc::C1_Click() { insert(C1.Text); }

void frmFunc::Command1_Click() { show_window(workbench(), "frmAnaliza"); }

void frmFunc::Command2_Click() { show_window(workbench(), "frmTast"); }

void frmFunc::field_Click() { MsgBox(u"Use buttons to enter function.", MessageIcon::information); }

}  // namespace tarnmill
