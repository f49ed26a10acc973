#pragma once

#include <filesystem>
#include <vector>

#include "engine/text.h"

namespace tarnmill::desktop {

/// A picture of a sheet: its file, of any kind that can be shown, and the words under it.
struct SheetPicture {
  std::filesystem::path file;
  Text caption;
};

/// How a sheet is laid out.
struct SheetLayout {
  /// Pictures side by side; at least 1.
  int columns = 1;
  /// Width and height in pixels of the square into which each picture is fitted; at least 1.
  int side = 1;
};

/// Writes a PNG of pictures in rows, each with its caption under it; one that can't be read leaves its square
/// empty. False when the file can't be written.
[[nodiscard]] bool save_picture_sheet(const std::filesystem::path& path,
                                      const std::vector<SheetPicture>& pictures, const SheetLayout& layout);

}  // namespace tarnmill::desktop
