#include "shell/help.h"

#include <system_error>

#include "forms/desk.h"

namespace tarnmill {

bool ShowHelp(Desk& desk, const std::filesystem::path& help_file, std::int32_t topic) {
  std::error_code unreadable;
  if (!std::filesystem::exists(help_file, unreadable)) return false;
  return desk.show_help(help_file, topic);
}

void show_program_help(Desk& desk) { ShowHelp(desk, desk.data_folder() / "Tarnmill.chm", 0); }

}  // namespace tarnmill
