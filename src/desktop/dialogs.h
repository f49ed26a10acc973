#pragma once

#include <optional>

#include "forms/dialogs.h"

class QWidget;

/// The dialogs of the desk as the toolkit shows them, each before `parent` (or none). An empty answer is
/// Cancel.
namespace tarnmill::desktop {

[[nodiscard]] MessageResult ask_message(QWidget* parent, const MessageBox& box);
[[nodiscard]] std::optional<Text> ask_text(QWidget* parent, const InputBox& box);
[[nodiscard]] std::optional<Text> ask_file(QWidget* parent, const FileDialog& dialog);
[[nodiscard]] std::optional<Color> ask_color(QWidget* parent, const ColorDialog& dialog);
[[nodiscard]] std::optional<FontChoice> ask_font(QWidget* parent, const FontDialog& dialog);

}  // namespace tarnmill::desktop
