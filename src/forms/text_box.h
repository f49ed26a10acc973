#pragma once

#include "forms/color.h"
#include "forms/control.h"
#include "forms/font.h"

namespace tarnmill {

/// A box of text with a selection. A locked one shows text and selection but takes none from a person.
/// Positions count 16-bit code units from 0.
class TextBox final : public Control, public FontProperties {
 public:
  TextBox(Window& window, std::string_view name, Place place = Place::on_window);
  TextBox(Window& window, std::string_view name, tarnmill::Text text, Place place = Place::on_window);

  Property<tarnmill::Text> Text{*this, "Text"};
  Property<bool> Locked{*this, "Locked"};
  Property<bool> MultiLine{*this, "MultiLine"};
  Property<Color> ForeColor{*this, "ForeColor"};
  Property<Color> BackColor{*this, "BackColor"};
  /// Start and length of the selection; kept within the text, and back at 0 when the text is assigned.
  ComputedProperty SelStart;
  ComputedProperty SelLength;
  /// The selected text; setting it replaces the selection and leaves the caret behind what was put in.
  ComputedProperty SelText;

  [[nodiscard]] int sel_start() const { return sel_start_; }
  [[nodiscard]] int sel_length() const { return sel_length_; }
  /// Selects `length` units from `start`, both cut to the text. A negative one raises Invalid-argument.
  void select(int start, int length);
  /// Replaces the selection, with the caret behind the new text.
  void replace_selection(TextView text);
  /// Takes text and caret as a person's typing left them: one Change, with the selection as given.
  void type(tarnmill::Text text, int caret);

  Event<> Change{*this, "Change"};

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  void assign(tarnmill::Text text, int caret);

  int sel_start_ = 0;
  int sel_length_ = 0;
  int caret_after_assignment_ = 0;
};

}  // namespace tarnmill
