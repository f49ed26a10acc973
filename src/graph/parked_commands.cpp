#include "engine/number_text.h"
#include "engine/rounding.h"
#include "graph/frm_func.h"
#include "shell/angle_conversion.h"

namespace tarnmill {

void frmFunc::cmdEval_Click() {
  if (upper_case(txtX.Text.get()) != u"K") {
    MsgBox(u"This option is available only for \r\ny = f(k) ,  where   x = k .");
    return;
  }
  graph_evaluator().Evaluate(Text1.Text.get(), false);
}

void frmFunc::cmdrad_Click() {
  AngleConversion conversion;
  conversion.after = u"\r\n";
  conversion.to_text = [this](double radians) { return NumberToText(RoundTo(radians, 5), regional()); };
  convert_selected_degrees(*this, Text1, lblconv, conversion);
}

}  // namespace tarnmill
