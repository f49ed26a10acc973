#include "mathpad/rtf/encoding.h"

#include <algorithm>
#include <array>

#include "mathpad/rtf/code_pages.h"
#include "mathpad/rtf/symbol_font.h"

namespace tarnmill::rtf {
namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr char16_t private_glyphs = 0xF000;
constexpr std::int32_t utf8_page = 65001;
constexpr std::int32_t glyphs_page = 42;
constexpr std::int32_t windows_western = 1252;
constexpr std::array<std::int32_t, 5> double_byte_pages{932, 936, 949, 950, 1361};

constexpr std::int32_t symbol_charset = 2;

struct Charset {
  std::int32_t number;
  std::int32_t page;
};

constexpr std::array<Charset, 18> charsets{{{0, 1252},
                                            {77, 10000},
                                            {128, 932},
                                            {129, 949},
                                            {130, 1361},
                                            {134, 936},
                                            {136, 950},
                                            {161, 1253},
                                            {162, 1254},
                                            {163, 1258},
                                            {177, 1255},
                                            {178, 1256},
                                            {186, 1257},
                                            {204, 1251},
                                            {222, 874},
                                            {238, 1250},
                                            {254, 437},
                                            {255, 850}}};

constexpr std::uint8_t code_of(char byte) { return static_cast<std::uint8_t>(byte); }

char16_t decode_byte(std::uint8_t byte, const Encoding& encoding) {
  switch (encoding.kind) {
    case Encoding::Kind::glyphs:
      return byte < 0x20 ? byte : static_cast<char16_t>(private_glyphs + byte);
    case Encoding::Kind::symbol:
      return symbol_of(byte);
    default:
      if (byte < 0x80) return byte;
      return encoding.upper.empty() ? replacement : encoding.upper[byte - 0x80U];
  }
}

}  // namespace

Encoding encoding_of_page(std::int32_t page) {
  if (page == utf8_page) return {.kind = Encoding::Kind::utf8};
  if (page == glyphs_page) return {.kind = Encoding::Kind::glyphs};
  if (std::ranges::find(double_byte_pages, page) != double_byte_pages.end()) {
    return {.kind = Encoding::Kind::double_byte, .page = page};
  }
  const TextView upper = upper_half_of_page(page);
  return {.upper = upper.empty() ? upper_half_of_page(windows_western) : upper};
}

std::optional<Encoding> encoding_of_charset(std::int32_t charset, TextView font_name) {
  if (charset == symbol_charset) {
    return Encoding{.kind = font_name == u"Symbol" ? Encoding::Kind::symbol : Encoding::Kind::glyphs};
  }
  const auto* found = std::ranges::find(charsets, charset, &Charset::number);
  if (found == charsets.end()) return {};
  return encoding_of_page(found->page);
}

Text replace_pairs(std::int32_t, std::string_view bytes) {
  Text text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::uint8_t byte = code_of(bytes[i]);
    text += byte < 0x80 ? char16_t{byte} : replacement;
    if (byte >= 0x80) ++i;
  }
  return text;
}

void decode(std::string_view bytes, const Encoding& encoding, Text& text, PairDecoder pairs) {
  if (encoding.kind == Encoding::Kind::utf8) {
    text += from_utf8(bytes);
  } else if (encoding.kind == Encoding::Kind::double_byte) {
    text += pairs(encoding.page, bytes);
  } else {
    for (const char byte : bytes) text += decode_byte(code_of(byte), encoding);
  }
}

char16_t public_character(char16_t c, const Encoding& encoding) {
  const bool is_glyph = c >= private_glyphs + 0x20 && c <= private_glyphs + 0xFF;
  if (!is_glyph || encoding.kind != Encoding::Kind::symbol) return c;
  return symbol_of(static_cast<std::uint8_t>(c - private_glyphs));
}

std::optional<std::uint8_t> byte_of_page_1252(char16_t c) {
  if (c < 0xA0) return {};
  if (c < 0x100) return static_cast<std::uint8_t>(c);
  const TextView upper = upper_half_of_page(windows_western);
  const std::size_t place = upper.find(c);
  if (place == TextView::npos) return {};
  return static_cast<std::uint8_t>(0x80 + place);
}

}  // namespace tarnmill::rtf
