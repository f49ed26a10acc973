#pragma once

#include <cstdint>
#include <filesystem>

namespace tarnmill {

class Desk;

/// Shows a help file, at a topic or, for topic 0, at its default page. False when the file doesn't exist,
/// which nobody is told, or when the platform can't show it.
bool ShowHelp(Desk& desk, const std::filesystem::path& help_file, std::int32_t topic);

/// What every Help entry does: the program's own help file at its default page.
void show_program_help(Desk& desk);

}  // namespace tarnmill
