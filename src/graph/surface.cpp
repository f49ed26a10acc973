#include "engine/checked.h"
#include "engine/rounding.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/grid.h"

namespace tarnmill {
namespace {

constexpr int right_button = 2;

}  // namespace

Plane frmFunc::plane() { return {OriginX, OriginY, PixelsPerUnit->to_number(regional())}; }

void frmFunc::draw_lines() { draw_grid(pDraw, plane(), GridColor, AxisColor); }

void frmFunc::cmdDrawCage_Click() {
  if (!Drawing) draw_lines();
}

void frmFunc::cmdClear_Click() {
  if (Drawing) return;
  empty_surface();
  draw_lines();
  Caption = u"Graph Mode";
  lblcap.Caption = u"Graph Mode";
  input_field().SetFocus();
}

void frmFunc::clear_without_grid() {
  if (!Drawing) empty_surface();
}

void frmFunc::empty_surface() {
  pDraw.RemovePicture();
  pDraw.Cls();
  Line1.Visible = false;
  hide_frame();
}

void frmFunc::hide_frame() {
  for (OverlayLine* line : {&Line3, &Line4, &Line5, &Line6}) line->Visible = false;
}

void frmFunc::pDraw_MouseDown(int Button, int Shift, float X, float Y) {
  if (Button == right_button) pDraw_MouseMove(Button, Shift, X, Y);
}

/// The readout keeps what it shows when something fails.
void frmFunc::pDraw_MouseMove(int Button, int /*Shift*/, float X, float Y) {
  if (Drawing) return;
  resume_step([&] {
    const bool wants_tangent = Button == right_button && GraphDrawn;
    if (wants_tangent && !show_tangent(X)) return;
    show_coordinates(X, Y);
  });
}

void frmFunc::pDraw_MouseUp(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  Line1.Visible = false;
  Line2.Visible = false;
}

/// The point of the plane under a pixel, at the zoom that `lblzm` names.
void frmFunc::show_coordinates(float x, float y) {
  constexpr double middle = 200;
  const double pixels_per_unit = NumberFromText(lblzm.Caption.get());
  const auto written = [&](double length) {
    return NumberToText(RoundTo(divide(length, pixels_per_unit), 3), regional());
  };
  LblChart.Caption = u"   x = " + written(x - middle) + u", y = " + written(middle - y);
}

}  // namespace tarnmill
