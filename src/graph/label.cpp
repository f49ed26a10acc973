#include "engine/checked.h"
#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"

namespace tarnmill {
namespace {

constexpr int default_pointer = 0;

}  // namespace

void frmFunc::Command3_Click() {
  if (picMCRBox.Visible) {
    MsgBox(u"Click with the right mouse on current label and\r\ninsert it or delete before you proceed.",
           MessageIcon::information);
    return;
  }
  Text2.Text = proposed_label();
  TextSW = -1;
  frmText.Visible = true;
}

Text frmFunc::proposed_label() const {
  const Text& y = txtY.Text;
  if (y.empty()) return {};
  if (txtX.Text.get() == u"K") return u"Y = " + tarnmill::ReplaceAll(y, u"K", u"X");
  return u"Y = " + y + u" for X = " + txtX.Text.get();
}

void frmFunc::cmdLabel_Click() {
  if (Text2.Text->empty()) {
    MsgBox(u"Enter Graph Label text.", MessageIcon::information);
    return;
  }
  frmText.Visible = false;
  if (TextSW == -1.0F) show_label_box();
}

/// The box in twips: as large as its text with a margin, in the plot's upper left corner at first.
void frmFunc::show_label_box() {
  constexpr double margin = 40;
  constexpr double from_corner = 100;
  const Text text = Text2.Text;
  picMCRBox.Width = static_cast<double>(picMCRBox.TextWidth(text)) + margin;
  picMCRBox.Height = static_cast<double>(picMCRBox.TextHeight(u"Eg")) + margin;
  picMCRBox.Left = pDraw.Left + from_corner;
  picMCRBox.Top = pDraw.Top + from_corner;
  picMCRBox.Visible = true;
  picMCRBox.Cls();
  picMCRBox.BackColor = pDraw.BackColor.get();
  picMCRBox.ForeColor = LabelColor.get();
  picMCRBox.Print(text);
  workbench().MousePointer(default_pointer);
}

void frmFunc::cmdTextCancel_Click() {
  frmText.Visible = false;
  TextSW = 0;
  workbench().MousePointer(default_pointer);
}

void frmFunc::Text2_Change() {
  picMCRBox.FontTransparent = Check1.Value != 0;
  picMCRBox.Print(Text2.Text);
}

void frmFunc::txtAngle_Change() {
  constexpr double half_turn = 180;
  const double angle = NumberFromText(txtAngle.Text.get());
  if (angle <= half_turn && angle >= -half_turn) return;
  MsgBox(u"Set value for rotating angle in range (-180 to 180) Deg.", MessageIcon::information);
  txtAngle.Text = u"0";
}

void frmFunc::stamp_label() {
  if (TextSW == -1.0F) {
    // Not the surface's own 400 pixels: a label lands a little to the upper left of its box.
    const auto pixels = [](double twips) { return to_single(twips * 397 / 6000); };
    const bool transparent = pDraw.FontTransparent;
    pDraw.FontTransparent = Check1.Value != 0;
    pDraw.ForeColor = LabelColor.get();
    pDraw.CurrentX = pixels(picMCRBox.Left - pDraw.Left);
    pDraw.CurrentY = pixels(picMCRBox.Top - pDraw.Top);
    print_rotated(NumberFromText(txtAngle.Text.get()), Text2.Text);
    pDraw.FontTransparent = false;
    TextSW = 0;
    pDraw.FontTransparent = transparent;
  }
  drop_label();
  workbench().MousePointer(default_pointer);
}

void frmFunc::drop_label() {
  picMCRBox.Cls();
  picMCRBox.Visible = false;
}

void frmFunc::print_rotated(double angle, const Text& text) {
  const LogFont font = label_font(pDraw.FontProperties::get(), angle);
  LabelFont.take(font);
  pDraw.PrintRotated(text, font.escapement, font.weight, font.height);
}

}  // namespace tarnmill
