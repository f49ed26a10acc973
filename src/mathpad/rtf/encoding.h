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
    /// Two bytes a character above ASCII; there is no table for them, so each pair is U+FFFD.
    double_byte,
    /// Glyphs of a font without meaning to others: byte n is the private character U+F000 + n.
    glyphs,
    /// The font Symbol, whose glyphs are known characters.
    symbol
  };
  Kind kind = Kind::single_byte;
  /// The characters of the bytes 128 to 255, for a single-byte page.
  TextView upper = {};
};

/// The encoding of a Windows code page number. A page that is not known counts as 1252.
[[nodiscard]] Encoding encoding_of_page(std::int32_t page);

/// The encoding of a font's character set number; without a value for one that leaves it to the document.
[[nodiscard]] std::optional<Encoding> encoding_of_charset(std::int32_t charset, TextView font_name);

/// Adds the characters of bytes to a text. Bytes that no character has give U+FFFD.
void decode(std::string_view bytes, const Encoding& encoding, Text& text);

/// The character that a private character U+F020 to U+F0FF stands for in an encoding, any other as it is.
[[nodiscard]] char16_t public_character(char16_t c, const Encoding& encoding);

/// The byte of code page 1252 above ASCII that stands for a character, if there is one.
[[nodiscard]] std::optional<std::uint8_t> byte_of_page_1252(char16_t c);

}  // namespace tarnmill::rtf
