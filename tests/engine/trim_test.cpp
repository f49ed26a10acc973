#include "engine/trim.h"

#include <gtest/gtest.h>

namespace tarnmill {
namespace {

TEST(Trim, TakesTheCharactersAwayAtBothEndsOnly) {
  EXPECT_EQ(trimmed(u"  a b "), u"a b");
  EXPECT_EQ(trimmed(u"a"), u"a");
  EXPECT_EQ(trimmed(u"\ta "), u"\ta");
  EXPECT_EQ(trimmed(u"\t a\n", u" \t\n"), u"a");
}

TEST(Trim, LeavesNothingWhereThereIsNothingElse) {
  EXPECT_EQ(trimmed(u""), u"");
  EXPECT_EQ(trimmed(u"   "), u"");
}

}  // namespace
}  // namespace tarnmill
