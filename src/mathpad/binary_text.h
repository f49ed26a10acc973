#pragma once

#include <cstdint>

#include "engine/text.h"

namespace tarnmill {

/// The binary digits of the number, with zeros in front to at least eight. Of a negative one the digits are
/// those of its halves towards zero, each odd one giving a 1.
[[nodiscard]] Text DecToBin(std::int16_t n);

}  // namespace tarnmill
