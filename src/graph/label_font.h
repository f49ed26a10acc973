#pragma once

#include <cstdint>
#include <string_view>

#include "engine/text.h"
#include "forms/control.h"
#include "forms/font.h"

namespace tarnmill {

/// How a label is printed: the record of a font as the platform takes it.
struct LogFont {
  std::int32_t height = 0;      ///< of the cell, in pixels
  std::int32_t escapement = 0;  ///< tenths of a degree, anticlockwise
  std::int32_t weight = 0;
  bool italic = false;
  bool underline = false;
  bool strike_out = false;
  Text face_name;  ///< at most 31 characters

  bool operator==(const LogFont&) const = default;
};

/// The record for a surface's font and an angle in degrees, clockwise. Weights are half the usual ones, so
/// that even a bold label stays light. Overflow for an angle or a size beyond the range.
[[nodiscard]] LogFont label_font(const Font& font, double angle);

/// The record that a window keeps of the last label it printed, under the platform's names.
class LogFontRecord final : public Control {
 public:
  LogFontRecord(Window& window, std::string_view name) : Control{window, name, parked} {}

  /// Takes over a record.
  void take(const LogFont& font);

  Property<std::int32_t> lfHeight{*this, "lfHeight"};
  Property<std::int32_t> lfEscapement{*this, "lfEscapement"};
  Property<std::int32_t> lfWeight{*this, "lfWeight"};
  Property<std::int16_t> lfItalic{*this, "lfItalic"};
  Property<std::int16_t> lfUnderline{*this, "lfUnderline"};
  Property<std::int16_t> lfStrikeOut{*this, "lfStrikeOut"};
  Property<std::int16_t> lfCharSet{*this, "lfCharSet"};
  /// With the zero that ends it.
  Property<tarnmill::Text> lfFaceName{*this, "lfFaceName"};
};

}  // namespace tarnmill
