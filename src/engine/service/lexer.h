#pragma once

#include <cstddef>

#include "engine/service/word.h"
#include "engine/text.h"

namespace tarnmill {

/// The smallest piece of an expression.
struct Token {
  enum class Kind { number, word, plus, minus, times, over, power, open, close, end };

  Kind kind = Kind::end;
  double number = 0;           ///< of a number, without sign
  const Word* word = nullptr;  ///< of a word
};

/// Cuts an expression without blanks into tokens. A number is digits with at most one "." or "," before, in
/// or behind them, and an exponent: the letter E, an optional sign and at least one digit. An E with no digit
/// behind it is the constant e instead.
class Lexer {
 public:
  /// The text must outlive the lexer.
  explicit Lexer(TextView text) : text_{text} {}

  /// Takes the next token; at the end of the text again and again `end`. Raises statement_fault_number for a
  /// character or a word that is not known and for a second decimal separator, Overflow for a number beyond
  /// the range.
  Token next();

 private:
  [[nodiscard]] char16_t peek(std::size_t ahead = 0) const;
  [[nodiscard]] std::size_t digits_from(std::size_t ahead) const;
  [[nodiscard]] std::size_t exponent_length(std::size_t ahead) const;
  Token number();
  Token word();

  TextView text_;
};

}  // namespace tarnmill
