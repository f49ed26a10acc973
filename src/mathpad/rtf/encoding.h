#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "engine/text.h"

namespace tarnmill::rtf {

/// How bytes stand for characters.
struct Encoding {
  enum class Kind : std::uint8_t {
    /// ASCII and a table for the bytes above it.
    single_byte,
    utf8,
    /// Two bytes a character above ASCII, by a code page of which only a PairDecoder has the tables.
    double_byte,
    /// Glyphs of a font without meaning to others: byte n is the private character U+F000 + n.
    glyphs,
    /// The font Symbol, whose glyphs are known characters.
    symbol
  };
  Kind kind = Kind::single_byte;
  /// The characters of the bytes 128 to 255, for a single-byte page.
  TextView upper = {};
  /// The number of a double-byte page.
  std::int32_t page = 0;
};

/// Decodes bytes of a double-byte Windows code page (932, 936, 949, 950, 1361). Bytes that no character has
/// give U+FFFD.
using PairDecoder = Text (*)(std::int32_t page, std::string_view bytes);

/// The decoder without tables: ASCII as it is, U+FFFD for each pair.
[[nodiscard]] Text replace_pairs(std::int32_t page, std::string_view bytes);

/// The encoding of a Windows code page number. A page that is not known counts as 1252.
[[nodiscard]] Encoding encoding_of_page(std::int32_t page);

/// The encoding of a font's character set number; without a value for one that leaves it to the document.
[[nodiscard]] std::optional<Encoding> encoding_of_charset(std::int32_t charset, TextView font_name);

/// Adds the characters of bytes to a text. Bytes that no character has give U+FFFD.
void decode(std::string_view bytes, const Encoding& encoding, Text& text, PairDecoder pairs = replace_pairs);

/// The character that a private character U+F020 to U+F0FF stands for in an encoding, any other as it is.
[[nodiscard]] char16_t public_character(char16_t c, const Encoding& encoding);

/// The byte of code page 1252 above ASCII that stands for a character, if there is one.
[[nodiscard]] std::optional<std::uint8_t> byte_of_page_1252(char16_t c);

}  // namespace tarnmill::rtf
