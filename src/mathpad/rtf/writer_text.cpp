#include "mathpad/rtf/writer_text.h"

#include <array>

#include "mathpad/rtf/document.h"
#include "mathpad/rtf/encoding.h"

namespace tarnmill::rtf {
namespace {

constexpr std::string_view hex_digits = "0123456789abcdef";
constexpr std::size_t bytes_per_line = 64;

void write_byte(std::uint8_t byte, std::string& out) {
  out += hex_digits[byte >> 4U];
  out += hex_digits[byte & 0xFU];
}

struct NamedCharacter {
  char16_t character;
  std::string_view word;
};

constexpr std::array<NamedCharacter, 8> named_characters{{{u'\\', "\\\\"},
                                                          {u'{', "\\{"},
                                                          {u'}', "\\}"},
                                                          {u'\t', "\\tab "},
                                                          {line_break, "\\line "},
                                                          {0x00A0, "\\~"},
                                                          {0x00AD, "\\-"},
                                                          {0x2011, "\\_"}}};

constexpr bool is_plain(char16_t c) { return c >= 0x20 && c < 0x7F && c != u'\\' && c != u'{' && c != u'}'; }

void write_special(char16_t c, std::string& out) {
  for (const NamedCharacter& named : named_characters) {
    if (named.character == c) {
      out += named.word;
      return;
    }
  }
  if (const auto byte = byte_of_page_1252(c)) {
    out += "\\'";
    write_byte(*byte, out);
  } else {
    // The number has 16 bits with a sign; the question mark is for readers that know no numbers.
    out += "\\u" + std::to_string(static_cast<std::int16_t>(c)) + '?';
  }
}

}  // namespace

void write_text(TextView text, std::string& out) {
  for (const char16_t c : text) {
    if (is_plain(c)) {
      out += static_cast<char>(c);
    } else {
      write_special(c, out);
    }
  }
}

void write_hex(std::string_view bytes, std::string& out) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    write_byte(static_cast<std::uint8_t>(bytes[i]), out);
    if ((i + 1) % bytes_per_line == 0 || i + 1 == bytes.size()) out += "\r\n";
  }
}

}  // namespace tarnmill::rtf
