#include "engine/number_parts.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "engine/checked.h"

namespace tarnmill::detail {
namespace {

// A leading minus, taken off the text.
bool take_minus(std::string_view& text) {
  if (text.empty() || text.front() != '-') return false;
  text.remove_prefix(1);
  return true;
}

// The exponent behind the letter e, held within bounds that no mantissa of this program can make up for.
long bounded_exponent(std::string_view text) {
  constexpr long bound = 999'999'999;
  const bool negative = take_minus(text);
  long size = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), size);
  if (fault == std::errc::result_out_of_range) size = bound;
  return negative ? -std::min(size, bound) : std::min(size, bound);
}

// Tells, of a number outside the range, whether it is too large rather than too small: by the decimal place
// of its first digit that is not 0.
bool is_too_large(std::string_view unsigned_plain) {
  const std::size_t end = std::min(unsigned_plain.find('e'), unsigned_plain.size());
  const std::string_view mantissa = unsigned_plain.substr(0, end);
  const std::string_view exponent = unsigned_plain.substr(std::min(end + 1, unsigned_plain.size()));
  const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long>(mantissa.find_first_not_of("0."));
  return point - first + bounded_exponent(exponent) > 0;
}

double decimal_value(std::string_view plain) {
  const bool negative = take_minus(plain);
  double value = 0;
  const auto [end, fault] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (fault == std::errc::result_out_of_range) {
    if (is_too_large(plain)) throw Fault{FaultCode::Overflow};
    value = 0;
  }
  return negative ? -value : value;
}

}  // namespace

double value_of(const NumberParts& parts) {
  if (parts.base == 10) return decimal_value(parts.plain);
  double value = 0;
  for (const char digit : parts.plain) {
    value = value * parts.base + digit_value(static_cast<char16_t>(digit), parts.base);
  }
  return finite(value);
}

int digit_value(char16_t c, int base) {
  int value = -1;
  if (c >= u'0' && c <= u'9') value = c - u'0';
  if (c >= u'A' && c <= u'F') value = c - u'A' + 10;
  if (c >= u'a' && c <= u'f') value = c - u'a' + 10;
  return value < base ? value : -1;
}

int prefix_base(char16_t letter) {
  if (letter == u'H' || letter == u'h') return 16;
  if (letter == u'O' || letter == u'o') return 8;
  return 0;
}

}  // namespace tarnmill::detail
