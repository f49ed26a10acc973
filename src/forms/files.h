#pragma once

#include <filesystem>
#include <string_view>

#include "engine/text.h"

namespace tarnmill {

/// The fault of a file that isn't there or can't be read.
inline constexpr int fault_file_not_found = 53;
/// The fault of a file that can't be written.
inline constexpr int fault_path_access = 75;

/// The bytes of a file. Raises fault 53.
[[nodiscard]] std::string read_file(const std::filesystem::path& path);
/// Writes a file whole or not at all: under a temporary name beside it, flushed, then renamed, so that a
/// failure leaves the old file as it was. A link leads to the file that is written; what is no file, such as
/// a device, is written as it stands. Raises fault 75.
void write_file(const std::filesystem::path& path, std::string_view bytes);

/// A text file in UTF-8, with or without its mark; one that isn't valid UTF-8 is read as code page 1252.
/// Raises fault 53.
[[nodiscard]] Text read_text_file(const std::filesystem::path& path);
/// Writes a text as UTF-8, whole or not at all. Raises fault 75.
void write_text_file(const std::filesystem::path& path, TextView text);
/// Appends a text to a file, making it when it isn't there. Raises fault 75.
void append_text_file(const std::filesystem::path& path, TextView text);

}  // namespace tarnmill
