#pragma once

#include <cstdint>
#include <string_view>

#include "engine/text.h"

namespace tarnmill::desktop {

/// Decodes bytes of an East Asian Windows code page of two bytes a character (932, 936, 949, 950), as a
/// rtf::PairDecoder does. Of 1361, which the toolkit does not know, each pair gives U+FFFD.
[[nodiscard]] Text decode_pairs(std::int32_t page, std::string_view bytes);

}  // namespace tarnmill::desktop
