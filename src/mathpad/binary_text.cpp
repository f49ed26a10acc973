#include "mathpad/binary_text.h"

namespace tarnmill {

Text DecToBin(std::int16_t n) {
  constexpr std::size_t least_digits = 8;
  const auto digit = [](int value) { return (value & 1) != 0 ? u'1' : u'0'; };
  Text digits{digit(n)};
  for (int rest = n / 2; rest != 0; rest /= 2) digits.insert(digits.begin(), digit(rest));
  if (digits.size() < least_digits) digits.insert(0, least_digits - digits.size(), u'0');
  return digits;
}

}  // namespace tarnmill
