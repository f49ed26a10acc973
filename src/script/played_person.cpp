#include "script/played_person.h"

#include <string>
#include <type_traits>
#include <utility>

#include "script/message_words.h"

namespace tarnmill {

namespace {

template <class T>
DialogShown::Given given(const std::optional<T>& answer) {
  if (!answer) return {};
  return *answer;
}

DialogShown record_of(DialogShown::Kind kind, const Text& title) {
  DialogShown shown;
  shown.kind = kind;
  shown.title = title;
  return shown;
}

/// Whether an answer is the word of a Cancel button.
bool is_cancel(const Answer& answer) {
  const auto* word = std::get_if<Text>(&answer.value());
  const auto* button = std::get_if<MessageResult>(&answer.value());
  return (word != nullptr && *word == u"cancel") || (button != nullptr && *button == MessageResult::cancel);
}

FontChoice applied(const FontAnswer& answer, const FontDialog& dialog) {
  return {{answer.name.value_or(dialog.font.name), answer.size.value_or(dialog.font.size),
           answer.bold.value_or(dialog.font.bold), answer.italic.value_or(dialog.font.italic),
           answer.underline.value_or(dialog.font.underline),
           answer.strike_through.value_or(dialog.font.strike_through)},
          answer.color.value_or(dialog.color)};
}

}  // namespace

void PlayedPerson::forget() {
  queue_.clear();
  dialogs_.clear();
  ++times_forgotten_;
}

std::optional<std::string> PlayedPerson::take_complaint() { return std::exchange(complaint_, std::nullopt); }

void PlayedPerson::complain(const std::string& what) {
  if (!complaint_) complaint_ = what;
}

Answer PlayedPerson::next() {
  if (queue_.empty()) return Cancelled{};
  Answer answer = std::move(queue_.front());
  queue_.pop_front();
  return answer;
}

template <class T>
std::optional<T> PlayedPerson::next_as(const char* dialog) {
  const Answer answer = next();
  if constexpr (std::is_same_v<T, Text>) {
    if (const auto* number = std::get_if<Color>(&answer.value())) return from_utf8(std::to_string(*number));
  }
  if (const T* wanted = std::get_if<T>(&answer.value())) return *wanted;
  if (!std::holds_alternative<Cancelled>(answer.value()) && !is_cancel(answer)) {
    complain(std::string{"the answer queued for "} + dialog + " is none that it can take");
  }
  return std::nullopt;
}

MessageResult PlayedPerson::pressed(const MessageBox& box) {
  if (box.buttons == MessageButtons::ok) return MessageResult::ok;
  const Answer answer = next();
  if (std::holds_alternative<Cancelled>(answer.value())) return refusing_button(box.buttons);
  std::optional<MessageResult> button;
  if (const auto* pressed = std::get_if<MessageResult>(&answer.value())) button = *pressed;
  if (const auto* word = std::get_if<Text>(&answer.value())) button = button_called(*word);
  if (button && has_button(box.buttons, *button)) return *button;
  if (is_cancel(answer)) return refusing_button(box.buttons);
  complain("a message box with the buttons \"" + std::string{word_of(box.buttons)} +
           "\" has no button for the answer queued: " + to_utf8(box.text));
  return refusing_button(box.buttons);
}

MessageResult PlayedPerson::message(const MessageBox& box) {
  DialogShown shown = record_of(DialogShown::Kind::message, box.title);
  shown.text = box.text;
  shown.icon = box.icon;
  shown.buttons = box.buttons;
  shown.default_button = box.default_button;
  const MessageResult button = pressed(box);
  shown.answer = button;
  dialogs_.push_back(std::move(shown));
  return button;
}

std::optional<Text> PlayedPerson::input(const InputBox& box) {
  DialogShown shown = record_of(DialogShown::Kind::input, box.title);
  shown.text = box.prompt;
  auto answer = next_as<Text>("an input box");
  shown.answer = given(answer);
  dialogs_.push_back(std::move(shown));
  return answer;
}

std::optional<Text> PlayedPerson::choose_file(const FileDialog& dialog) {
  const bool saving = dialog.kind == FileDialog::Kind::save;
  DialogShown shown = record_of(saving ? DialogShown::Kind::save : DialogShown::Kind::open, dialog.title);
  shown.filter = dialog.filter;
  shown.filter_index = dialog.filter_index;
  shown.flags = dialog.flags;
  auto answer = next_as<Text>("a file dialog");
  shown.answer = given(answer);
  dialogs_.push_back(std::move(shown));
  return answer;
}

std::optional<Color> PlayedPerson::choose_color(const ColorDialog& dialog) {
  DialogShown shown = record_of(DialogShown::Kind::color, dialog.title);
  shown.flags = dialog.flags;
  auto answer = next_as<Color>("a colour dialog");
  shown.answer = given(answer);
  dialogs_.push_back(std::move(shown));
  return answer;
}

std::optional<FontChoice> PlayedPerson::choose_font(const FontDialog& dialog) {
  DialogShown shown = record_of(DialogShown::Kind::font, dialog.title);
  shown.flags = dialog.flags;
  auto answer = next_as<FontAnswer>("a font dialog");
  std::optional<FontChoice> choice;
  if (answer) choice = applied(*answer, dialog);
  shown.answer = given(choice);
  dialogs_.push_back(std::move(shown));
  return choice;
}

bool PlayedPerson::set_up_printer(const PrinterDialog& dialog) {
  DialogShown shown = record_of(DialogShown::Kind::printer, {});
  shown.buttons = MessageButtons::ok_cancel;
  shown.flags = dialog.flags;
  std::optional<MessageResult> button =
      pressed({u"the printer dialog", {}, {}, MessageButtons::ok_cancel, 1});
  if (button != MessageResult::ok) button.reset();
  shown.answer = given(button);
  dialogs_.push_back(std::move(shown));
  return button.has_value();
}

}  // namespace tarnmill
