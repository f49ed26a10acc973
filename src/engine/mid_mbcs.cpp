#include <algorithm>
#include <array>
#include <cstddef>

#include "engine/evaluator.h"
#include "engine/fault.h"

namespace tarnmill {
namespace {

// The characters at 0x80 to 0x9F of the Western code page; the five unused places hold control characters.
constexpr std::array<char16_t, 32> upper_controls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// A character of the code page is one byte, which reads back as the same character.
char16_t through_code_page(char16_t c) {
  const bool is_latin = c < 0x80 || (c >= 0xA0 && c <= 0xFF);
  return is_latin || std::ranges::find(upper_controls, c) != upper_controls.end() ? c : u'?';
}

}  // namespace

Text Evaluator::MidMbcs(TextView text, std::int32_t start, std::int32_t length) {
  if (start < 1 || length < 0) throw Fault{FaultCode::InvalidArgument};
  const std::size_t first = std::min(static_cast<std::size_t>(start - 1), text.size());
  Text part{text.substr(first, static_cast<std::size_t>(length))};
  std::ranges::transform(part, part.begin(), through_code_page);
  return part;
}

}  // namespace tarnmill
