#include "engine/fault.h"
#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"

namespace tarnmill {

void frmFunc::connect_zoom() {
  lblzm.Change.handle([this] { workbench().window<frmZoom>().mark_popup(lblzm.Caption.get()); });
  cmdZoom.MouseDown.handle(this, &frmFunc::cmdZoom_MouseDown);
}

void frmFunc::cmdZoom_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  constexpr int left = 1;
  if (Button == left) PopupMenu(workbench().window<frmZoom>().mnuzoom);
  input_field().SetFocus();
}

void frmFunc::apply_zoom_preset() { zoom_to(workbench().window<frmZoom>().settle_on_preset()); }

// The number is taken before it is tested, and stays when it is refused: grid and curves then follow it,
// readout and marks do not.
void frmFunc::ask_for_zoom() {
  constexpr double least = 5;
  constexpr double most = 100;
  if (Drawing) return;
  try {
    const Text answer =
        workbench().desk().input({u"Select zooming factor in range (5-100).", u"Zooming", u""}).value_or(u"");
    workbench().leave_if_ended();
    if (answer.empty()) return;
    const double factor = NumberFromText(answer);
    PixelsPerUnit = factor;
    if (factor < least || factor > most) {
      MsgBox(u"Input out of range!");
      return;
    }
    Line1.Visible = false;
    workbench().window<frmZoom>().unmark_presets();
    show_zoom(answer);
    // Also where the text of the zoom is the same as before.
    workbench().window<frmZoom>().mark_popup(answer);
  } catch (const Fault&) {
    // A number beyond the range leaves the zoom as it was.
  }
}

/// Sets the zoom that a text names, on an empty plane.
void frmFunc::zoom_to(TextView factor) {
  PixelsPerUnit = NumberFromText(factor);
  show_zoom(factor);
}

/// Names the zoom and draws the plane anew.
void frmFunc::show_zoom(TextView factor) {
  lblzm.Caption = Text{factor};
  pDraw.Cls();
  draw_lines();
}

}  // namespace tarnmill
