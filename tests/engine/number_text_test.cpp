#include "engine/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "fault_expectation.h"

namespace tarnmill {
namespace {

constexpr Regional point{};
constexpr Regional comma{.decimal_separator = u','};
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Reading {
  Text text;
  double value;
};

const std::vector<Reading> lenient_readings{
    {.text = u"1e3", .value = 1000},
    {.text = u"1e", .value = 1},
    {.text = u"-.5x", .value = -0.5},
    {.text = u"0,7", .value = 0},
    {.text = u"3,5", .value = 3},
    {.text = u"12abc", .value = 12},
    {.text = u"abc", .value = 0},
    {.text = u"", .value = 0},
    {.text = u"1 2", .value = 12},
    {.text = u" \t\n-\t1 . 5 e\n2", .value = -150},
    {.text = u"1\r2", .value = 1},
    {.text = u"+7", .value = 7},
    {.text = u"5.", .value = 5},
    {.text = u".", .value = 0},
    {.text = u"-", .value = 0},
    {.text = u"-.e5", .value = 0},
    {.text = u"1.2.3", .value = 1.2},
    {.text = u"1e+", .value = 1},
    {.text = u"1e-2", .value = 0.01},
    {.text = u"1E+2", .value = 100},
    {.text = u"1d2", .value = 100},
    {.text = u"1D-1", .value = 0.1},
    {.text = u"1.e1", .value = 10},
    {.text = u"--1", .value = 0},
    {.text = u"&HFF", .value = 255},
    {.text = u"&hfFg", .value = 255},
    {.text = u"& H 1 0", .value = 16},
    {.text = u"&O17", .value = 15},
    {.text = u"&o789", .value = 7},
    {.text = u"&H", .value = 0},
    {.text = u"&17", .value = 0},
    {.text = u"&", .value = 0},
    {.text = u"0.30000000000000004", .value = 0.30000000000000004},
    {.text = u"1e-400", .value = 0},
    {.text = u"0e999999999999", .value = 0},
    {.text = u"1e-99999999999999999999", .value = 0},
    {.text = u"-1E+15", .value = -1e15},
};

TEST(NumberFromText, ReadsWhatItCanAndStops) {
  for (const Reading& row : lenient_readings) {
    EXPECT_EQ(NumberFromText(row.text), row.value) << to_utf8(row.text);
  }
}

TEST(NumberFromText, OverflowsBeyondTheRangeAndNowhereElse) {
  EXPECT_EQ(NumberFromText(u"1.7976931348623157e308"), std::numeric_limits<double>::max());
  EXPECT_FAULT(NumberFromText(u"1e309"), Overflow);
  EXPECT_FAULT(NumberFromText(u"-1e309"), Overflow);
  EXPECT_FAULT(NumberFromText(u"1e99999999999999999999"), Overflow);
  EXPECT_FAULT(NumberFromText(Text(400, u'9')), Overflow);
  EXPECT_FAULT(NumberFromText(u"&H" + Text(300, u'F')), Overflow);
  EXPECT_EQ(NumberFromText(u"0." + Text(400, u'0') + u"1"), 0);
  EXPECT_EQ(NumberFromText(u"0." + Text(400, u'0') + u"1e0000000000001"), 0);
  EXPECT_EQ(NumberFromText(u"0." + Text(400, u'0') + u"1e401"), 1);
}

const std::vector<Reading> strict_readings{
    {.text = u"12", .value = 12},          {.text = u" \t12\r\n", .value = 12},
    {.text = u"-1.5", .value = -1.5},      {.text = u"+.5", .value = 0.5},
    {.text = u"5.", .value = 5},           {.text = u"1E+15", .value = 1e15},
    {.text = u"1.5E-05", .value = 1.5e-5}, {.text = u"1d2", .value = 100},
    {.text = u"&HFF", .value = 255},       {.text = u"&o17", .value = 15},
};

TEST(NumberFromTextStrict, ReadsOneWholeNumber) {
  for (const Reading& row : strict_readings) {
    EXPECT_TRUE(IsNumericText(row.text, point)) << to_utf8(row.text);
    EXPECT_EQ(NumberFromTextStrict(row.text, point), row.value) << to_utf8(row.text);
  }
}

TEST(NumberFromTextStrict, TakesTheSeparatorOfTheRegionalSettingsAlone) {
  EXPECT_EQ(NumberFromTextStrict(u"0,5", comma), 0.5);
  for (const TextView grouped : {u"1.5", u"1.234,5"}) EXPECT_FALSE(IsNumericText(grouped, comma));
  for (const TextView grouped : {u"1,5", u"1,234.5"}) EXPECT_FALSE(IsNumericText(grouped, point));
}

const std::vector<Text> no_numbers{u"",    u" ",      u"abc", u"12abc", u"1 2",   u"1e", u"1e+",   u"--1",
                                   u"-",   u".",      u",",   u",5",    u"1,,2",  u"1,", u"1.2.3", u"1.2,3",
                                   u"&",   u"&H",     u"&HG", u"&O8",   u"&17",   u"1#", u"NUMS",  u"1.#INF",
                                   u"(1)", u"\u0661", u"e5",  u"- 5",   u"1,.5e", u"1-"};

TEST(NumberFromTextStrict, RefusesEverythingElse) {
  for (const Text& text : no_numbers) {
    EXPECT_FALSE(IsNumericText(text, point)) << to_utf8(text);
    EXPECT_FAULT(NumberFromTextStrict(text, point), TypeMismatch) << to_utf8(text);
  }
}

TEST(NumberFromTextStrict, OverflowsBeyondTheRange) {
  EXPECT_TRUE(IsNumericText(u"1E999", point));
  EXPECT_FAULT(NumberFromTextStrict(u"1E999", point), Overflow);
}

TEST(IsNumericText, OfSingleCharactersExactlyTheTenDigitsAreNumeric) {
  for (const Regional& regional : {point, comma}) {
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
      const auto c = static_cast<char16_t>(unit);
      EXPECT_EQ(IsNumericText(Text(1, c), regional), c >= u'0' && c <= u'9') << unit;
    }
  }
}

struct Writing {
  double value;
  std::string text;
};

const std::vector<Writing> writings{
    {.value = 0.1 + 0.2, .text = "0.3"},
    {.value = 1.0 / 3, .text = "0.333333333333333"},
    {.value = 100, .text = "100"},
    {.value = 0, .text = "0"},
    {.value = -0.0, .text = "0"},
    {.value = -2.5, .text = "-2.5"},
    {.value = 1e15, .text = "1E+15"},
    {.value = 999999999999999, .text = "999999999999999"},
    {.value = 123456789012345, .text = "123456789012345"},
    {.value = 1234567890123456, .text = "1.23456789012346E+15"},
    {.value = 999999999999999.9, .text = "1E+15"},
    {.value = 0.0001, .text = "0.0001"},
    {.value = 0.00012345, .text = "0.00012345"},
    {.value = 0.000015, .text = "1.5E-05"},
    {.value = 1e-5, .text = "1E-05"},
    {.value = -1e-100, .text = "-1E-100"},
    {.value = 1.7976931348623157e308, .text = "1.79769313486232E+308"},
    {.value = 5e-324, .text = "4.94065645841247E-324"},
    {.value = 3.14159265358979312, .text = "3.14159265358979"},
    {.value = 12.5, .text = "12.5"},
    {.value = infinity, .text = "1.#INF"},
    {.value = -infinity, .text = "-1.#INF"},
    {.value = std::bit_cast<double>(0x7FF8000000000000U), .text = "1.#IND"},
    {.value = std::bit_cast<double>(0xFFF8000000000000U), .text = "-1.#IND"},
    {.value = std::bit_cast<double>(0x7FF8000000000001U), .text = "1.#QNAN"},
};

TEST(NumberToText, WritesAtMostFifteenDigits) {
  for (const Writing& row : writings) EXPECT_EQ(to_utf8(NumberToText(row.value, point)), row.text);
}

TEST(NumberToText, WritesTheRegionalSeparatorThatTheLenientReaderRefuses) {
  const Text text = NumberToText(0.5, comma);
  EXPECT_EQ(text, u"0,5");
  EXPECT_EQ(NumberFromText(text), 0);
  EXPECT_EQ(NumberFromTextStrict(text, comma), 0.5);
  EXPECT_EQ(NumberToText(1.5e-5, comma), u"1,5E-05");
  EXPECT_EQ(NumberToText(infinity, comma), u"1.#INF");
}

TEST(NumberToText, WritesASingleWithSevenDigits) {
  EXPECT_EQ(NumberToText(0.1F, point), u"0.1");
  EXPECT_EQ(NumberToText(1.0F / 3, point), u"0.3333333");
  EXPECT_EQ(NumberToText(49559.53F, point), u"49559.53");
  EXPECT_EQ(NumberToText(123456789.0F, point), u"123456800");
  EXPECT_EQ(NumberToText(1e20F, comma), u"1E+20");
}

TEST(NumberToText, WritesWholeNumbers) {
  EXPECT_EQ(NumberToText(-2147483647, point), u"-2147483647");
  EXPECT_EQ(NumberToText(std::int16_t{7}, point), u"7");
}

const std::vector<Writing> padded_writings{
    {.value = 0.5, .text = " .5"},       {.value = -0.5, .text = "-.5"},
    {.value = 100, .text = " 100"},      {.value = 0, .text = " 0"},
    {.value = -12.25, .text = "-12.25"}, {.value = 0.0001, .text = " .0001"},
    {.value = 1e15, .text = " 1E+15"},   {.value = -1.5e-5, .text = "-1.5E-05"},
    {.value = 10.5, .text = " 10.5"},
};

TEST(PaddedNumberText, LeavesRoomForTheSignAndDropsTheLeadingZero) {
  for (const Writing& row : padded_writings) EXPECT_EQ(to_utf8(PaddedNumberText(row.value)), row.text);
}

}  // namespace
}  // namespace tarnmill
