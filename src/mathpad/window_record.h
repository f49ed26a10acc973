#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/text.h"

namespace tarnmill {

/// Place and font of the editor as its file keeps them, with lengths in twips and the font's size in points.
/// Fields of 0 and an empty name tell nothing.
struct WindowRecord {
  std::int16_t top = 0;
  std::int16_t left = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;
  std::int16_t state = 0;
  Text font_name = {};
  std::int16_t font_size = 0;
  friend bool operator==(const WindowRecord&, const WindowRecord&) = default;
};

/// The record as bytes: its fields in their order, little-endian and without padding, the name as UTF-8 with
/// its length in front.
[[nodiscard]] std::string bytes_of(const WindowRecord& record);

/// The record of bytes. What is missing at their end stays 0.
[[nodiscard]] WindowRecord read_window_record(std::string_view bytes);

}  // namespace tarnmill
