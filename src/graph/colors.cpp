#include "engine/fault.h"
#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "shell/registry.h"

namespace tarnmill {
namespace {

/// What `choose_color` is asked for.
enum Target : std::int32_t { target_grid, target_axes, target_curve, target_background };

}  // namespace

void frmFunc::choose_color(std::int32_t target) {
  if (Drawing) return;
  resume_step([&] {
    CD1.Flags = 0;
    CD1.DialogTitle = u"Choose Color";
    CD1.ShowColor();
    take_chosen_color(target);
  });
}

void frmFunc::take_chosen_color(std::int32_t target) {
  const Color chosen = CD1.Color;
  switch (target) {
    case target_grid:
      GridColor = chosen;
      redraw_grid();
      lblgrid.BackColor = chosen;
      break;
    case target_axes:
      AxisColor = chosen;
      redraw_grid();
      lblosa.BackColor = chosen;
      break;
    case target_curve:
      CurveColor = chosen;
      lblBoja.BackColor = chosen;
      break;
    case target_background:
      pDraw.BackColor = chosen;
      redraw_grid();
      break;
    default:
      break;
  }
}

/// A grid that can't be drawn must not leave the window deaf.
void frmFunc::redraw_grid() {
  Drawing = true;
  resume_step([this] { draw_lines(); });
  Drawing = false;
}

void frmFunc::take_default_colors() {
  CurveColor = default_curve_color;
  lblBoja.BackColor = default_curve_color;
  pDraw.BackColor = default_back_color;
  GridColor = active_border;
  lblgrid.BackColor = active_border;
  AxisColor = 0;
  lblosa.BackColor = 0;
  cmdDrawCage_Click();
}

/// The colours are kept once the menu has closed, whatever was chosen in it.
void frmFunc::Command4_MouseDown(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  PopupMenu(workbench().window<frmZoom>().ChCol);
  store_colors();
}

/// Grid, axes and curve are kept as their labels have them, which start with the defaults on each run.
void frmFunc::store_colors() {
  SettingsStore& store = workbench().desk().settings();
  const auto keep = [&](TextView name, Color color) {
    SaveRegistrySetting(store, u"Software", u"Tarnmill", u"Boje", name, NumberToText(color, regional()));
  };
  keep(u"Pozadina", pDraw.BackColor);
  keep(u"Grafik", lblBoja.BackColor);
  keep(u"Grid", lblgrid.BackColor);
  keep(u"Ose", lblosa.BackColor);
}

}  // namespace tarnmill
