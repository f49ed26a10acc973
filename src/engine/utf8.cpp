#include <algorithm>
#include <array>
#include <cstddef>

#include "engine/text.h"

namespace tarnmill {
namespace {

constexpr char16_t replacement_character = 0xFFFD;

constexpr bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

char trailing_byte(char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); }

void append_utf8(std::string& bytes, char32_t c) {
  if (c < 0x80) {
    bytes += static_cast<char>(c);
  } else if (c < 0x800) {
    bytes += {static_cast<char>(0xC0 | (c >> 6)), trailing_byte(c)};
  } else if (c < 0x10000) {
    bytes += {static_cast<char>(0xE0 | (c >> 12)), trailing_byte(c >> 6), trailing_byte(c)};
  } else {
    bytes += {static_cast<char>(0xF0 | (c >> 18)), trailing_byte(c >> 12), trailing_byte(c >> 6),
              trailing_byte(c)};
  }
}

void append_utf16(Text& text, char32_t c) {
  if (c < 0x10000) {
    text += static_cast<char16_t>(c);
  } else {
    text += {static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)),
             static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF))};
  }
}

// What the first byte of a sequence says: its length, its own bits, and the least value that needs this
// length.
struct Lead {
  std::size_t length;
  unsigned char mask;
  unsigned char mark;
  char32_t least;
};

constexpr std::array<Lead, 4> leads{{
    {.length = 1, .mask = 0x80, .mark = 0x00, .least = 0},
    {.length = 2, .mask = 0xE0, .mark = 0xC0, .least = 0x80},
    {.length = 3, .mask = 0xF0, .mark = 0xE0, .least = 0x800},
    {.length = 4, .mask = 0xF8, .mark = 0xF0, .least = 0x10000},
}};

// Reads one character from the front and takes its bytes; of malformed bytes one, giving U+FFFD.
char32_t take_character(std::string_view& bytes) {
  const auto first = static_cast<unsigned char>(bytes.front());
  const auto* lead =
      std::ranges::find_if(leads, [first](const Lead& l) { return (first & l.mask) == l.mark; });
  bool well_formed = lead != leads.end() && bytes.size() >= lead->length;
  char32_t c = well_formed ? static_cast<unsigned char>(first & ~lead->mask) : 0U;
  for (std::size_t i = 1; well_formed && i < lead->length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[i]);
    well_formed = (next & 0xC0U) == 0x80U;
    c = (c << 6U) | (next & 0x3FU);
  }
  well_formed = well_formed && c >= lead->least && c <= 0x10FFFF;
  bytes.remove_prefix(well_formed ? lead->length : 1);
  return well_formed ? c : replacement_character;
}

}  // namespace

std::string to_utf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (is_high_surrogate(c) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10U) + (static_cast<char32_t>(text[++i]) - 0xDC00);
    }
    append_utf8(bytes, c);
  }
  return bytes;
}

Text from_utf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  while (!bytes.empty()) append_utf16(text, take_character(bytes));
  return text;
}

}  // namespace tarnmill
