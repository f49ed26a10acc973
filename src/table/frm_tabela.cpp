#include "table/frm_tabela.h"

#include "engine/rewriting.h"
#include "forms/desk.h"
#include "forms/limit_field.h"
#include "forms/title_bar.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

frmTabela::frmTabela(Workbench& bench) : Window{bench, class_name} {
  Caption.start_as(u"Value Table");
  Width.start_as(6900);
  Height.start_as(7800);
  for (const char16_t* step : {u"1", u"10", u"0.1", u"0.01", u"0.001"}) Combo1.AddItem(step);
  for (int decimals = 0; decimals <= 10; ++decimals) txtDec.AddItem(NumberToText(decimals, Regional{}));
  connect_title_bar(Label16, Image5, Image6);
  Image7.Click.handle(this, &frmTabela::Image7_Click);
  Image8.Click.handle(this, &frmTabela::Image8_Click);
  Image9.Click.handle(this, &frmTabela::Image9_Click);
  Image10.Click.handle(this, &frmTabela::Image10_Click);
  Command1.Click.handle(this, &frmTabela::Command1_Click);
}

void frmTabela::Image7_Click() {
  if (Text1.Text->empty() || txtdole.Text->empty() || txtgore.Text->empty()) {
    MsgBox(u"Function/Range not defined", MessageIcon::information);
    return;
  }
  Command1_Click();
}

void frmTabela::Command1_Click() {
  for (TextBox* limit : {&txtgore, &txtdole}) evaluate_limit(*limit, limits_evaluator());
  calculate();
}

Evaluator& frmTabela::limits_evaluator() {
  if (!limits_evaluator_) limits_evaluator_.emplace(workbench().evaluator_host());
  return *limits_evaluator_;
}

bool frmTabela::agreed(const Text& question, const Text& title) {
  const Text text = question + u"\r\nContinue?";
  return MsgBox(text, MessageIcon::none, title, MessageButtons::yes_no) == MessageResult::yes;
}

void frmTabela::Image8_Click() {
  if (!is_empty() && !agreed(u"This will clear current results.", u"Clear Table")) return;
  Text2.Text.write(u"");
}

void frmTabela::Image9_Click() {
  Desk& desk = workbench().desk();
  desk.clear_clipboard();
  desk.set_clipboard_text(Text2.document().text());
}

void frmTabela::Image10_Click() {
  if (!is_empty() && !agreed(u"This will open MathPad with calculated table.", u"Save Table")) return;
  auto& editor = workbench().window<MathPad>();
  editor.rt1.Text.write(Text2.document().text());
  editor.Show();
}

void frmTabela::choose_font() {
  font_dialog_.title = u"Select Font";
  font_dialog_.flags = 2;
  if (font_dialog_.font.name.empty()) font_dialog_.font.name = u"Arial";
  const auto chosen = workbench().desk().choose_font(font_dialog_);
  workbench().leave_if_ended();
  if (!chosen) return;
  font_dialog_.font = chosen->font;
  font_dialog_.color = chosen->color;
  Text2.FontName = chosen->font.name;
  Text2.FontSize = chosen->font.size;
  Text2.FontBold = chosen->font.bold;
  Text2.FontItalic = chosen->font.italic;
  Text2.FontUnderline = chosen->font.underline;
  RichText& document = Text2.document();
  document.select(0, document.length());
  document.set_sel_color(chosen->color);
  document.select(0, 0);
}

}  // namespace tarnmill
