#include "engine/rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "engine/number_text.h"
#include "fault_expectation.h"

namespace tarnmill {
namespace {

constexpr Regional point{};
constexpr Regional comma{.decimal_separator = u','};
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Rounding {
  double x;
  int digits;
  double expected;
};

const std::vector<Rounding> roundings{
    {.x = 2.5, .digits = 0, .expected = 2},
    {.x = 3.5, .digits = 0, .expected = 4},
    {.x = -2.5, .digits = 0, .expected = -2},
    {.x = 0.125, .digits = 2, .expected = 0.12},
    {.x = 0.375, .digits = 2, .expected = 0.38},
    {.x = 0.0005, .digits = 3, .expected = 0},
    {.x = 0.0015, .digits = 3, .expected = 0.002},
    {.x = 3.14159265358979, .digits = 6, .expected = 3.141593},
    {.x = 1e15 + 0.5, .digits = 0, .expected = 1e15},
    {.x = 0x1p52, .digits = 4, .expected = 0x1p52},
    {.x = -1e300, .digits = 20, .expected = -1e300},
};

TEST(RoundTo, RoundsHalfToEvenOnTheScaledValue) {
  for (const Rounding& row : roundings) EXPECT_EQ(RoundTo(row.x, row.digits), row.expected) << row.x;
}

TEST(RoundTo, RefusesDigitsBelowZero) { EXPECT_FAULT(RoundTo(1, -1), InvalidArgument); }

TEST(RoundTo, OverflowsWhenTheScaledValueDoes) {
  EXPECT_FAULT(RoundTo(1e15, 300), Overflow);
  EXPECT_FAULT(RoundTo(1, 400), Overflow);
}

TEST(RoundTo, PassesOnWhatIsNotFinite) {
  EXPECT_EQ(RoundTo(infinity, 2), infinity);
  EXPECT_EQ(RoundTo(-infinity, 2), -infinity);
  EXPECT_TRUE(std::isnan(RoundTo(std::numeric_limits<double>::quiet_NaN(), 2)));
}

TEST(RoundTo, ReadsTextStrictly) {
  EXPECT_EQ(RoundTo(u"0,125", 2, comma), 0.12);
  EXPECT_FAULT(RoundTo(u"abc", 2, point), TypeMismatch);
}

TEST(ToInteger, RoundsHalfToEven) {
  EXPECT_EQ(ToInteger(2.5), 2);
  EXPECT_EQ(ToInteger(3.5), 4);
  EXPECT_EQ(ToInteger(-2.5), -2);
  EXPECT_EQ(ToInteger(32766.5), 32766);
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_EQ(ToInteger(-32768.5), -32768);
}

TEST(ToInteger, OverflowsOutOfRange) {
  EXPECT_FAULT(ToInteger(32767.5), Overflow);
  EXPECT_FAULT(ToInteger(-32768.6), Overflow);
  EXPECT_FAULT(ToInteger(infinity), Overflow);
  EXPECT_FAULT(ToInteger(std::numeric_limits<double>::quiet_NaN()), Overflow);
}

TEST(ToInteger, ReadsTextStrictly) {
  EXPECT_EQ(ToInteger(u" 2.5 ", point), 2);
  EXPECT_EQ(ToInteger(u"3,5", comma), 4);
  EXPECT_FAULT(ToInteger(u"", point), TypeMismatch);
  EXPECT_FAULT(ToInteger(u"12abc", point), TypeMismatch);
  EXPECT_FAULT(ToInteger(u"32768", point), Overflow);
}

TEST(ToLong, RoundsHalfToEvenAndChecksItsRange) {
  EXPECT_EQ(ToLong(2.5), 2);
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_EQ(ToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_FAULT(ToLong(2147483647.5), Overflow);
  EXPECT_FAULT(ToLong(-1e300), Overflow);
  EXPECT_FAULT(ToLong(u"x", point), TypeMismatch);
  EXPECT_EQ(ToLong(u"70000", point), 70000);
}

TEST(WholeParts, FloorTruncAndSignTreatNegativesEachTheirWay) {
  EXPECT_EQ(FloorOf(-2.5), -3);
  EXPECT_EQ(FloorOf(2.5), 2);
  EXPECT_EQ(TruncOf(-2.5), -2);
  EXPECT_EQ(TruncOf(2.5), 2);
  EXPECT_EQ(SignOf(-0.1), -1);
  EXPECT_EQ(SignOf(0), 0);
  EXPECT_EQ(SignOf(7), 1);
}

TEST(WholeParts, InfinityHasNone) {
  EXPECT_FAULT(FloorOf(infinity), Overflow);
  EXPECT_FAULT(TruncOf(-infinity), Overflow);
}

}  // namespace
}  // namespace tarnmill
