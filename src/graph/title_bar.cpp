#include "forms/desk.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"

namespace tarnmill {

void frmFunc::connect_title_bar() {
  immini.Click.handle(this, &frmFunc::immini_Click);
  imclose.Click.handle(this, &frmFunc::imclose_Click);
  imhelp.Click.handle(this, &frmFunc::imhelp_Click);
  for (Image* image : {&immini, &imclose, &imhelp}) connect_picture(*image);
  lblcap.MouseDown.handle(this, &frmFunc::lblcap_MouseDown);
}

/// Press and release show the two pictures of an image.
void frmFunc::connect_picture(Image& image) {
  const Text normal = image.Picture;
  image.MouseDown.handle([&image, normal](int, int, float, float) { image.Picture = normal + u"-pressed"; });
  image.MouseUp.handle([&image, normal](int, int, float, float) { image.Picture = normal; });
}

void frmFunc::connect_menu_bar() {
  constexpr double below_bar = 450;
  const auto pop_up = [this](Label& label, MenuItem frmZoom::*menu, double x) {
    label.Click.handle([this, menu, x] { PopupMenu(workbench().window<frmZoom>().*menu, x, below_bar); });
  };
  pop_up(Label1, &frmZoom::mnufile, 165);
  pop_up(Label4, &frmZoom::mnuEdit, 495);
  pop_up(Label5, &frmZoom::mnuExamples, 855);
  pop_up(Label6, &frmZoom::mnuHelp, 1620);
}

void frmFunc::immini_Click() { WindowState = 1; }

void frmFunc::imclose_Click() { workbench().end(); }

void frmFunc::imhelp_Click() { workbench().window<frmZoom>().press_help_key(); }

void frmFunc::lblcap_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  constexpr int left = 1;
  if (Button == left) workbench().desk().start_move(*this);
}

}  // namespace tarnmill
