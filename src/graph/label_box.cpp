// The box that carries a label over the plot until it is stamped.
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"

namespace tarnmill {
namespace {

constexpr int left_button = 1;
constexpr int right_button = 2;

}  // namespace

void frmFunc::picMCRBox_MouseDown(int Button, int /*Shift*/, float X, float Y) {
  LabelDragX = X;
  LabelDragY = Y;
  if (Button == right_button) PopupMenu(workbench().window<frmZoom>().mnulabel);
}

void frmFunc::picMCRBox_MouseMove(int Button, int /*Shift*/, float X, float Y) {
  picMCRBox.ToolTipText = u"Drag the Label and click the right mouse to insert or delete";
  keep_label_box_in_bounds();
  if (Button != left_button) return;
  picMCRBox.Left = picMCRBox.Left + static_cast<double>(X - LabelDragX);
  picMCRBox.Top = picMCRBox.Top + static_cast<double>(Y - LabelDragY);
}

/// In twips of the window. Past the right edge the box jumps back to the left side instead of stopping.
void frmFunc::keep_label_box_in_bounds() {
  constexpr double least_left = 2460;
  constexpr double right_edge = 8460;
  constexpr double put_back_left = 2500;
  constexpr double least_top = 960;
  constexpr double bottom_edge = 6700;
  if (picMCRBox.Left < least_left) picMCRBox.Left = put_back_left;
  if (right_edge - picMCRBox.Width < picMCRBox.Left) picMCRBox.Left = put_back_left;
  if (picMCRBox.Top < least_top) picMCRBox.Top = least_top;
  if (bottom_edge - picMCRBox.Height < picMCRBox.Top) picMCRBox.Top = bottom_edge;
}

}  // namespace tarnmill
