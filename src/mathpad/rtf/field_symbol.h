#pragma once

#include <cstdint>
#include <optional>

#include "engine/text.h"

namespace tarnmill::rtf {

/// A character that a document asks for by the number of its glyph in a font.
struct FieldSymbol {
  std::uint8_t glyph = 0;
  /// Empty where the text around it gives the font.
  Text font = {};
};

/// Reads the instruction of a field that stands for one symbol, as `SYMBOL 97 \f "Symbol" \s 12`. Gives
/// nothing for any other field, and for a number that is no glyph's. The size is left to the format of the
/// field's result.
[[nodiscard]] std::optional<FieldSymbol> parse_field_symbol(TextView instruction);

}  // namespace tarnmill::rtf
