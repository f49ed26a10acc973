#include "shell/modes.h"

#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

void show_window(Workbench& workbench, std::string_view name) {
  if (workbench.knows(name)) workbench.window(name).Show();
}

void hide_window(Workbench& workbench, std::string_view name) {
  if (Window* present = workbench.find_window(name)) present->Hide();
}

void unload_window(Workbench& workbench, std::string_view name) {
  if (Window* present = workbench.find_window(name)) present->Unload();
}

void change_mode(Workbench& workbench, std::string_view from, std::string_view to) {
  if (!workbench.knows(to)) return;
  hide_window(workbench, from);
  show_window(workbench, to);
}

}  // namespace tarnmill
