#include "mathpad/rtf/field_symbol.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace tarnmill::rtf {
namespace {

// Takes the next word from the front: what stands in quotes, or up to the next blank.
TextView take_word(TextView& text) {
  text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
  const bool is_quoted = text.starts_with(u'"');
  if (is_quoted) text.remove_prefix(1);
  const TextView word = text.substr(0, text.find(is_quoted ? u'"' : u' '));
  text.remove_prefix(std::min(word.size() + 1, text.size()));
  return word;
}

// Glyphs are also numbered from the private characters on that stand for them.
std::optional<std::uint8_t> glyph_number(TextView word) {
  constexpr std::uint32_t private_glyphs = 0xF000;
  const bool is_hex = word.starts_with(u"0x");
  const std::string digits = to_utf8(is_hex ? word.substr(2) : word);
  std::uint32_t number = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number, is_hex ? 16 : 10);
  if (error != std::errc{} || stop != end) return {};
  if (number >= private_glyphs) number -= private_glyphs;
  if (number > 0xFF) return {};
  return static_cast<std::uint8_t>(number);
}

}  // namespace

std::optional<FieldSymbol> parse_field_symbol(TextView instruction) {
  if (upper_case(take_word(instruction)) != u"SYMBOL") return {};
  const auto glyph = glyph_number(take_word(instruction));
  if (!glyph) return {};
  FieldSymbol symbol{.glyph = *glyph};
  while (!instruction.empty()) {
    if (take_word(instruction) == u"\\f") symbol.font = take_word(instruction);
  }
  return symbol;
}

}  // namespace tarnmill::rtf
