#include <filesystem>
#include <system_error>

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/files.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"

namespace tarnmill {

std::filesystem::path frmFunc::history_path() { return workbench().desk().folder() / "GraphLog.txt"; }

/// The history of earlier runs; a file that is missing is made, one that can't be made or read costs the
/// history alone.
void frmFunc::load_history() {
  const std::filesystem::path path = history_path();
  std::error_code error;
  resume_next(
      [&] {
        if (!std::filesystem::exists(path, error)) write_text_file(path, u"");
      },
      [&] { rtb.LoadFile(path, RichTextBox::rtfText); });
}

void frmFunc::save_to_history() {
  const std::filesystem::path path = history_path();
  const Text entry =
      u"\r\n Y = " + txtY.Text.get() + u"\r\n X = " + txtX.Text.get() + u"\r\n __________________\r\n";
  resume_next([&] { append_text_file(path, entry); }, [&] { rtb.LoadFile(path, RichTextBox::rtfText); });
}

void frmFunc::clear_history() {
  constexpr int second_button = 2;
  const MessageResult answer = MsgBox(u"Clear Function History?", MessageIcon::exclamation, u"Tarnmill",
                                      MessageButtons::yes_no, second_button);
  if (answer != MessageResult::yes) return;
  const std::filesystem::path path = history_path();
  rtb.Text.write(u"");
  resume_next([&] { rtb.SaveFile(path, RichTextBox::rtfText); },
              [&] { rtb.LoadFile(path, RichTextBox::rtfText); });
}

}  // namespace tarnmill
