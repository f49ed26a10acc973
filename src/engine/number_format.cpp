#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/number_text.h"

namespace tarnmill {
namespace {

constexpr int double_digits = 15;
constexpr int single_digits = 7;

// Decimal exponents that are written without an exponent.
constexpr int least_plain = -4;
constexpr int greatest_plain = 14;

struct Decimal {
  bool negative = false;
  std::string digits;  // no zeros at the end; "0" for zero
  int exponent = 0;    // of the first digit
};

Decimal rounded_decimal(double value, int most_digits) {
  std::array<char, 40> buffer{};
  const auto [end, fault] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                          std::chars_format::scientific, most_digits - 1);
  const std::string_view written{buffer.data(), static_cast<std::size_t>(end - buffer.data())};
  const std::size_t letter = written.find('e');
  Decimal decimal{.negative = value < 0, .digits = std::string{written.substr(0, letter)}};
  decimal.digits.erase(1, 1);
  decimal.digits.erase(std::max(decimal.digits.find_last_not_of('0') + 1, std::size_t{1}));
  const std::string_view exponent = written.substr(letter + 2);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
  if (written[letter + 1] == '-') decimal.exponent = -decimal.exponent;
  return decimal;
}

std::string plain_form(const Decimal& decimal) {
  if (decimal.exponent < 0) {
    return "0." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + decimal.digits;
  }
  const auto whole_digits = static_cast<std::size_t>(decimal.exponent) + 1;
  std::string text = decimal.digits;
  if (text.size() <= whole_digits) return text.append(whole_digits - text.size(), '0');
  return text.insert(whole_digits, 1, '.');
}

std::string exponent_form(const Decimal& decimal) {
  std::string text = decimal.digits;
  if (text.size() > 1) text.insert(1, 1, '.');
  const int size = std::abs(decimal.exponent);
  text += decimal.exponent < 0 ? "E-" : "E+";
  if (size < 10) text += '0';
  return text + std::to_string(size);
}

std::string unsigned_form(const Decimal& decimal) {
  const bool plain = decimal.exponent >= least_plain && decimal.exponent <= greatest_plain;
  return plain ? plain_form(decimal) : exponent_form(decimal);
}

// The words for an infinity or a not-a-number value, with its sign.
std::string special_form(double value) {
  constexpr std::uint64_t payload_bits = 0x0007'FFFF'FFFF'FFFF;
  const std::string sign = std::signbit(value) ? "-" : "";
  if (std::isinf(value)) return sign + "1.#INF";
  const bool made_by_operation = (std::bit_cast<std::uint64_t>(value) & payload_bits) == 0;
  return made_by_operation ? sign + "1.#IND" : "1.#QNAN";
}

Text widened(std::string_view ascii) { return Text(ascii.begin(), ascii.end()); }

Text general_text(double value, int most_digits, const Regional& regional) {
  if (!std::isfinite(value)) return widened(special_form(value));
  const Decimal decimal = rounded_decimal(value, most_digits);
  Text text = widened((decimal.negative ? "-" : "") + unsigned_form(decimal));
  std::ranges::replace(text, u'.', regional.decimal_separator);
  return text;
}

}  // namespace

Text NumberToText(double value, const Regional& regional) {
  return general_text(value, double_digits, regional);
}

Text NumberToText(float value, const Regional& regional) {
  return general_text(double{value}, single_digits, regional);
}

Text PaddedNumberText(double value) {
  Text text = NumberToText(value, Regional{});
  if (text.front() != u'-') text.insert(0, 1, u' ');
  if (text.substr(1, 2) == u"0.") text.erase(1, 1);
  return text;
}

}  // namespace tarnmill
