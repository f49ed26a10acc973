#include <filesystem>
#include <system_error>

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/raster.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "graph/frm_zoom.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

void frmFunc::Command5_MouseDown(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  PopupMenu(workbench().window<frmZoom>().mnustampaj);
}

/// The frame is part of the picture from then on, and its lines stay until the next plot or clear.
void frmFunc::print_graph() {
  constexpr double margin = 1000;
  for (OverlayLine* line : {&Line3, &Line4, &Line5, &Line6}) line->Visible = true;
  pDraw.Refresh();
  pDraw.TakeInOverlayLines();
  pDraw.FreezePicture();
  workbench().desk().print_picture(pDraw.raster(), margin, margin);
}

void frmFunc::set_up_printer() {
  constexpr std::int32_t printer_setup = 64;
  resume_step([this] {
    CD1.CancelError = true;
    CD1.Flags = printer_setup;
    CD1.ShowPrinter();
  });
}

void frmFunc::save_graph() {
  resume_step([this] { ask_for_bitmap(); });
}

void frmFunc::ask_for_bitmap() {
  constexpr std::int32_t flags = 0x202804;
  CD1.DialogTitle = u"Save Graph As";
  CD1.Flags = flags;
  CD1.FileName = u"";
  CD1.ShowSave();
  const Text name = CD1.FileName;
  if (file_exists(name)) {
    const Text question = name + u" already exists.\r\nDo you want to replace it?";
    if (MsgBox(question, MessageIcon::none, u"Save As", MessageButtons::yes_no) != MessageResult::yes) return;
  }
  pDraw.FreezePicture();
  // A file that can't be written stays as it was, and nobody is told.
  static_cast<void>(pDraw.raster().save_bitmap(std::filesystem::path{to_utf8(name)}));
}

bool frmFunc::file_exists(const Text& name) const {
  std::error_code unreadable;
  return std::filesystem::is_regular_file(std::filesystem::path{to_utf8(name)}, unreadable);
}

void frmFunc::open_history() {
  constexpr int second_button = 2;
  const MessageResult answer = MsgBox(
      u"Current Function History will be opened with MathPad.\r\nThere you can edit it, save or print.",
      MessageIcon::information, u"Tarnmill", MessageButtons::yes_no, second_button);
  if (answer != MessageResult::yes) return;
  auto& editor = workbench().window<MathPad>();
  editor.Show();
  resume_step([&] { editor.rt1.LoadFile(history_path(), RichTextBox::rtfText); });
}

}  // namespace tarnmill
