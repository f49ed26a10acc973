#include "analysis/frm_analiza.h"
#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

void frmAnaliza::append_head(const Text& head) { txtroot.Text = txtroot.Text.get() + u"\r\n\r\n" + head; }

void frmAnaliza::append_line(const Text& line) { txtroot.Text = txtroot.Text.get() + u"\r\n" + line; }

/// A file that can't be written or read costs what follows it, without a word.
void frmAnaliza::cmdprint_Click() {
  if (txtroot.Text->empty()) {
    MsgBox(u"Function Analyze log is empty.", MessageIcon::information);
    return;
  }
  resume_next([this] { save_log(); });
}

/// What was saved before is never forgotten: each file holds all the earlier ones.
void frmAnaliza::save_log() {
  constexpr int second_button = 2;
  rtfroot.Text.write(rtfroot.document().text() + u"\r\n\r\nAnalyzing Finction:\r\ny = " +
                     txtformula.Text.get() + txtroot.Text.get());
  const auto path = workbench().desk().folder() / "FuncAnal.txt";
  cd1.FileName = path.u16string();
  rtfroot.SaveFile(path, RichTextBox::rtfText);
  const MessageResult answer = MsgBox(
      u"Current Function Analyze will be opened with MathPad.\r\nThere you can edit it, save or print.",
      MessageIcon::information, u"Tarnmill", MessageButtons::yes_no, second_button);
  if (answer != MessageResult::yes) return;
  auto& editor = workbench().window<MathPad>();
  editor.Show();
  editor.rt1.LoadFile(path, RichTextBox::rtfText);
}

void frmAnaliza::Image10_Click() {
  const Text question = u"This will clear current analyze log.\r\nContinue?";
  const bool keeps = !txtroot.Text->empty() && MsgBox(question, MessageIcon::none, u"Clear Analyze",
                                                      MessageButtons::yes_no) != MessageResult::yes;
  if (!keeps) txtroot.Text = u"";
}

}  // namespace tarnmill
