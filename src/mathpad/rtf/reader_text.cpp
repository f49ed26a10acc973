#include <utility>

#include "mathpad/rtf/field_symbol.h"
#include "mathpad/rtf/reader_machine.h"

namespace tarnmill::rtf {
namespace {

// Longer instructions are those of fields that are no symbols.
constexpr std::size_t longest_instruction = 256;

}  // namespace

void Reader::put(TextView text) {
  if (state_.destination == Destination::font_table) {
    fonts_.add_characters(text);
  } else if (state_.destination == Destination::field_instruction) {
    field_instruction_ += text.substr(0, longest_instruction - field_instruction_.size());
  } else if (is_body(state_.destination) && !state_.characters.hidden) {
    builder_.append(text, format_index());
  }
}

void Reader::put_character(std::int32_t c) {
  const auto unit = static_cast<char16_t>(c);
  put({&unit, 1});
}

void Reader::put_unicode(std::int32_t c) {
  fallback_left_ = state_.fallback_length;
  constexpr std::int32_t units = 0x10000;
  constexpr std::int32_t last_character = 0x10FFFF;
  if (c < -units || c > last_character) c = 0xFFFD;
  // Numbers have 16 bits with a sign in the format, but some write larger ones.
  if (c < 0) c += units;
  if (c < units) return put_character(public_character(static_cast<char16_t>(c), encoding()));
  put_character(0xD800 + ((c - units) >> 10));
  put_character(0xDC00 + ((c - units) & 0x3FF));
}

void Reader::put_field_symbol(const CharacterState& characters) {
  const auto symbol = parse_field_symbol(std::exchange(field_instruction_, {}));
  if (!symbol || characters.hidden || builder_.length() != field_start_) return;
  constexpr std::int32_t glyph_charset = 2;
  Text text;
  const char glyph = static_cast<char>(symbol->glyph);
  decode({&glyph, 1}, encoding_of_charset(glyph_charset, symbol->font).value_or(document_encoding_), text);
  const CharacterState around = std::exchange(state_.characters, characters);
  CharacterFormat format = character_format();
  state_.characters = around;
  if (const std::uint32_t font = builder_.font(symbol->font); font != none) format.font = font;
  builder_.append(text, builder_.format(format));
}

void Reader::end_paragraph(std::int32_t) {
  if (is_body(state_.destination)) builder_.end_paragraph(paragraph_format_index(), format_index());
}

void Reader::end_filled_paragraph(std::int32_t) {
  if (!builder_.paragraph_is_empty()) end_paragraph(0);
}

}  // namespace tarnmill::rtf
