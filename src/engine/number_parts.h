#pragma once

#include <string>

namespace tarnmill::detail {

/// The characters of a number that a reader has taken.
struct NumberParts {
  int base = 10;      ///< 10, 16 or 8
  std::string plain;  ///< sign, digits, ".", "e" and exponent in base 10, else digits alone; no digits is 0
};

/// The value of what was read. Overflow beyond the range; a value too small for it is 0.
double value_of(const NumberParts& parts);

/// The value of a digit in a base, or -1.
int digit_value(char16_t c, int base);

/// The base that a letter behind "&" asks for, or 0.
int prefix_base(char16_t letter);

}  // namespace tarnmill::detail
