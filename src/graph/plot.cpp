#include "engine/checked.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rounding.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/pen.h"
#include "graph/plot_walk.h"
#include "shell/recent_list.h"

namespace tarnmill {
namespace {

/// The error code of a point without a value; any other but 0 is a fault of the expression's text.
constexpr std::int32_t undefined_point = 16;

/// Cuts to four decimals, towards minus infinity.
double cut(double x) {
  constexpr double decimals = 10000;
  return divide(FloorOf(multiply(x, decimals)), decimals);
}

}  // namespace

void frmFunc::cmdDraw_Click() {
  hide_frame();
  if (Drawing) return;
  try {
    run_plot();
  } catch (const Fault&) {
    Drawing = false;
    lblPerCent.Visible = false;
  }
}

void frmFunc::run_plot() {
  begin_plot();
  if (plot_points()) finish_plot();
  Drawing = false;
  lblPerCent.Visible = false;
  GraphDrawn = true;
  input_field().SetFocus();
}

void frmFunc::begin_plot() {
  ExpressionY = txtYs.Text.get();
  ExpressionX = txtX.Text.get();
  Drawing = true;
  lblPerCent.Caption = u"Done...    0 %";
  lblPerCent.Visible = true;
  workbench().desk().refresh(*this);
}

/// Walks over the width of the surface; false when a message has stopped it.
bool frmFunc::plot_points() {
  Pen pen;
  for (PlotWalk walk{plane(), pDraw.ScaleWidth()}; !walk.at_end(); walk.advance()) {
    if (!plot_point(walk.k(), pen)) return false;
  }
  return true;
}

/// Draws one point and gives the event loop its turn; false when a message has stopped the plot.
bool frmFunc::plot_point(double k, Pen& pen) {
  const double y = evaluate_y(cut(k));
  const std::int32_t y_error = graph_evaluator().error();
  if (y_error == undefined_point) return true;
  if (y_error != 0) {
    MsgBox(
        u"Invalid input or:\r\n- fractional (as an argument) is not reduced;\r\n"
        u"- tangent is not defined in this point.",
        MessageIcon::critical);
    return false;
  }
  const double x = evaluate_x(cut(k), cut(y));
  draw_to(pen, x, y);
  show_progress(k);
  workbench().do_events();
  const std::int32_t x_error = graph_evaluator().error();
  if (x_error == 0 || x_error == undefined_point) return true;
  MsgBox(u"Invalid input!", MessageIcon::critical, u"Error");
  return false;
}

/// Takes the pen to a point of the plane. Only the vertical range counts: the surface cuts off what lies
/// beside.
void frmFunc::draw_to(Pen& pen, double x, double y) {
  const Plane present = plane();
  const float px = to_single(present.column(x));
  const double row = present.row(y);
  const float py = to_single(row);
  const PenMove move = pen.move_to(row > 0 && py < pDraw.ScaleHeight());
  if (move != PenMove::place) pDraw.LineTo(px, py, CurveColor);
  pDraw.CurrentX = px;
  pDraw.CurrentY = py;
}

void frmFunc::show_progress(double k) {
  const double percent = plane().percent_of_width(k, pDraw.ScaleWidth());
  lblPerCent.Caption = u"Drawing...   " + PaddedNumberText(percent) + u"%";
}

void frmFunc::finish_plot() {
  save_to_history();
  Caption = u"Graph Mode  Y = " + txtY.Text.get() + u" for X = " + txtX.Text.get();
  add_to_recent();
  input_field().SetFocus();
}

void frmFunc::add_to_recent() {
  Workbench& bench = workbench();
  AddRecent(bench, txtY.Text.get());
  AddRecentX(bench, txtX.Text.get());
  AddRecentY2(bench, txtY2.Text.get());
  AddRecentY3(bench, txtY3.Text.get());
  AddRecentIm(bench, txtImenilac.Text.get());
  AddRecentOK(bench, lblY3.Caption.get());
}

}  // namespace tarnmill
