#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/qt_desk.h"
#include "forms/workbench.h"
#include "script/temporary_folder.h"

namespace tarnmill {

/// A desk that writes down what the windows ask of it, and answers as it is told.
class WatchedDesk final : public QtDesk {
 public:
  explicit WatchedDesk(const std::filesystem::path& folder) : QtDesk{folder, Views::on_demand} {}

  /// Whether another instance is said to run.
  bool runs_already = false;
  /// The entry that a person picks from every popup; none closes it.
  std::string_view picks;
  std::vector<MessageBox> messages;
  std::vector<std::string> moved;
  std::vector<std::string> popups;
  std::vector<std::string> help_files;

  MessageResult message(const MessageBox& box) override;
  bool previous_instance() override { return runs_already; }
  /// A decimal point, whatever the machine's own setting is.
  [[nodiscard]] const Regional& regional() override { return point_; }
  /// Empty at first, unlike that of the program.
  [[nodiscard]] std::filesystem::path data_folder() override { return folder(); }
  void start_move(Window& window) override;
  MenuItem* popup(Window& window, MenuItem& menu, std::optional<std::pair<int, int>> at) override;
  bool show_help(const std::filesystem::path& file, std::int32_t topic) override;

 private:
  Regional point_;
};

/// A program of chosen windows on a watched desk, for what passes between windows. Nothing is loaded at
/// first.
class WatchedProgram {
  TemporaryFolder temporary_;

 public:
  WatchedDesk desk{temporary_.path()};
  Workbench bench{desk};

  /// Makes a window class known.
  template <class W>
  void add() {
    bench.add_window(W::class_name, [](Workbench& owner) { return std::make_unique<W>(owner); });
  }
  /// Makes an empty window class known, which stands for one that the test has no other use for.
  void add_empty(std::string_view name);
  template <class W>
  W& window() {
    return bench.window<W>();
  }
  /// Whether the window exists and shows.
  [[nodiscard]] bool shows(std::string_view name) const { return bench.is_visible(name); }
  [[nodiscard]] const std::filesystem::path& folder() const { return temporary_.path(); }
};

}  // namespace tarnmill
