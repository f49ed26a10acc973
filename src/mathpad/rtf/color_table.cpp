#include "mathpad/rtf/color_table.h"

#include <algorithm>
#include <utility>

namespace tarnmill::rtf {

std::uint8_t ColorTable::part(std::int32_t value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

void ColorTable::add_bytes(std::string_view bytes) {
  for (const char byte : bytes) {
    if (byte == ';') colors_.push_back(std::exchange(open_, {}));
  }
}

std::optional<Rgb> ColorTable::find(std::int32_t number) const {
  if (number < 0 || std::cmp_greater_equal(number, colors_.size())) return {};
  return colors_[static_cast<std::size_t>(number)];
}

}  // namespace tarnmill::rtf
