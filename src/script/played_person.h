#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/dialogs.h"
#include "script/answer.h"
#include "script/dialog_shown.h"

namespace tarnmill {

/// The person whom a script plays: answers the dialogs that ask from a queue filled beforehand, and keeps a
/// record of all that came up. Where the queue is empty the person takes Cancel, or No of a box without it.
class PlayedPerson {
 public:
  /// Queues an answer for the next dialog that asks.
  void answer(Answer answer) { queue_.push_back(std::move(answer)); }
  /// All dialogs shown, the oldest first.
  [[nodiscard]] const std::vector<DialogShown>& dialogs() const { return dialogs_; }
  /// Empties the record and the queue.
  void forget();
  /// How often the record was emptied, so that a copy of it knows when to start afresh.
  [[nodiscard]] int times_forgotten() const { return times_forgotten_; }

  /// What was wrong with an answer that did not fit its dialog, once; the dialog was cancelled then.
  [[nodiscard]] std::optional<std::string> take_complaint();

  /// \name The dialogs, as of Desk. A message with an OK button alone takes nothing from the queue.
  ///@{
  MessageResult message(const MessageBox& box);
  std::optional<Text> input(const InputBox& box);
  std::optional<Text> choose_file(const FileDialog& dialog);
  std::optional<Color> choose_color(const ColorDialog& dialog);
  std::optional<FontChoice> choose_font(const FontDialog& dialog);
  bool set_up_printer(const PrinterDialog& dialog);
  ///@}

 private:
  [[nodiscard]] Answer next();
  template <class T>
  [[nodiscard]] std::optional<T> next_as(const char* dialog);
  [[nodiscard]] MessageResult pressed(const MessageBox& box);
  void complain(const std::string& what);

  std::deque<Answer> queue_;
  std::vector<DialogShown> dialogs_;
  std::optional<std::string> complaint_;
  int times_forgotten_ = 0;
};

}  // namespace tarnmill
