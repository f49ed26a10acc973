#include "engine/counted_loop.h"
#include "engine/fault.h"
#include "engine/number_text.h"
#include "engine/rewriting.h"
#include "engine/rounding.h"
#include "forms/workbench.h"
#include "table/frm_tabela.h"

namespace tarnmill {

void frmTabela::calculate() {
  constexpr int normal = 0;
  resume_next([this] { fill_table(); });
  workbench().MousePointer(normal);
}

void frmTabela::fill_table() {
  constexpr int hourglass = 11;
  constexpr int normal = 0;
  StopTable = false;
  Text3.Text = Text1.Text.get();
  Text2.Text.write(u"");
  Text table = head();
  Text2.Text.write(table);
  const double upper = NumberFromText(txtgore.Text.get());
  const double lower = NumberFromText(txtdole.Text.get());
  const double step = NumberFromTextStrict(Combo1.Text.get(), regional());
  rewrite();
  workbench().MousePointer(hourglass);
  Text2.Visible = false;
  append_rows(table, lower, upper, step);
  workbench().MousePointer(normal);
  Text2.Visible = true;
}

Text frmTabela::head() const {
  return u"Function: Y = " + Text1.Text.get() + u"\r\nRange: Xmin = " + txtdole.Text.get() + u"  Xmax = " +
         txtgore.Text.get() + u"\r\n";
}

void frmTabela::rewrite() {
  Text3.Text = Rewriting::full(Text3.Text.get());
  Text3a.Text = Rewriting::full(Text3a.Text.get());
  const Rule& last = Rewriting::full_rules().back();
  Text15.Text = Text{last.find};
  Text16.Text = Text{last.replacement};
  Text4.Text = Text3.Text.get();
}

/// The table goes to its box once, since writing it anew for each row would take the square of their time. A
/// fault leaves the rows before it.
void frmTabela::append_rows(Text& table, double lower, double upper, double step) {
  try {
    counted_loop(lower, upper, step, [&](double x) {
      table += row(x);
      const bool stops = StopTable;
      if (!stops) Text3.Text = Text4.Text.get();
      return stops;
    });
  } catch (const Fault&) {
    Text2.Text.write(table);
    throw;
  }
  Text2.Text.write(table);
}

Text frmTabela::row(double x) {
  const Text x_text = NumberToText(x, regional());
  Text3.Text = tarnmill::ReplaceAll(Text3.Text.get(), u"x", x_text);
  Evaluator1.formula(Text3.Text.get());
  const double y = RoundTo(Evaluator1.Result(), ToLong(txtDec.Text.get(), regional()));
  return u"\r\n[ " + x_text + u"; " + NumberToText(y, regional()) + u" ]";
}

}  // namespace tarnmill
