#pragma once

#include <cstdint>

#include "engine/text.h"

namespace tarnmill::rtf {

/// The characters of the bytes 128 to 255 in a single-byte code page; empty for a page without a table here.
/// A byte without a character is U+FFFD.
[[nodiscard]] TextView upper_half_of_page(std::int32_t number);

}  // namespace tarnmill::rtf
