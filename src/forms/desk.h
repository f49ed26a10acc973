#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "engine/evaluator_host.h"
#include "engine/regional.h"
#include "engine/text.h"
#include "forms/dialogs.h"

namespace tarnmill {

class Control;
class MenuItem;
class Raster;
class RichText;
class SettingsStore;
class Window;
class Workbench;

/// What a person and a platform give to the program: every need that the windows have of the world
/// outside is one of these calls. All run on the one thread; those that wait for a person give the event
/// loop turns meanwhile. Only the workbench and windows call them.
class Desk {
 public:
  /// Distances from the edges of the paper, in twips.
  struct PageMargins {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
  };

  virtual ~Desk() = default;

  /// \name Dialogs. An empty answer is Cancel.
  ///@{
  virtual MessageResult message(const MessageBox& box) = 0;
  virtual std::optional<Text> input(const InputBox& box) = 0;
  virtual std::optional<Text> choose_file(const FileDialog& dialog) = 0;
  virtual std::optional<Color> choose_color(const ColorDialog& dialog) = 0;
  virtual std::optional<FontChoice> choose_font(const FontDialog& dialog) = 0;
  virtual bool set_up_printer(const PrinterDialog& dialog) = 0;
  ///@}

  /// Pops up a menu at x, y in pixels of the window, or at the mouse, and waits until it is closed;
  /// gives the entry chosen, or null.
  virtual MenuItem* popup(Window& window, MenuItem& menu, std::optional<std::pair<int, int>> at) = 0;
  /// Shows a window that holds back the others until it is hidden or unloaded.
  virtual void run_modal(Window& window) = 0;

  /// \name Clipboard
  ///@{
  virtual void clear_clipboard() = 0;
  virtual void set_clipboard_text(const Text& text) = 0;
  [[nodiscard]] virtual Text clipboard_text() = 0;
  virtual void set_clipboard_picture(const Raster& picture) = 0;
  [[nodiscard]] virtual bool clipboard_has_picture() = 0;
  ///@}

  /// \name Clock and setting of the machine
  ///@{
  [[nodiscard]] virtual DateTime now() = 0;
  /// With its fraction, as the system timer gives it.
  [[nodiscard]] virtual float seconds_since_midnight() = 0;
  [[nodiscard]] virtual const Regional& regional() = 0;
  ///@}

  /// \name Files and settings
  ///@{
  /// The folder that holds what the program keeps: its history, its log and its window file.
  [[nodiscard]] virtual std::filesystem::path folder() = 0;
  /// The folder that holds what comes with the program: its help file.
  [[nodiscard]] virtual std::filesystem::path data_folder() { return folder(); }
  /// The file name of the program, without an ending.
  [[nodiscard]] virtual Text program_name() = 0;
  [[nodiscard]] virtual SettingsStore& settings() = 0;
  ///@}

  /// \name Drawing and text, on the toolkit's own surfaces
  ///@{
  /// A raster of this size in pixels.
  [[nodiscard]] virtual std::unique_ptr<Raster> make_raster(int width, int height) = 0;
  /// An empty rich text document.
  [[nodiscard]] virtual std::unique_ptr<RichText> make_rich_text() = 0;
  /// Prints a picture on the default printer at x, y in twips of the page. Raises the printer fault (482)
  /// when there is no printer or it fails.
  virtual void print_picture(const Raster& picture, double x, double y) = 0;
  /// Prints a document within the margins, on as many pages as it needs; none when no line fits between
  /// them. Raises the printer fault (482) when there is no printer or it fails.
  virtual void print_document(const RichText& document, const PageMargins& margins) = 0;
  /// The picture of a file of any kind that can be shown; null when it can't be read or is none.
  [[nodiscard]] virtual std::unique_ptr<Raster> load_picture(const std::filesystem::path& path) = 0;
  /// The names of the fonts that text can be shown in, in alphabetical order.
  [[nodiscard]] virtual std::vector<Text> font_names() = 0;
  ///@}

  /// \name Windows on the screen
  ///@{
  /// Follows a window that has just been made.
  virtual void window_loaded(Window& window) = 0;
  /// Forgets a window that is unloaded.
  virtual void window_unloaded(Window& window) = 0;
  /// Brings a window before the others; called each time it becomes the active one.
  virtual void window_activated(Window& window) = 0;
  /// Gives the keyboard to a control; null takes it from all.
  virtual void focus_moved(Control* control) = 0;
  /// Repaints a window at once.
  virtual void refresh(Window& window) = 0;
  /// Lets the window move with the pointer whose left button is down.
  virtual void start_move(Window& window) = 0;
  /// Keeps the window above all others, or no longer.
  virtual void set_on_top(Window& window, bool on_top) = 0;
  ///@}

  /// \name The rest of the platform
  ///@{
  /// Opens an address in the person's browser.
  virtual void open_address(const Text& address) = 0;
  /// Shows a help file; false when that can't be done.
  virtual bool show_help(const std::filesystem::path& file, std::int32_t topic) = 0;
  /// Whether another instance of the program runs on the same folder.
  [[nodiscard]] virtual bool previous_instance() = 0;
  /// Gives the event loop one turn.
  virtual void do_events() = 0;
  /// The pointer's shape over the program's windows: 0 the default, 11 the hourglass.
  virtual void set_mouse_pointer(int shape) = 0;
  /// The program has ended: the event loop leaves.
  virtual void quit() = 0;
  ///@}
};

}  // namespace tarnmill
