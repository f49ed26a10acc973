#include "graph/catalogue.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "graph/zoom_factors.h"

namespace tarnmill {

void frmZoom::connect_examples_menu() {
  for (const CurveMenu& menu : curve_catalogue()) {
    MenuItem& submenu = examples_.emplace_back(*this, mnuExamples, menu.name, Text{menu.caption});
    for (const Curve& curve : menu.curves) {
      MenuItem& item = examples_.emplace_back(*this, submenu, curve.menu_item, Text{curve.caption});
      item.Click.handle([this, &curve] { pick(curve); });
    }
  }
}

/// Draws a curve of the catalogue on a clean plane at its own zoom.
void frmZoom::pick(const Curve& curve) {
  graph().Line1.Visible = false;
  if (curve.forgets_exponent) graph().forget_exponent();
  if (is_zoom_preset(curve.zoom)) choose_zoom(curve.zoom);
  graph().draw_curve(curve);
}

}  // namespace tarnmill
