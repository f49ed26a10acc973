#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/qt_desk.h"
#include "script/played_person.h"
#include "script/timer_pace.h"

namespace tarnmill {

/// A moment at which the clock stands still.
struct FrozenClock {
  DateTime date;
  /// Part of a second beyond the whole ones of `date`.
  double fraction = 0;
};

/// The desk of scripts and tests: the person is played from a queue of answers, and the clock, the decimal
/// separator and the printer are what the script says. All else is the toolkit's.
class ScriptedDesk final : public QtDesk {
 public:
  explicit ScriptedDesk(const std::filesystem::path& folder, Views views = Views::on_demand);
  ~ScriptedDesk() override;

  /// \name The person
  ///@{
  void answer(Answer given) { person_.answer(std::move(given)); }
  [[nodiscard]] const std::vector<DialogShown>& dialogs() const { return person_.dialogs(); }
  void forget() { person_.forget(); }
  [[nodiscard]] PlayedPerson& person() { return person_; }
  ///@}

  /// \name The machine
  ///@{
  /// Stops the clock at a moment, or lets it run on.
  void freeze_clock(std::optional<FrozenClock> moment) { frozen_ = moment; }
  [[nodiscard]] const std::optional<FrozenClock>& frozen_clock() const { return frozen_; }
  /// '.' or ','.
  void decimal_separator(char16_t separator) { regional_.decimal_separator = separator; }
  /// The file that stands for the printer's paper, written as PDF; none for no printer.
  void printer(std::optional<std::filesystem::path> file) { printer_ = std::move(file); }
  [[nodiscard]] const std::optional<std::filesystem::path>& printer() const { return printer_; }
  /// Addresses and help files opened, the oldest first.
  [[nodiscard]] const std::vector<Text>& opened() const { return opened_; }
  ///@}

  /// \name Time and turns of the event loop
  ///@{
  /// A program starts on this desk.
  void begin(Workbench& bench);
  /// A call from outside into the program begins.
  void begin_call() { pace_.begin_call(*bench_); }
  /// Gives the event loop a turn from outside of any handler.
  void turn();
  /// Lets this many milliseconds of timer time pass.
  void tick(double milliseconds) { pace_.tick(*bench_, milliseconds); }
  /// Called at each turn that a running handler gives the event loop, except at those given meanwhile.
  std::function<void()> on_yield;
  ///@}

  MessageResult message(const MessageBox& box) override { return person_.message(box); }
  std::optional<Text> input(const InputBox& box) override { return person_.input(box); }
  std::optional<Text> choose_file(const FileDialog& dialog) override { return person_.choose_file(dialog); }
  std::optional<Color> choose_color(const ColorDialog& dialog) override {
    return person_.choose_color(dialog);
  }
  std::optional<FontChoice> choose_font(const FontDialog& dialog) override {
    return person_.choose_font(dialog);
  }
  bool set_up_printer(const PrinterDialog& dialog) override { return person_.set_up_printer(dialog); }

  /// Closes at once with nothing chosen.
  MenuItem* popup(Window& window, MenuItem& menu, std::optional<std::pair<int, int>> at) override;
  /// Returns at once; the window stays.
  void run_modal(Window& window) override;

  [[nodiscard]] DateTime now() override;
  [[nodiscard]] float seconds_since_midnight() override;
  [[nodiscard]] const Regional& regional() override { return regional_; }

  void open_address(const Text& address) override;
  bool show_help(const std::filesystem::path& file, std::int32_t topic) override;
  void do_events() override;

 protected:
  [[nodiscard]] std::unique_ptr<QPrinter> make_printer() override;

 private:
  PlayedPerson person_;
  TimerPace pace_;
  Regional regional_;
  std::optional<FrozenClock> frozen_;
  std::optional<std::filesystem::path> printer_;
  std::vector<Text> opened_;
  Workbench* bench_ = nullptr;
  bool yielding_ = false;
};

}  // namespace tarnmill
