#include "graph/catalogue.h"
#include "graph/frm_func.h"
#include "graph/zoom_factors.h"

namespace tarnmill {

void frmFunc::connect_catalogue() {
  for (const CurveMenu& menu : curve_catalogue()) {
    for (const Curve& curve : menu.curves) {
      curves_.emplace_back(*this, curve.procedure, [this, &curve] { draw_curve(curve); });
    }
  }
}

// The y field goes first: its change sets the fields behind it, which then take the curve's own texts.
void frmFunc::draw_curve(const Curve& curve) {
  if (!is_zoom_preset(curve.zoom)) zoom_to(curve.zoom);
  txtY.Text = Text{curve.y};
  txtX.Text = Text{curve.x};
  if (curve.exponent) {
    txtY2.Text = Text{curve.exponent->y2};
    txtY3.Text = Text{curve.exponent->y3};
    txtImenilac.Text = Text{curve.exponent->numerator};
    lblY3.Caption = Text{curve.exponent->flag};
  }
  plot();
}

void frmFunc::forget_exponent() {
  txtY2.Text = u"";
  txtY3.Text = u"";
  txtImenilac.Text = u"";
  lblY3.Caption = u"";
}

}  // namespace tarnmill
