#include "graph/frm_func.h"
#include "graph/frm_zoom.h"

namespace tarnmill {

void frmZoom::connect_edit_menu() {
  mnucwg.Click.handle([this] { graph().clear_without_grid(); });
  mnuredgrid.Click.handle([this] { graph().redraw(); });
  mnuclhistory.Click.handle([this] { graph().clear_history(); });
  mnuinsl.Click.handle([this] { graph().begin_label(); });
}

void frmZoom::connect_color_menu() {
  const auto chooses = [this](MenuItem& item, std::int32_t target) {
    item.Click.handle([this, target] {
      graph().Line1.Visible = false;
      graph().choose_color(target);
    });
  };
  chooses(colour1, 0);
  chooses(colour2, 1);
  chooses(colour3, 2);
  mnuback.Click.handle([this] {
    graph().Line1.Visible = false;
    if (may_erase()) graph().choose_color(3);
  });
  mnuglavno.Click.handle([this] {
    graph().Line1.Visible = false;
    if (may_erase()) graph().take_default_colors();
  });
}

/// Nothing is asked on a plot that was cleared; only the clearing leaves the caption in this form.
bool frmZoom::may_erase() {
  if (graph().Caption.get() == u"Graph Mode") return true;
  return MsgBox(u"Your current graph(s) will be erased.\r\nContinue?", MessageIcon::none, u"Changing Colors",
                MessageButtons::ok_cancel) == MessageResult::ok;
}

void frmZoom::connect_label_popup() {
  mnudalabel.Click.handle([this] { graph().stamp_label(); });
  mnunelabel.Click.handle([this] { graph().drop_label(); });
}

}  // namespace tarnmill
