#include "engine/text.h"

#include <gtest/gtest.h>

namespace tarnmill {
namespace {

TEST(Text, ReplaceAllReplacesEveryOccurrenceInOnePass) {
  EXPECT_EQ(ReplaceAll(u"sinx+cosx", u"x", u"(x)"), u"sin(x)+cos(x)");
}

TEST(Text, ReplaceAllDoesNotSearchWhatItPutIn) { EXPECT_EQ(ReplaceAll(u"aa", u"a", u"aa"), u"aaaa"); }

TEST(Text, ReplaceAllTakesOccurrencesFromTheLeftWithoutOverlap) {
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"b"), u"ba");
}

TEST(Text, ReplaceAllIsCaseSensitive) { EXPECT_EQ(ReplaceAll(u"Kk", u"k", u"x"), u"Kx"); }

TEST(Text, ReplaceAllWithAnEmptyFindLeavesTheText) { EXPECT_EQ(ReplaceAll(u"abc", u"", u"x"), u"abc"); }

TEST(Text, ReplaceAllOfAnEmptyTextIsEmpty) { EXPECT_EQ(ReplaceAll(u"", u"a", u"b"), u""); }

TEST(Text, ReplaceAllCanRemove) { EXPECT_EQ(ReplaceAll(u" 1 + 1 ", u" ", u""), u"1+1"); }

TEST(Text, FindTextCountsFromOne) {
  EXPECT_EQ(FindText(u"abcabc", u"a"), 1);
  EXPECT_EQ(FindText(u"abcabc", u"ca"), 3);
}

TEST(Text, FindTextIsZeroWhenAbsentAndCaseSensitive) {
  EXPECT_EQ(FindText(u"abc", u"d"), 0);
  EXPECT_EQ(FindText(u"abc", u"A"), 0);
  EXPECT_EQ(FindText(u"", u"a"), 0);
}

TEST(Text, AnEmptyFindStandsAtTheStartOfATextThatIsNotEmpty) {
  EXPECT_EQ(FindText(u"abc", u""), 1);
  EXPECT_EQ(FindText(u"", u""), 0);
}

}  // namespace
}  // namespace tarnmill
