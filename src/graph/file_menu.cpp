#include "calculus/frm_integral.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "shell/modes.h"
#include "table/frm_tabela.h"

namespace tarnmill {

void frmZoom::connect_file_menu() {
  mnupad.Click.handle([this] { show_window(workbench(), "MathPad"); });
  mniopwith.Click.handle([this] { show_window(workbench(), "Form1"); });
  mnuopenonly.Click.handle([this] { change_mode(workbench(), frmFunc::class_name, "Form1"); });
  mnucomp.Click.handle(this, &frmZoom::close_for_complex_mode);
  mnueval23.Click.handle([this] { show_window(workbench(), "frmTast"); });
  mnytable.Click.handle(this, &frmZoom::show_value_table);
  mnusavbmp.Click.handle([this] { graph().save_graph(); });
  mnuprint.Click.handle([this] { graph().print_graph(); });
  mnuprnthistory.Click.handle([this] { graph().open_history(); });
  mnuprset.Click.handle([this] { graph().set_up_printer(); });
  mnufanal.Click.handle([this] { graph().show_analysis(); });
  muiida.Click.handle([this] { workbench().window<frmIntegral>().ShowModal(); });
  mnuexit.Click.handle([this] { workbench().end(); });
  mnuRecent.handle(&MenuItem::Click, this, &frmZoom::mnuRecent_Click);
}

void frmZoom::close_for_complex_mode() {
  const MessageResult answer = MsgBox(u"This will close Graph Mode. Continue?", MessageIcon::question,
                                      u"Tarnmill", MessageButtons::ok_cancel);
  if (answer == MessageResult::ok) change_mode(workbench(), frmFunc::class_name, "frmComplex");
}

void frmZoom::show_value_table() {
  auto& table = workbench().window<frmTabela>();
  table.Text1.Text = graph().txtY.Text.get();
  table.Show();
}

/// Takes one row of the recent functions back into the entry fields and plots it, at the present zoom on top
/// of what is drawn.
void frmZoom::mnuRecent_Click(int Index) {
  frmFunc& form = graph();
  form.txtY.Text = mnuRecent(Index).Caption.get();
  form.txtX.Text = mnuRecentX(Index).Caption.get();
  form.txtY2.Text = mnuRecentY2(Index).Caption.get();
  form.txtY3.Text = mnuRecentY3(Index).Caption.get();
  form.txtImenilac.Text = mnuRecentIm(Index).Caption.get();
  form.lblY3.Caption = mnuOK(Index).Caption.get();
  form.plot();
}

}  // namespace tarnmill
