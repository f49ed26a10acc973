#include "mathpad/rtf/tokenizer.h"

#include <algorithm>
#include <limits>

namespace tarnmill::rtf {
namespace {

constexpr std::string_view line_ends = "\r\n";
constexpr std::string_view text_ends = "\\{}\r\n";

constexpr bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::optional<int> hex_digit(char byte) {
  if (is_digit(byte)) return byte - '0';
  if (byte >= 'a' && byte <= 'f') return byte - 'a' + 10;
  if (byte >= 'A' && byte <= 'F') return byte - 'A' + 10;
  return {};
}

std::string_view Tokenizer::take(std::size_t count) {
  const std::string_view taken = rest_.substr(0, count);
  rest_.remove_prefix(taken.size());
  return taken;
}

Token Tokenizer::next() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(line_ends), rest_.size()));
  if (rest_.empty()) return {};
  switch (rest_.front()) {
    case '{':
      return {.kind = Token::Kind::open_group, .text = take(1)};
    case '}':
      return {.kind = Token::Kind::close_group, .text = take(1)};
    case '\\':
      rest_.remove_prefix(1);
      return control();
    default:
      return {.kind = Token::Kind::text, .text = take(rest_.find_first_of(text_ends))};
  }
}

Token Tokenizer::control() {
  if (rest_.empty()) return {};
  return is_letter(rest_.front()) ? control_word() : control_sign();
}

Token Tokenizer::control_word() {
  const auto* end = std::ranges::find_if_not(rest_, is_letter);
  Token token{.kind = Token::Kind::control, .text = take(static_cast<std::size_t>(end - rest_.begin()))};
  token.number = number();
  if (rest_.starts_with(' ')) rest_.remove_prefix(1);
  return token;
}

std::optional<std::int32_t> Tokenizer::number() {
  const std::size_t sign = rest_.starts_with('-') ? 1 : 0;
  if (rest_.size() <= sign || !is_digit(rest_[sign])) return {};
  take(sign);
  constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
  std::int64_t value = 0;
  while (!rest_.empty() && is_digit(rest_.front())) value = std::min(value * 10 + (take(1)[0] - '0'), most);
  return static_cast<std::int32_t>(sign == 0 ? value : -value);
}

Token Tokenizer::control_sign() {
  Token token{.kind = Token::Kind::control, .text = take(1)};
  if (token.text != "'" || rest_.size() < 2) return token;
  const auto high = hex_digit(rest_[0]);
  const auto low = hex_digit(rest_[1]);
  if (!high || !low) return token;
  rest_.remove_prefix(2);
  token.number = *high * 16 + *low;
  return token;
}

}  // namespace tarnmill::rtf
