#include "support/watched_program.h"

#include "forms/menu_item.h"
#include "forms/window.h"

namespace tarnmill {

MessageResult WatchedDesk::message(const MessageBox& box) {
  messages.push_back(box);
  return MessageResult::ok;
}

void WatchedDesk::start_move(Window& window) { moved.emplace_back(window.name()); }

MenuItem* WatchedDesk::popup(Window& window, MenuItem& menu, std::optional<std::pair<int, int>> at) {
  popups.push_back(std::string{window.name()} + " " + std::string{menu.name()} + (at ? " at a place" : ""));
  for (MenuItem* entry : menu.children()) {
    if (entry->name() == picks) return entry;
  }
  return nullptr;
}

bool WatchedDesk::show_help(const std::filesystem::path& file, std::int32_t topic) {
  help_files.push_back(file.filename().string() + " " + std::to_string(topic));
  return true;
}

void WatchedProgram::add_empty(std::string_view name) {
  bench.add_window(name, [name](Workbench& owner) { return std::make_unique<Window>(owner, name); });
}

}  // namespace tarnmill
