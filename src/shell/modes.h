#pragma once

#include <string_view>

namespace tarnmill {

class Workbench;

/// Shows the window of this class name. Nothing happens while the workbench knows no such class.
void show_window(Workbench& workbench, std::string_view name);

/// Hides the window of this class name if it exists.
void hide_window(Workbench& workbench, std::string_view name);

/// Unloads the window of this class name if it exists.
void unload_window(Workbench& workbench, std::string_view name);

/// Hides one window, then shows another, so that one mode shows at a time. Nothing happens while the
/// workbench doesn't know the other.
void change_mode(Workbench& workbench, std::string_view from, std::string_view to);

}  // namespace tarnmill
