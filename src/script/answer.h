#pragma once

#include <optional>
#include <utility>
#include <variant>

#include "engine/text.h"
#include "forms/color.h"
#include "forms/dialogs.h"

namespace tarnmill {

/// The answer of somebody who presses Cancel or Escape.
struct Cancelled {};

/// What somebody changes in a font dialog; the rest stays as the dialog came up with it.
struct FontAnswer {
  std::optional<Text> name;
  std::optional<double> size;
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::optional<bool> strike_through;
  std::optional<Color> color;
};

/// One answer for a dialog that asks, given before the dialog comes. A text answers an input box or a file
/// dialog; one of the words "ok", "cancel", "yes" and "no" also a message box or a printer dialog, and
/// "cancel" refuses any dialog that takes no text. A number is a colour, or a text to type.
class Answer {
 public:
  using Value = std::variant<Cancelled, MessageResult, Text, Color, FontAnswer>;

  // Implicit, so that answers are queued as the values that they are: `desk.answer(u"3.5")`.
  // NOLINTBEGIN(google-explicit-constructor,hicpp-explicit-conversions)
  Answer(Cancelled cancelled) : value_{cancelled} {}
  Answer(MessageResult button) : value_{button} {}
  Answer(Text text) : value_{std::move(text)} {}
  Answer(const char16_t* text) : value_{Text{text}} {}
  Answer(Color color) : value_{color} {}
  Answer(FontAnswer font) : value_{std::move(font)} {}
  Answer(const FontChoice& choice)
      : value_{FontAnswer{choice.font.name, choice.font.size, choice.font.bold, choice.font.italic,
                          choice.font.underline, choice.font.strike_through, choice.color}} {}
  // NOLINTEND(google-explicit-constructor,hicpp-explicit-conversions)

  [[nodiscard]] const Value& value() const { return value_; }

 private:
  Value value_;
};

}  // namespace tarnmill
