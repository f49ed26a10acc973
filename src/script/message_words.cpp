#include "script/message_words.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace tarnmill {

namespace {

constexpr std::array all_buttons{MessageResult::ok, MessageResult::cancel, MessageResult::yes,
                                 MessageResult::no};

std::span<const MessageResult> buttons_of(MessageButtons buttons) {
  static constexpr std::array ok{MessageResult::ok};
  static constexpr std::array ok_cancel{MessageResult::ok, MessageResult::cancel};
  static constexpr std::array yes_no{MessageResult::yes, MessageResult::no};
  static constexpr std::array yes_no_cancel{MessageResult::yes, MessageResult::no, MessageResult::cancel};
  switch (buttons) {
    case MessageButtons::ok_cancel:
      return ok_cancel;
    case MessageButtons::yes_no:
      return yes_no;
    case MessageButtons::yes_no_cancel:
      return yes_no_cancel;
    case MessageButtons::ok:
      break;
  }
  return ok;
}

}  // namespace

std::string_view word_of(MessageResult button) {
  static constexpr std::array<std::string_view, 4> words{"ok", "cancel", "yes", "no"};
  return words.at(static_cast<std::size_t>(button));
}

std::string_view word_of(MessageButtons buttons) {
  static constexpr std::array<std::string_view, 4> words{"ok", "okcancel", "yesno", "yesnocancel"};
  return words.at(static_cast<std::size_t>(buttons));
}

std::string_view word_of(MessageIcon icon) {
  static constexpr std::array<std::string_view, 5> words{"none", "critical", "question", "exclamation",
                                                         "information"};
  return words.at(static_cast<std::size_t>(icon));
}

std::optional<MessageResult> button_called(TextView word) {
  const std::string plain = to_utf8(word);
  for (const MessageResult each : all_buttons) {
    if (word_of(each) == plain) return each;
  }
  return std::nullopt;
}

bool has_button(MessageButtons buttons, MessageResult button) {
  const auto row = buttons_of(buttons);
  return std::find(row.begin(), row.end(), button) != row.end();
}

MessageResult refusing_button(MessageButtons buttons) {
  for (const MessageResult each : {MessageResult::cancel, MessageResult::no}) {
    if (has_button(buttons, each)) return each;
  }
  return MessageResult::ok;
}

}  // namespace tarnmill
