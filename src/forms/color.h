#pragma once

#include <cstdint>

namespace tarnmill {

/// A colour number of 32 bits: red in the low byte, then green, then blue; a set top bit marks an index
/// into the platform's system colours. Written as signed, since a stored system colour reads negative.
using Color = std::int32_t;

/// The colour number of red, green and blue, each 0 to 255.
[[nodiscard]] constexpr Color rgb(int red, int green, int blue) {
  return static_cast<Color>(red | green << 8 | blue << 16);
}

/// System colour 10, the border of an active window.
inline constexpr Color active_border = static_cast<Color>(0x8000000A);

/// System colour 15, the face of a button and the ground of a bench.
inline constexpr Color button_face = static_cast<Color>(0x8000000F);

/// The colour to paint for a colour number: system colours resolved to this program's own palette
/// (the active border is 212, 208, 200, the button face 236, 232, 223; any other index is black), others as
/// they are.
[[nodiscard]] Color resolve(Color color);

[[nodiscard]] constexpr int red_of(Color color) { return color & 0xFF; }
[[nodiscard]] constexpr int green_of(Color color) { return color >> 8 & 0xFF; }
[[nodiscard]] constexpr int blue_of(Color color) { return color >> 16 & 0xFF; }

}  // namespace tarnmill
