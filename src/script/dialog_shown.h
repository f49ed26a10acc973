#pragma once

#include <cstdint>
#include <variant>

#include "engine/text.h"
#include "forms/color.h"
#include "forms/dialogs.h"

namespace tarnmill {

/// A dialog as it came up, and how it was answered. What a kind of dialog doesn't have is as made here.
struct DialogShown {
  enum class Kind { message, input, open, save, color, font, printer };
  /// No value is Cancel.
  using Given = std::variant<std::monostate, MessageResult, Text, Color, FontChoice>;

  Kind kind = Kind::message;
  Text title;
  /// The words of a message or the prompt of an input box.
  Text text;
  MessageIcon icon = MessageIcon::none;
  MessageButtons buttons = MessageButtons::ok;
  /// The button that Enter presses, 1 for the first.
  int default_button = 1;
  Text filter;
  int filter_index = 0;
  std::int32_t flags = 0;
  Given answer;
};

}  // namespace tarnmill
