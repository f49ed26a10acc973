#pragma once

#include <cstdint>

#include "engine/text.h"

namespace tarnmill::rtf {

/// The character that a glyph of the font Symbol shows; U+FFFD for an empty place.
[[nodiscard]] char16_t symbol_of(std::uint8_t glyph);

}  // namespace tarnmill::rtf
