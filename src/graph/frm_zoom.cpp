#include "graph/frm_zoom.h"

#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "shell/help.h"
#include "shell/modes.h"

namespace tarnmill {

frmZoom::frmZoom(Workbench& bench) : Window{bench, class_name} {
  lay_out();
  connect_file_menu();
  connect_edit_menu();
  connect_color_menu();
  connect_help_menu();
  connect_zoom_menus();
  connect_examples_menu();
  connect_copy_popup();
  connect_paste_popup();
  connect_label_popup();
}

void frmZoom::lay_out() {
  mnudef.Checked.start_as(true);
  mnudef2.Checked.start_as(true);
  mnuSeparator2.Visible.start_as(false);
  for (const auto* list : {&mnuRecent, &mnuRecentX, &mnuRecentY2, &mnuRecentY3, &mnuRecentIm, &mnuOK}) {
    for (const auto& item : *list) item->Visible.start_as(false);
  }
  for (const auto& item : mnuRecent) mnuskoro.adopt(*item);
}

frmFunc& frmZoom::graph() { return workbench().window<frmFunc>(); }

void frmZoom::press_help_key() {
  constexpr int key_f1 = 112;
  int key_code = key_f1;
  if (Control* focus = workbench().focus()) focus->KeyDown.raise(key_code, 0);
  if (key_code == key_f1) show_program_help(workbench().desk());
}

}  // namespace tarnmill
