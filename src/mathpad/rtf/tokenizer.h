#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarnmill::rtf {

/// One piece of an RTF file.
struct Token {
  enum class Kind : std::uint8_t { open_group, close_group, control, text, end };
  Kind kind = Kind::end;
  /// A control's word or its one sign, without the backslash; of text the bytes.
  std::string_view text;
  /// The number behind a control word, cut to 32 bits; of the control "'" the byte, if two hex digits stood
  /// there.
  std::optional<std::int32_t> number = {};
};

/// Cuts the bytes of an RTF file into tokens. Any bytes will do.
class Tokenizer {
 public:
  explicit Tokenizer(std::string_view bytes) : rest_{bytes} {}

  /// The next token; `end` behind the last one. Line breaks between tokens mean nothing and are left out.
  Token next();

  /// Takes up to `count` bytes as they stand, as many as there are.
  std::string_view take(std::size_t count);

 private:
  Token control();
  Token control_word();
  Token control_sign();
  std::optional<std::int32_t> number();

  std::string_view rest_;
};

/// The value of a hex digit, without a value for any other byte.
[[nodiscard]] std::optional<int> hex_digit(char byte);

}  // namespace tarnmill::rtf
