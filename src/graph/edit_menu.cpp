#include "graph/frm_func.h"
#include "graph/frm_zoom.h"

namespace tarnmill {

void frmZoom::connect_edit_menu() {
  mnucwg.Click.handle([this] { graph().clear_without_grid(); });
  mnuredgrid.Click.handle([this] { graph().redraw(); });
  mnuclhistory.Click.handle([this] { graph().clear_history(); });
}

}  // namespace tarnmill
