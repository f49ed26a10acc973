#pragma once

#include <cstdint>

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/field.h"
#include "forms/procedure.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

class MathPad;

/// Finds and replaces a string in the editor's document.
class frmFind final : public Window {
 public:
  static constexpr std::string_view class_name = "frmFind";
  explicit frmFind(Workbench& workbench);

  /// "Find what" and "Replace with".
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  CheckBox Check1{*this, "Check1", u"Case sensitive"};
  CheckBox Check2{*this, "Check2", u"Whole word only"};
  Button FindButton{*this, "FindButton", u"Find"};
  Button FindNextButton{*this, "FindNextButton", u"Find Next"};
  Button ReplaceButton{*this, "ReplaceButton", u"Replace"};
  Button ReplaceAllButton{*this, "ReplaceAllButton", u"Replace All"};
  Button Command5{*this, "Command5", u"Cancel"};

  /// Where the last match stands in the document, from 0; -1 when the last search failed.
  Field<std::int16_t> position{*this, "position"};

  void find();
  void find_next();
  void replace();
  void replace_all();

  Procedure FindNext{*this, "FindNext", &frmFind::find_next};

 private:
  [[nodiscard]] MathPad& pad();
  /// Searches from behind the start of the last match. Raises Overflow for a match that 16 bits can't count.
  void search();
  /// Tells that the string isn't there, or goes to the editor.
  void report(bool found);
  void enable_replacing(bool on);
  void put_in();
};

}  // namespace tarnmill
