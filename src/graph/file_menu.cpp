#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "shell/modes.h"

namespace tarnmill {

void frmZoom::connect_file_menu() {
  mnupad.Click.handle([this] { show_window(workbench(), "MathPad"); });
  mniopwith.Click.handle([this] { show_window(workbench(), "Form1"); });
  mnuopenonly.Click.handle([this] { change_mode(workbench(), frmFunc::class_name, "Form1"); });
  mnueval23.Click.handle([this] { show_window(workbench(), "frmTast"); });
  mnufanal.Click.handle([this] { graph().show_analysis(); });
  mnuexit.Click.handle([this] { workbench().end(); });
  mnuRecent.handle(&MenuItem::Click, this, &frmZoom::mnuRecent_Click);
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
