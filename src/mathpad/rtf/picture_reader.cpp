#include "mathpad/rtf/picture_reader.h"

#include <algorithm>
#include <utility>

#include "mathpad/rtf/tokenizer.h"

namespace tarnmill::rtf {
namespace {

constexpr std::int64_t twips_per_pixel = 15;
constexpr std::int64_t twips_per_inch = 1440;
constexpr std::int64_t hundredths_of_mm_per_inch = 2540;

constexpr bool is_metafile(PictureKind kind) { return kind == PictureKind::wmf || kind == PictureKind::emf; }

std::int32_t percent(std::int32_t value) { return value <= 0 ? 100 : std::min(value, 10000); }

}  // namespace

void PictureReader::add_hex(std::string_view digits) {
  for (const char byte : digits) {
    const auto digit = hex_digit(byte);
    if (!digit) continue;
    if (high_digit_) {
      bytes_ += static_cast<char>(*std::exchange(high_digit_, {}) * 16 + *digit);
    } else {
      high_digit_ = digit;
    }
  }
}

std::int32_t PictureReader::twips(std::int32_t goal, std::int32_t own) const {
  std::int64_t length = goal;
  if (length <= 0) {
    length = is_metafile(*kind_) ? own * twips_per_inch / hundredths_of_mm_per_inch : own * twips_per_pixel;
  }
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(length, 0, longest_length));
}

std::optional<Picture> PictureReader::finish() && {
  if (!kind_ || bytes_.empty()) return {};
  return Picture{.kind = *kind_,
                 .bytes = std::move(bytes_),
                 .width = twips(sizes.goal_width, sizes.own_width),
                 .height = twips(sizes.goal_height, sizes.own_height),
                 .scale_x = percent(sizes.scale_x),
                 .scale_y = percent(sizes.scale_y)};
}

}  // namespace tarnmill::rtf
