#include <gtest/gtest.h>

#include <vector>

#include "engine/text.h"

namespace tarnmill {
namespace {

struct Pair {
  Text upper;
  Text lower;
};

const std::vector<Pair> pairs{
    {.upper = u"AZ", .lower = u"az"},
    {.upper = u"\u00C0\u00D6\u00D8\u00DE", .lower = u"\u00E0\u00F6\u00F8\u00FE"},
    {.upper = u"\u0178", .lower = u"\u00FF"},
    {.upper = u"\u0100\u010C\u0132\u0139\u0147\u014A\u0160\u0176\u0179\u017D",
     .lower = u"\u0101\u010D\u0133\u013A\u0148\u014B\u0161\u0177\u017A\u017E"},
    {.upper = u"\u0391\u03A1\u03A3\u03AB\u0386\u0388\u038A\u038C\u038E\u038F",
     .lower = u"\u03B1\u03C1\u03C3\u03CB\u03AC\u03AD\u03AF\u03CC\u03CD\u03CE"},
    {.upper = u"\u0400\u040F\u0410\u042F\u0460\u048A\u04C0\u04C1\u04D0\u052E",
     .lower = u"\u0450\u045F\u0430\u044F\u0461\u048B\u04CF\u04C2\u04D1\u052F"},
};

TEST(LetterCase, LettersOfAllScriptsGoBothWays) {
  for (const Pair& pair : pairs) {
    EXPECT_EQ(to_utf8(upper_case(pair.lower)), to_utf8(pair.upper));
    EXPECT_EQ(to_utf8(lower_case(pair.upper)), to_utf8(pair.lower));
    EXPECT_EQ(upper_case(pair.upper), pair.upper);
    EXPECT_EQ(lower_case(pair.lower), pair.lower);
  }
}

TEST(LetterCase, SomeLettersGoOneWayOnly) {
  EXPECT_EQ(upper_case(u"\u00B5\u0131\u017F\u03C2"), u"\u039CIS\u03A3");
  EXPECT_EQ(lower_case(u"\u0130"), u"i");
}

TEST(LetterCase, EverythingElseStays) {
  const Text others = u"0(^)!{~\u00D7\u00F7\u00DF\u0138\u0149\u20AC";
  EXPECT_EQ(upper_case(others), others);
  EXPECT_EQ(lower_case(others), others);
}

}  // namespace
}  // namespace tarnmill
