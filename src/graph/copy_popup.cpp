#include "calculus/frm_integral.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_zoom.h"

namespace tarnmill {

void frmZoom::connect_copy_popup() {
  const auto copies = [this](MenuItem& item, TextBox frmIntegral::*result) {
    item.Click.handle([this, result] {
      const Text text = (workbench().window<frmIntegral>().*result).Text;
      if (text.empty()) {
        MsgBox(u"Result is empty.", MessageIcon::information);
        return;
      }
      workbench().desk().clear_clipboard();
      workbench().desk().set_clipboard_text(text);
    });
  };
  copies(mhucopy1, &frmIntegral::Text10);
  copies(mnucopy2, &frmIntegral::Text11);
}

}  // namespace tarnmill
