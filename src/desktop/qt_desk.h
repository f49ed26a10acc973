#pragma once

#include <QPointer>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include "forms/desk.h"

class QLockFile;
class QPrinter;
class QWidget;

namespace tarnmill {

namespace desktop {
class HelpWindow;
class Pulse;
class SettingsFile;
class ViewStore;
}  // namespace desktop

/// Whether windows stand on the screen (eager), or get a widget only when one is asked for and never show.
enum class Views { eager, on_demand };

/// The desk of the toolkit. A desk that plays the person derives from it and overrides what the person and
/// the machine give; everything else, from the raster to the settings, is used as it is here.
class QtDesk : public Desk {
 public:
  /// A desk that keeps its files and settings in `folder`, which is made when it is missing. A folder that
  /// can't be made or written costs what would be kept in it, and nothing else. Needs a QApplication.
  QtDesk(std::filesystem::path folder, Views views);
  ~QtDesk() override;

  /// The folder that a person's own program keeps its files in.
  [[nodiscard]] static std::filesystem::path user_folder();

  /// Follows the workbench whose timers are to run and whose windows are to be shown. The loading of a
  /// window does the same.
  void attach(Workbench& bench);

  /// The widget of a window, built when there is none yet. Windows without a form have an empty one.
  [[nodiscard]] QWidget& view(Window& window);

  MessageResult message(const MessageBox& box) override;
  std::optional<Text> input(const InputBox& box) override;
  std::optional<Text> choose_file(const FileDialog& dialog) override;
  std::optional<Color> choose_color(const ColorDialog& dialog) override;
  std::optional<FontChoice> choose_font(const FontDialog& dialog) override;
  bool set_up_printer(const PrinterDialog& dialog) override;

  MenuItem* popup(Window& window, MenuItem& menu, std::optional<std::pair<int, int>> at) override;
  void run_modal(Window& window) override;

  void clear_clipboard() override;
  void set_clipboard_text(const Text& text) override;
  [[nodiscard]] Text clipboard_text() override;
  void set_clipboard_picture(const Raster& picture) override;
  [[nodiscard]] bool clipboard_has_picture() override;

  [[nodiscard]] DateTime now() override;
  [[nodiscard]] float seconds_since_midnight() override;
  [[nodiscard]] const Regional& regional() override;

  [[nodiscard]] std::filesystem::path folder() override;
  /// `share/tarnmill` beside the folder of the program's executable, installed or built.
  [[nodiscard]] std::filesystem::path data_folder() override;
  [[nodiscard]] Text program_name() override;
  [[nodiscard]] SettingsStore& settings() override;

  [[nodiscard]] std::unique_ptr<Raster> make_raster(int width, int height) override;
  [[nodiscard]] std::unique_ptr<RichText> make_rich_text() override;
  void print_picture(const Raster& picture, double x, double y) override;
  void print_document(const RichText& document, const PageMargins& margins) override;
  [[nodiscard]] std::unique_ptr<Raster> load_picture(const std::filesystem::path& path) override;
  [[nodiscard]] std::vector<Text> font_names() override;

  void window_loaded(Window& window) override;
  void window_unloaded(Window& window) override;
  void window_activated(Window& window) override;
  void focus_moved(Control* control) override;
  void refresh(Window& window) override;
  void start_move(Window& window) override;
  void set_on_top(Window& window, bool on_top) override;

  void open_address(const Text& address) override;
  bool show_help(const std::filesystem::path& file, std::int32_t topic) override;
  [[nodiscard]] bool previous_instance() override;
  void do_events() override;
  void set_mouse_pointer(int shape) override;
  void quit() override;

  /// Brings the settings to the disk, for a process that ends without taking the desk down.
  void keep_settings();

 protected:
  /// The printer that prints when a window prints; null when there is none.
  [[nodiscard]] virtual std::unique_ptr<QPrinter> make_printer();
  /// From now on time passes for the timers only by TimerQueue::advance.
  void stop_real_time();
  /// Whether windows stand on the screen.
  [[nodiscard]] bool shows_views() const { return views_ == Views::eager; }

 private:
  /// What a dialog stands before: the widget of the active window, or null.
  [[nodiscard]] QWidget* dialog_parent() const;

  std::filesystem::path folder_;
  Views views_;
  Regional regional_;
  Workbench* bench_ = nullptr;
  std::unique_ptr<desktop::SettingsFile> settings_;
  std::unique_ptr<QPrinter> chosen_printer_;
  std::unique_ptr<QLockFile> lock_;
  std::unique_ptr<desktop::Pulse> pulse_;
  std::unique_ptr<desktop::ViewStore> store_;
  QPointer<desktop::HelpWindow> help_;
};

}  // namespace tarnmill
