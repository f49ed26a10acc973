#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_zoom.h"
#include "keypad/frm_tast.h"

namespace tarnmill {

void frmZoom::connect_paste_popup() {
  const auto pastes = [this](MenuItem& item, TextBox frmTast::*field) {
    item.Click.handle([this, field] {
      TextBox& box = workbench().window<frmTast>().*field;
      box.replace_selection(workbench().desk().clipboard_text());
      box.SetFocus();
    });
  };
  pastes(mnupasteex, &frmTast::Text1);
  pastes(mnupastearg, &frmTast::Text2);
}

}  // namespace tarnmill
