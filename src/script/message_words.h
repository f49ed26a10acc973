#pragma once

#include <optional>
#include <string_view>

#include "engine/text.h"
#include "forms/dialogs.h"

namespace tarnmill {

/// The word by which scripts call a button: "ok", "cancel", "yes", "no".
[[nodiscard]] std::string_view word_of(MessageResult button);
/// The word for a row of buttons, such as "yesnocancel".
[[nodiscard]] std::string_view word_of(MessageButtons buttons);
/// The word for an icon, such as "exclamation"; "none" for none.
[[nodiscard]] std::string_view word_of(MessageIcon icon);
/// The button of a word, or nothing when no button is called so.
[[nodiscard]] std::optional<MessageResult> button_called(TextView word);

/// Whether a row of buttons has this one.
[[nodiscard]] bool has_button(MessageButtons buttons, MessageResult button);
/// The button for a person who wants nothing: Cancel where there is one, else No, else OK.
[[nodiscard]] MessageResult refusing_button(MessageButtons buttons);

}  // namespace tarnmill
