#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "mathpad/rtf/document.h"

namespace tarnmill::rtf {

/// Gathers the colour table of an RTF file: entries that each end at a semicolon. One without parts is the
/// colour of text that was given none.
class ColorTable {
 public:
  /// A part of the open entry, cut to 0 to 255.
  template <std::uint8_t Rgb::*Part>
  void set(std::int32_t value) {
    if (!open_) open_.emplace();
    (*open_).*Part = part(value);
  }
  /// The bytes between the control words; each semicolon ends an entry.
  void add_bytes(std::string_view bytes);

  /// The colour of a number; without a value where there is no such entry or it has no parts.
  [[nodiscard]] std::optional<Rgb> find(std::int32_t number) const;

 private:
  static std::uint8_t part(std::int32_t value);

  std::vector<std::optional<Rgb>> colors_;
  std::optional<Rgb> open_;
};

}  // namespace tarnmill::rtf
