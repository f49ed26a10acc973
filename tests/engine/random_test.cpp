#include "engine/random.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnmill {
namespace {

TEST(RandomSequence, StaysFromZeroToBelowOneAndFillsTheRange) {
  RandomSequence sequence;
  int below_half = 0;
  std::set<float> seen;
  for (int i = 0; i < 10000; ++i) {
    const float number = sequence.NextRandom(1);
    ASSERT_GE(number, 0.0F);
    ASSERT_LT(number, 1.0F);
    below_half += number < 0.5F ? 1 : 0;
    seen.insert(number);
  }
  EXPECT_NEAR(below_half, 5000, 300);
  EXPECT_GT(seen.size(), 9900U);
}

TEST(RandomSequence, ZeroRepeatsTheLastNumber) {
  RandomSequence sequence;
  const float last = sequence.NextRandom(1);
  EXPECT_EQ(sequence.NextRandom(0), last);
  EXPECT_EQ(sequence.NextRandom(0), last);
  EXPECT_NE(sequence.NextRandom(2), last);
}

TEST(RandomSequence, ANegativeNumberRestartsTheSequenceThatBelongsToIt) {
  RandomSequence sequence;
  const float first = sequence.NextRandom(-3);
  const float second = sequence.NextRandom(1);
  sequence.NextRandom(1);
  EXPECT_EQ(sequence.NextRandom(-3), first);
  EXPECT_EQ(sequence.NextRandom(1), second);
  EXPECT_NE(sequence.NextRandom(-4), first);
}

TEST(RandomSequence, NewSequencesStartAlike) {
  RandomSequence one;
  RandomSequence other;
  EXPECT_EQ(one.NextRandom(1), other.NextRandom(1));
}

}  // namespace
}  // namespace tarnmill
