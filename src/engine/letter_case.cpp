#include <algorithm>
#include <array>
#include <span>

#include "engine/text.h"

namespace tarnmill {
namespace {

// Upper-case letters from first to last, every `step`-th code unit, each with its lower-case partner
// `distance` behind it.
struct CaseRange {
  char16_t first;
  char16_t last;
  char16_t step;
  int distance;
};

constexpr std::array ranges{
    CaseRange{u'A', u'Z', 1, 32},        // ASCII
    CaseRange{0x00C0, 0x00D6, 1, 32},    // Latin-1
    CaseRange{0x00D8, 0x00DE, 1, 32},    //
    CaseRange{0x0178, 0x0178, 1, -121},  // the partner of y with two dots stands in Latin-1
    CaseRange{0x0100, 0x012E, 2, 1},     // Latin Extended-A
    CaseRange{0x0132, 0x0136, 2, 1},     //
    CaseRange{0x0139, 0x0147, 2, 1},     //
    CaseRange{0x014A, 0x0176, 2, 1},     //
    CaseRange{0x0179, 0x017D, 2, 1},     //
    CaseRange{0x0391, 0x03A1, 1, 32},    // Greek
    CaseRange{0x03A3, 0x03AB, 1, 32},    //
    CaseRange{0x0386, 0x0386, 1, 38},    // Greek with accents
    CaseRange{0x0388, 0x038A, 1, 37},    //
    CaseRange{0x038C, 0x038C, 1, 64},    //
    CaseRange{0x038E, 0x038F, 1, 63},    //
    CaseRange{0x0410, 0x042F, 1, 32},    // Cyrillic
    CaseRange{0x0400, 0x040F, 1, 80},    //
    CaseRange{0x0460, 0x0480, 2, 1},     //
    CaseRange{0x048A, 0x04BE, 2, 1},     //
    CaseRange{0x04C0, 0x04C0, 1, 15},    //
    CaseRange{0x04C1, 0x04CD, 2, 1},     //
    CaseRange{0x04D0, 0x052E, 2, 1},     //
};

struct OneWay {
  char16_t from;
  char16_t to;
};

// Letters whose partner has another partner of its own.
constexpr std::array only_up{
    OneWay{0x00B5, 0x039C},  // micro sign
    OneWay{0x0131, u'I'},    // dotless i
    OneWay{0x017F, u'S'},    // long s
    OneWay{0x03C2, 0x03A3},  // final sigma
};
constexpr std::array only_down{OneWay{0x0130, u'i'}};

bool holds(const CaseRange& range, int c) {
  return c >= range.first && c <= range.last && (c - range.first) % range.step == 0;
}

char16_t one_way(std::span<const OneWay> pairs, char16_t c) {
  const auto pair = std::ranges::find(pairs, c, &OneWay::from);
  return pair == pairs.end() ? c : pair->to;
}

char16_t upper(char16_t c) {
  const auto* range =
      std::ranges::find_if(ranges, [c](const CaseRange& r) { return holds(r, c - r.distance); });
  return range == ranges.end() ? one_way(only_up, c) : static_cast<char16_t>(c - range->distance);
}

char16_t lower(char16_t c) {
  const auto* range = std::ranges::find_if(ranges, [c](const CaseRange& r) { return holds(r, c); });
  return range == ranges.end() ? one_way(only_down, c) : static_cast<char16_t>(c + range->distance);
}

constexpr bool is_plain(char16_t c) { return c < u'A'; }

template <typename Mapping>
Text mapped(TextView text, Mapping mapping) {
  Text result{text};
  for (char16_t& c : result) {
    if (!is_plain(c)) c = mapping(c);
  }
  return result;
}

}  // namespace

Text upper_case(TextView text) { return mapped(text, upper); }

Text lower_case(TextView text) { return mapped(text, lower); }

}  // namespace tarnmill
