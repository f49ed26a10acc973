// What a developer looks at. The switches of which this program has none read 0.
#include <array>

#include "engine/number_text.h"
#include "graph/frm_func.h"

namespace tarnmill {

std::int16_t frmFunc::print_state() {
  if (!Debug) return 0;
  struct Switch {
    TextView name;
    double value;
  };
  const std::array<Switch, 9> switches{{
      {u" DMode=", 0},
      {u"  ZMode=", 0},
      {u"  MCRSW=", 0},
      {u"  TextSW=", static_cast<double>(TextSW.get())},
      {u"  ResSW=", 0},
      {u"  PerSpecSW=", 0},
      {u"  RotSW=", 0},
      {u"  +BMPSW=", 0},
      {u"  SetPP=", 0},
  }};
  picINFO.Cls();
  for (const auto& [name, value] : switches) {
    picINFO.Print(Text{name} + NumberToText(value, regional()));
  }
  return 0;
}

void frmFunc::print_point(double x, double y) {
  picINFO.Print(u" X=" + NumberToText(x, regional()));
  picINFO.Print(u" Y=" + NumberToText(y, regional()));
}

}  // namespace tarnmill
