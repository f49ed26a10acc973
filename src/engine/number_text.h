#pragma once

#include <concepts>

#include "engine/regional.h"
#include "engine/text.h"

namespace tarnmill {

/// The lenient reader of text boxes. Blanks, tabs and line feeds are skipped, also between the characters; a
/// sign, digits with one ".", and an exponent (E or D) are taken; the first character that can't continue the
/// number ends it. Text without a number is 0. "&H" and "&O" in front read hexadecimal and octal digits. Only
/// "." is a decimal point. Overflow beyond the range, no other fault.
double NumberFromText(TextView text);

/// True when the whole text is one number by the regional settings: blanks around it, one sign in front,
/// digits with one decimal separator, an exponent (E or D) with at least one digit; or "&H", "&O" and digits.
/// Digits are not grouped. At least one digit of the mantissa is needed, so of the single characters exactly
/// the ten digits are numeric.
bool IsNumericText(TextView text, const Regional& regional);

/// The value of a text for which IsNumericText holds. Type-mismatch for any other text, the empty one
/// included; Overflow beyond the range.
double NumberFromTextStrict(TextView text, const Regional& regional);

/// The general conversion: at most 15 significant digits, plain form for decimal exponents -4 to 14,
/// otherwise "1.5E-05", with the regional separator. Minus zero is "0". Infinities read "1.#INF" and
/// "-1.#INF", the not-a-number value of an invalid operation "1.#IND" or "-1.#IND" by its sign bit, any other
/// "1.#QNAN".
Text NumberToText(double value, const Regional& regional);

/// The same with at most 7 significant digits.
Text NumberToText(float value, const Regional& regional);

/// Whole numbers need no rounding on their way to text.
template <std::integral Whole>
requires(sizeof(Whole) <= 4 && !std::same_as<Whole, bool>) Text
    NumberToText(Whole value, const Regional& regional) {
  return NumberToText(static_cast<double>(value), regional);
}

/// The digits of NumberToText, always with ".", a blank in front of a value that is not negative, and no zero
/// in front of the point: " .5", "-.5", " 100".
Text PaddedNumberText(double value);

}  // namespace tarnmill
