#include "engine/service/lexer.h"

#include <algorithm>

#include "engine/number_text.h"
#include "engine/parity.h"
#include "engine/service/service_fault.h"

namespace tarnmill {
namespace {

constexpr bool is_separator(char16_t c) { return c == u'.' || c == u','; }

// The kind of a token that is one sign of punctuation, or `end` for any other character.
constexpr Token::Kind punctuation(char16_t c) {
  switch (c) {
    case u'+':
      return Token::Kind::plus;
    case u'-':
      return Token::Kind::minus;
    case u'*':
      return Token::Kind::times;
    case u'/':
      return Token::Kind::over;
    case u'^':
      return Token::Kind::power;
    case u'(':
      return Token::Kind::open;
    case u')':
      return Token::Kind::close;
    default:
      return Token::Kind::end;
  }
}

double value_of(TextView number) {
  const std::size_t comma = number.find(u',');
  if (comma == TextView::npos) return NumberFromText(number);
  Text pointed{number};
  pointed[comma] = u'.';
  return NumberFromText(pointed);
}

}  // namespace

char16_t Lexer::peek(std::size_t ahead) const { return ahead < text_.size() ? text_[ahead] : u'\0'; }

std::size_t Lexer::digits_from(std::size_t ahead) const {
  std::size_t end = ahead;
  while (IsDigitValue(peek(end))) ++end;
  return end - ahead;
}

std::size_t Lexer::exponent_length(std::size_t ahead) const {
  if (peek(ahead) != u'E' && peek(ahead) != u'e') return 0;
  const std::size_t sign = peek(ahead + 1) == u'+' || peek(ahead + 1) == u'-' ? 1 : 0;
  const std::size_t digits = digits_from(ahead + 1 + sign);
  return digits == 0 ? 0 : 1 + sign + digits;
}

Token Lexer::number() {
  std::size_t length = digits_from(0);
  std::size_t digits = length;
  if (is_separator(peek(length))) {
    const std::size_t fraction = digits_from(length + 1);
    digits += fraction;
    length += 1 + fraction;
  }
  if (digits == 0) raise_wrong_syntax();
  length += exponent_length(length);
  if (is_separator(peek(length))) raise_wrong_syntax();
  const double value = value_of(text_.substr(0, length));
  text_.remove_prefix(length);
  return {.kind = Token::Kind::number, .number = value};
}

Token Lexer::word() {
  const Word* word = longest_word(text_);
  if (word == nullptr) raise_unknown_name();
  text_.remove_prefix(word->name.size());
  return {.kind = Token::Kind::word, .word = word};
}

Token Lexer::next() {
  if (text_.empty()) return {};
  const char16_t c = text_.front();
  if (IsDigitValue(c) || is_separator(c)) return number();
  const Token::Kind kind = punctuation(c);
  if (kind == Token::Kind::end) return word();
  text_.remove_prefix(1);
  return {.kind = kind};
}

}  // namespace tarnmill
