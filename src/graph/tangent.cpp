#include "calculus/frm_integral.h"
#include "engine/checked.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_unesit.h"

namespace tarnmill {
namespace {

/// Cuts to three decimals, towards minus infinity.
double cut(double x) {
  constexpr double decimals = 1000;
  return divide(FloorOf(multiply(decimals, x)), decimals);
}

}  // namespace

/// The tangent under the mouse, at this column of the surface; false when a message has taken its place.
bool frmFunc::show_tangent(float x) {
  // The cut arguments lie one to three thousandths apart; the slope is as rough as that.
  constexpr double step = 0.001;
  if (upper_case(ExpressionX.get()) != u"K") {
    MsgBox(
        u"This option is available only for \r\ny = f(k) ,  where   x = k .\r\n"
        u"Set x = k and draw function first.");
    return false;
  }
  const Plane present = plane();
  const double at = divide(static_cast<double>(x) - present.origin_x, present.pixels_per_unit);
  TangentX = Variant{at};
  TangentY = Variant{evaluate_y(cut(at))};
  const double before = evaluate_y(cut(at - step));
  const double behind = evaluate_y(cut(at + step));
  TangentSlope = Variant{divide(subtract(behind, before), 2 * step)};
  place_tangent();
  Line2.X1 = x;
  Line2.Y1 = 0;
  Line2.X2 = x;
  Line2.Y2 = pDraw.ScaleHeight();
  Line2.Visible = true;
  return true;
}

/// A segment eight units long, centred on the point.
void frmFunc::place_tangent() {
  constexpr double half_length = 4;
  const auto number = [this](const Field<Variant>& field) { return field->to_number(regional()); };
  const Plane present = plane();
  const double angle = arctangent(number(TangentSlope));
  const double across = half_length * cosine(angle);
  const double up = half_length * sine(angle);
  const auto column = [&](double offset) { return to_single(present.column(number(TangentX) + offset)); };
  const auto row = [&](double offset) { return to_single(present.row(number(TangentY) + offset)); };
  Line1.X1 = column(-across);
  Line1.Y1 = row(-up);
  Line1.X2 = column(across);
  Line1.Y2 = row(up);
  Line1.Visible = true;
}

void frmFunc::cmdtangenta_Click() {
  try {
    ask_for_tangent();
  } catch (const Fault& fault) {
    MsgBox(u"Error. " + Text{fault.description()});
  }
}

void frmFunc::ask_for_tangent() {
  lbly.Caption = u"";
  if (txtY.Text->empty()) {
    MsgBox(u"Draw function first.", MessageIcon::information);
    return;
  }
  if (upper_case(txtX.Text.get()) != u"K") {
    MsgBox(u"This option is available only for \r\nY = f (K), where X = K .", MessageIcon::none, u"Tangent");
    return;
  }
  input_field().SetFocus();
  auto& form = workbench().window<frmunesit>();
  form.Show();
  form.refresh_prompt();
}

/// The line is plotted as any function, in the second colour.
void frmFunc::draw_tangent() {
  try {
    auto& calculus = workbench().window<frmIntegral>();
    calculus.Text13.Text = txtY.Text.get();
    calculus.letters_to_x();
    calculus.rewrite();
    calculus.Text14.Text = workbench().window<frmunesit>().Text1.Text.get();
    calculus.tangent();
    if (calculus.Text9.Text->empty() || lbly.Caption.get() == u"ERR") return;
    calculus.letters_to_k();
    take_second_color();
    cmdDraw_Click();
    take_curve_color();
  } catch (const Fault& fault) {
    MsgBox(Text{fault.description()});
  }
}

}  // namespace tarnmill
