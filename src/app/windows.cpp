#include "app/windows.h"

#include <memory>

#include "analysis/frm_analiza.h"
#include "calculator/form1.h"
#include "calculus/frm_integral.h"
#include "complex/frm_complex.h"
#include "complex/frm_menu.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_unesit.h"
#include "graph/frm_zoom.h"
#include "keypad/frm_tast.h"
#include "mathpad/frm_ansi.h"
#include "mathpad/frm_find.h"
#include "mathpad/frm_page_setup.h"
#include "mathpad/math_pad.h"
#include "shell/about.h"
#include "shell/evaluator_host.h"
#include "shell/help_menus.h"
#include "table/frm_tabela.h"

namespace tarnmill {

namespace {

template <class W>
void add(Workbench& bench) {
  bench.add_window(W::class_name, [](Workbench& owner) { return std::make_unique<W>(owner); });
}

}  // namespace

void register_windows(Workbench& bench) {
  bench.set_evaluator_host(make_evaluator_host);
  add<frmFunc>(bench);
  add<frmZoom>(bench);
  add<frmunesit>(bench);
  add<Form1>(bench);
  add<MathPad>(bench);
  add<frmFind>(bench);
  add<frmPageSetup>(bench);
  add<frmansi>(bench);
  add<frmAnaliza>(bench);
  add<frmIntegral>(bench);
  add<frmTabela>(bench);
  add<Help>(bench);
  add<frmComplex>(bench);
  add<frmmenu>(bench);
  add<frmTast>(bench);
  add<frmAbout>(bench);
}

}  // namespace tarnmill
