#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "forms/desk.h"
#include "forms/files.h"
#include "mathpad/frm_ansi.h"
#include "mathpad/frm_find.h"
#include "mathpad/frm_page_setup.h"
#include "mathpad/math_pad.h"
#include "support/test_program.h"

namespace tarnmill {

/// The program with the editor, and the words in which its tests are told.
class MathPadTest : public testing::Test {
 protected:
  [[nodiscard]] MathPad& pad() { return program.window<MathPad>(); }
  [[nodiscard]] RichText& document() { return pad().rt1.document(); }
  [[nodiscard]] Text text() { return document().text(); }

  /// Types at the end of the document.
  void type(const Text& words) {
    document().select(document().length(), 0);
    document().replace_selection(words);
  }
  void assign(const Text& words) { pad().rt1.Text.write(words); }

  [[nodiscard]] Text path(const std::string& name) { return from_utf8((program.folder() / name).string()); }
  void write(const std::string& name, TextView words) { write_text_file(program.folder() / name, words); }
  [[nodiscard]] std::string bytes(const std::string& name) { return read_file(program.folder() / name); }

  /// Opens a file as a person does.
  void open(const std::string& name) {
    program.desk.answer(path(name));
    pad().open_document();
  }
  void save_as(const std::string& name) {
    program.desk.answer(path(name));
    pad().save_as();
  }

  [[nodiscard]] const std::vector<DialogShown>& dialogs() { return program.desk.dialogs(); }
  [[nodiscard]] DialogShown last_dialog() { return dialogs().empty() ? DialogShown{} : dialogs().back(); }

  TestProgram program;
};

}  // namespace tarnmill
