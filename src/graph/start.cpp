#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/function_names.h"
#include "shell/recent_list.h"
#include "shell/registry.h"

namespace tarnmill {

void frmFunc::Form_Load() {
  load_history();
  TextSW = 0;
  PixelsPerUnit = 20;
  OriginX = pDraw.ScaleWidth() / 2;
  OriginY = pDraw.ScaleHeight() / 2;
  CurveColor = default_curve_color;
  lblBoja.BackColor = default_curve_color;
  txtX.Text = u"K";
  for (const TextView name : graph_function_names()) C1.AddItem(Text{name});
  load_colors();
  load_recent();
}

void frmFunc::load_colors() {
  pDraw.BackColor = stored_color(u"Pozadina", default_back_color);
  CurveColor = stored_color(u"Grafik", default_curve_color);
  GridColor = stored_color(u"Grid", active_border);
  AxisColor = stored_color(u"Ose", 0);
}

/// A colour of the settings; one that is no colour number counts as absent.
Color frmFunc::stored_color(TextView name, Color otherwise) {
  Color color = otherwise;
  resume_step([&] {
    const Variant stored =
        GetRegistrySetting(workbench().desk().settings(), u"Software", u"Tarnmill", u"Boje", name, otherwise);
    color = ToLong(stored.to_number(regional()));
  });
  return color;
}

void frmFunc::load_recent() {
  Workbench& bench = workbench();
  LoadRecent(bench);
  LoadRecentX(bench);
  LoadRecentY2(bench);
  LoadRecentY3(bench);
  LoadRecentIm(bench);
  LoadRecentOK(bench);
  ShowRecent(bench);
  ShowRecentX(bench);
  ShowRecentY2(bench);
  ShowRecentY3(bench);
  ShowRecentIm(bench);
  ShowRecentOK(bench);
}

void frmFunc::Form_Activate() {
  if (Drawing) return;
  draw_lines();
  txtY.SetFocus();
  ShowRecent(workbench());
}

// The size follows the surface and is nobody else's to set.
void frmFunc::Form_Resize() {
  constexpr std::int16_t minimised = 1;
  constexpr double right_margin = 135;
  constexpr double bottom_margin = 465;
  if (WindowState == minimised) return;
  Width = pDraw.Left + pDraw.Width + right_margin;
  Height = pDraw.Top + pDraw.Height + bottom_margin;
}

void frmFunc::Form_Unload() { workbench().end(); }

void frmFunc::Form_KeyDown(int& KeyCode, int Shift) {
  constexpr int key_c = 67;
  constexpr int control = 2;
  if (KeyCode != key_c || Shift != control || text_is_selected()) return;
  workbench().desk().set_clipboard_picture(pDraw.raster());
}

/// Whether Ctrl+C has a text to copy: in the field that has the focus, else in the one that takes input.
bool frmFunc::text_is_selected() {
  const Control* focus = workbench().focus();
  const auto* field = dynamic_cast<const TextBox*>(focus);
  if (field == nullptr || (field != &txtY && field != &txtX)) field = &input_field();
  return field->sel_length() > 0;
}

void frmFunc::Form_MouseMove(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  LblChart.Caption = u"";
}

}  // namespace tarnmill
