#include <array>

#include "graph/frm_func.h"

namespace tarnmill {
namespace {

struct Key {
  TextView caption;
  TextView tooltip;
};

constexpr std::array<Key, 18> keypad{{
    {u"0", u""},
    {u"1", u""},
    {u"2", u""},
    {u"3", u""},
    {u"4", u""},
    {u"5", u""},
    {u"6", u""},
    {u"7", u""},
    {u"8", u""},
    {u"9", u""},
    {u"K", u" Insert K  (Key K) "},
    {u"+", u""},
    {u"-", u""},
    {u"*", u""},
    {u"/", u""},
    {u"(", u" Key J "},
    {u".", u""},
    {u")", u" Key L "},
}};

}  // namespace

void frmFunc::lay_out() {
  Caption.start_as(u"Graph Mode ");
  Width.start_as(8595);
  Height.start_as(7425);
  pDraw.Left.start_as(2460);
  pDraw.Top.start_as(960);
  pDraw.Width.start_as(6000);
  pDraw.Height.start_as(6000);
  lblPerCent.Visible.start_as(false);

  txtY.Locked.start_as(true);
  txtX.Locked.start_as(true);
  for (TextBox* field : {&txtY, &txtX}) field->BackColor.start_as(default_back_color);
  LblChart.BackColor.start_as(default_back_color);

  lblBoja.BackColor.start_as(default_curve_color);
  lblBoja2.BackColor.start_as(second_color);
  lblgrid.BackColor.start_as(active_border);
  lblosa.BackColor.start_as(0);
  lay_out_keypad();
  lay_out_frame();
  lay_out_label();
}

void frmFunc::lay_out_keypad() const {
  for (int i = 0; i < cmdSymbol.size(); ++i) {
    const Key& key = keypad.at(static_cast<std::size_t>(i));
    cmdSymbol(i).Caption.start_as(Text{key.caption});
    cmdSymbol(i).ToolTipText.start_as(Text{key.tooltip});
  }
  optAlign(0).Caption.start_as(u" Enter Y ");
  optAlign(1).Caption.start_as(u" Enter X  ");
  optAlign(0).Value.start_as(true);
}

void frmFunc::lay_out_frame() {
  const auto place = [](OverlayLine& line, float x1, float y1, float x2, float y2) {
    line.X1.start_as(x1);
    line.Y1.start_as(y1);
    line.X2.start_as(x2);
    line.Y2.start_as(y2);
  };
  const float right = pDraw.ScaleWidth() - 1;
  const float bottom = pDraw.ScaleHeight() - 1;
  place(Line3, 0, 0, right, 0);
  place(Line5, right, 0, right, bottom);
  place(Line6, 0, bottom, right, bottom);
  place(Line4, 0, 0, 0, bottom);
}

void frmFunc::lay_out_label() {
  frmText.Visible.start_as(false);
  picMCRBox.Visible.start_as(false);
  Check1.Value.start_as(1);
}

}  // namespace tarnmill
