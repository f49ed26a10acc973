#include <filesystem>
#include <system_error>

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/raster.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"
#include "mathpad/math_pad_names.h"
#include "shell/recent_list.h"

namespace tarnmill {

namespace {

constexpr TextView document_filter = u"Text (*.txt)|*.txt|RTF (*.rtf)|*.rtf|All Files (*.*)|*.*";
constexpr TextView image_filter =
    u"Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|All Files (*.*)|*.*";
constexpr int fault_invalid_picture = 481;

Text ending_of(TextView name) {
  constexpr std::size_t length = 3;
  return upper_case(name.size() > length ? name.substr(name.size() - length) : name);
}

RichTextBox::Format format_of(TextView name) {
  return ending_of(name) == u"RTF" ? RichTextBox::rtfRTF : RichTextBox::rtfText;
}

int filter_index_of(TextView name) {
  const Text ending = ending_of(name);
  if (ending == u"TXT") return 1;
  return ending == u"RTF" ? 2 : 3;
}

std::filesystem::path path_of(TextView name) { return std::filesystem::path{to_utf8(name)}; }

/// Whether there is such a file; a folder is none.
bool exists(TextView name) {
  std::error_code unreadable;
  const std::filesystem::file_status status = std::filesystem::status(path_of(name), unreadable);
  return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

/// Runs an operation; a fault, of which a cancelled dialog is one, ends it without a word.
template <class Operation>
void quietly(Operation&& operation) {
  resume_step(std::forward<Operation>(operation));
}

}  // namespace

bool MathPad::has_name() const { return Caption.get() != unnamed_caption; }

MessageResult MathPad::ask_to_save(const Text& question) {
  return MsgBox(question, MessageIcon::none, u"Tarnmill", MessageButtons::yes_no_cancel);
}

Text MathPad::ask_for_file(void (CommonDialog::*dialog)(), TextView title, TextView filter) {
  const Text document = CommonDialog1.FileName;
  CommonDialog1.CancelError = true;
  CommonDialog1.Filter = Text{filter};
  CommonDialog1.DialogTitle = Text{title};
  CommonDialog1.FileName = Text{};
  try {
    (CommonDialog1.*dialog)();
  } catch (const Fault&) {
    CommonDialog1.FileName = document;
    throw;
  }
  Text chosen = CommonDialog1.FileName;
  CommonDialog1.FileName = document;
  return chosen;
}

void MathPad::prepare_dialog() {
  CommonDialog1.CancelError = true;
  CommonDialog1.Filter = Text{document_filter};
}

void MathPad::name_document(const Text& path) {
  CommonDialog1.FileName = path;
  Caption = Text{unnamed_caption} + path;
}

void MathPad::load_opened(const Text& path) {
  rt1.LoadFile(path_of(path), format_of(path));
  name_document(path);
  rt1.Tag = u"notchange";
  clear_toolbar_state();
  get_edit_status();
  AddRecentFile(bench(), path);
}

void MathPad::load_stored(const Text& path, RichTextBox::Format format) {
  rt1.LoadFile(path_of(path), format);
  name_document(path);
  get_edit_status();
  rt1.Tag = u"notchange";
  AddRecentFile(bench(), path);
}

void MathPad::new_document() {
  if (rt1.Tag.get() == u"change") {
    const MessageResult answer = ask_to_save(u"Do you want to save the changes?");
    if (answer == MessageResult::cancel) return;
    if (answer == MessageResult::yes) save();
  }
  resume_next([&] { rt1.Text.write(u""); }, [&] { Caption = Text{unnamed_caption}; },
              [&] { clear_toolbar_state(); }, [&] { reset_sel_format(); }, [&] { rt1.Tag = u"notchange"; },
              [&] { get_edit_status(); });
}

void MathPad::open_document() {
  quietly([&] {
    if (rt1.Tag.get() == u"change") {
      const MessageResult answer = ask_to_save(u"Do you want to save the changes you made?");
      if (answer == MessageResult::cancel) return;
      if (answer == MessageResult::yes) save();
    }
    CommonDialog1.FilterIndex = filter_index_of(CommonDialog1.FileName.get());
    const Text path = ask_for_file(&CommonDialog::ShowOpen, u"Open", document_filter);
    load_opened(path);
  });
}

void MathPad::save_as() {
  quietly([&] {
    CommonDialog1.FilterIndex = has_name() ? filter_index_of(CommonDialog1.FileName.get()) : 1;
    const Text path = ask_for_file(&CommonDialog::ShowSave, u"Save As", document_filter);
    if (exists(path)) {
      const Text question = path + u" already exists.\r\nDo you want to replace it?";
      const MessageResult answer = MsgBox(question, MessageIcon::none, u"Save As", MessageButtons::yes_no);
      if (answer == MessageResult::no) return;
    }
    const RichTextBox::Format format = format_of(path);
    rt1.SaveFile(path_of(path), format);
    rt1.Text.write(u"");
    if (format == RichTextBox::rtfText) clear_toolbar_state();
    load_stored(path, format);
  });
}

void MathPad::save() {
  quietly([&] {
    const Text path = CommonDialog1.FileName;
    // The name that the person sees tells the format.
    const RichTextBox::Format format = format_of(Caption.get());
    if (!store()) return;
    new_document();
    load_stored(path, format);
  });
}

void MathPad::save_current() {
  quietly([&] { store(); });
}

bool MathPad::store() {
  const Text path = CommonDialog1.FileName;
  CommonDialog1.FilterIndex = filter_index_of(path);
  if (!has_name()) {
    save_as();
    return false;
  }
  prepare_dialog();
  rt1.SaveFile(path_of(path), format_of(Caption.get()));
  rt1.Tag = u"notchange";
  return true;
}

void MathPad::mnuRecent_Click(int Index) {
  if (rt1.Tag.get() == u"change") {
    const MessageResult answer = ask_to_save(u"Do you want to save the changes you made?");
    if (answer == MessageResult::cancel) return;
    if (answer == MessageResult::yes) save_current();
  }
  CommonDialog1.FileName = mnuRecent(Index).Caption.get();
  open_current();
}

void MathPad::open_current() {
  const Text named = has_name() ? Caption->substr(unnamed_caption.size()) : Text{};
  const Text path = CommonDialog1.FileName;
  // What can't be opened doesn't take the name of the document that stays.
  CommonDialog1.FileName = named;
  prepare_dialog();
  CommonDialog1.DialogTitle = u"Open";
  quietly([&] { load_opened(path); });
}

void MathPad::insert_picture() {
  quietly([&] {
    Desk& desk = bench().desk();
    desk.clear_clipboard();
    CommonDialog1.FilterIndex = 0;
    const Text path = ask_for_file(&CommonDialog::ShowOpen, u"Insert Image", image_filter);
    const std::unique_ptr<Raster> picture = desk.load_picture(path_of(path));
    if (!picture) throw Fault{fault_invalid_picture, u"Invalid picture"};
    imubaci.Picture = path;
    desk.set_clipboard_picture(*picture);
    paste();
  });
}

}  // namespace tarnmill
