#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnmill {

/// What the command line of tarnmill-script says.
struct ScriptOptions {
  std::string interpreter;
  /// The script, "-" for standard input.
  std::string file;
  std::vector<std::string> arguments;
  /// The folder that stands for the program's own; none for a temporary one.
  std::optional<std::string> folder;
  /// Whether windows stand on the display.
  bool windows = false;
  /// Whether it only asks how the program is called.
  bool help = false;
};

inline constexpr std::string_view script_usage =
    "usage: tarnmill-script [--offscreen | --windows] [--folder DIR] FILE.lua [ARG...]\n"
    "\n"
    "Runs a Lua script against the whole program; FILE.lua of - is standard input.\n"
    "  --offscreen   needs no display, as without it\n"
    "  --windows     shows the windows on the display\n"
    "  --folder DIR  keeps settings and files in DIR, not in a temporary folder\n";

/// Reads a command line, the program's name first; nothing when it is wrong.
[[nodiscard]] std::optional<ScriptOptions> read_script_options(const std::vector<std::string>& words);

}  // namespace tarnmill
