#pragma once

#include <optional>
#include <string_view>

#include "mathpad/rtf/document.h"

namespace tarnmill::rtf {

/// Gathers one picture of an RTF file: its kind and sizes in any order with its bytes, as hex digits or as
/// they are.
class PictureReader {
 public:
  /// What the file tells of the picture's size.
  struct Sizes {
    /// Pixels, of a metafile hundredths of a millimetre.
    std::int32_t own_width = 0;
    std::int32_t own_height = 0;
    /// Twips.
    std::int32_t goal_width = 0;
    std::int32_t goal_height = 0;
    /// Percent.
    std::int32_t scale_x = 100;
    std::int32_t scale_y = 100;
  };

  Sizes sizes;

  void set_kind(PictureKind kind) { kind_ = kind; }
  /// Hex digits, two a byte, also when the pair is cut between two calls. Other bytes among them mean
  /// nothing.
  void add_hex(std::string_view digits);
  void add_binary(std::string_view bytes) { bytes_ += bytes; }

  /// The picture; none if its kind is not known or it has no bytes.
  [[nodiscard]] std::optional<Picture> finish() &&;

 private:
  [[nodiscard]] std::int32_t twips(std::int32_t goal, std::int32_t own) const;

  std::optional<PictureKind> kind_;
  std::string bytes_;
  std::optional<int> high_digit_;
};

}  // namespace tarnmill::rtf
