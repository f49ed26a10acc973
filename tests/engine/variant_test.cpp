#include "engine/variant.h"

#include <gtest/gtest.h>

#include <limits>

#include "fault_expectation.h"

namespace tarnmill {
namespace {

constexpr Regional point{};
constexpr Regional comma{.decimal_separator = u','};
constexpr auto less = std::partial_ordering::less;
constexpr auto equal = std::partial_ordering::equivalent;
constexpr auto greater = std::partial_ordering::greater;

TEST(Variant, KnowsWhatItHolds) {
  EXPECT_TRUE(Variant{}.is_empty());
  EXPECT_TRUE(Variant{2.5}.is_number());
  EXPECT_TRUE(Variant{7}.is_number());
  EXPECT_TRUE(Variant{u"NUMS"}.is_text());
  EXPECT_TRUE(Variant{Text{u""}}.is_text());
  EXPECT_TRUE(Variant{true}.is_bool());
}

TEST(Variant, EmptyIsZeroInArithmeticAndNothingInText) {
  EXPECT_EQ(Variant{}.to_number(point), 0);
  EXPECT_EQ(Variant{}.to_text(point), u"");
}

TEST(Variant, TrueIsMinusOne) {
  EXPECT_EQ(Variant{true}.to_number(point), -1);
  EXPECT_EQ(Variant{false}.to_number(point), 0);
  EXPECT_EQ(Variant{true}.to_text(point), u"True");
  EXPECT_EQ(Variant{false}.to_text(point), u"False");
}

TEST(Variant, NumbersAndTextConvertByTheRegionalSettings) {
  EXPECT_EQ(Variant{0.5}.to_text(comma), u"0,5");
  EXPECT_EQ(Variant{0.5}.to_text(point), u"0.5");
  EXPECT_EQ(Variant{u"0,5"}.to_number(comma), 0.5);
  EXPECT_EQ(Variant{u"0,5"}.to_text(point), u"0,5");
}

TEST(Variant, TextThatIsNoNumberRefusesArithmetic) {
  EXPECT_FAULT(Variant{u"NUMS"}.to_number(point), TypeMismatch);
  EXPECT_FAULT(Variant{u""}.to_number(point), TypeMismatch);
  EXPECT_FAULT(Variant{u"1E999"}.to_number(point), Overflow);
}

TEST(VariantBesideAFixedNumber, NumbersCompareAsNumbers) {
  EXPECT_EQ(compare(Variant{3}, 3.14, point), less);
  EXPECT_EQ(compare(Variant{3.14}, 3.14, point), equal);
  EXPECT_EQ(compare(Variant{}, 0, point), equal);
  EXPECT_EQ(compare(Variant{true}, 0, point), less);
  EXPECT_EQ(compare(Variant{std::numeric_limits<double>::quiet_NaN()}, 0, point),
            std::partial_ordering::unordered);
}

TEST(VariantBesideAFixedNumber, TextThatReadsAsANumberComparesAsOne) {
  EXPECT_EQ(compare(Variant{u"10"}, 9, point), greater);
  EXPECT_EQ(compare(Variant{u" 3,5 "}, 3.5, comma), equal);
  EXPECT_EQ(compare(Variant{u"-1"}, 0, point), less);
}

TEST(VariantBesideAFixedNumber, AnyOtherTextIsGreaterWithoutAFault) {
  EXPECT_EQ(compare(Variant{u"NUMS"}, 3.14, point), greater);
  EXPECT_EQ(compare(Variant{u""}, 1e300, point), greater);
  EXPECT_EQ(compare(Variant{u"1E999"}, 0, point), greater);
}

TEST(VariantBesideAVariant, ANumberIsSmallerThanAnyText) {
  EXPECT_EQ(compare(Variant{1000}, Variant{u"1"}), less);
  EXPECT_EQ(compare(Variant{u"1"}, Variant{1}), greater);
  EXPECT_EQ(compare(Variant{true}, Variant{u"-1"}), less);
}

TEST(VariantBesideAVariant, TextComparesByCodeUnit) {
  EXPECT_EQ(compare(Variant{u"10"}, Variant{u"9"}), less);
  EXPECT_EQ(compare(Variant{u"a"}, Variant{u"B"}), greater);
  EXPECT_EQ(compare(Variant{u"NUMS"}, Variant{u"NUMS"}), equal);
}

TEST(VariantBesideAVariant, NumbersCompareAsNumbers) {
  EXPECT_EQ(compare(Variant{9}, Variant{10}), less);
  EXPECT_EQ(compare(Variant{true}, Variant{-1}), equal);
}

TEST(VariantBesideAVariant, EmptyTakesTheSideOfTheOther) {
  EXPECT_EQ(compare(Variant{}, Variant{0}), equal);
  EXPECT_EQ(compare(Variant{}, Variant{u""}), equal);
  EXPECT_EQ(compare(Variant{}, Variant{u"0"}), less);
  EXPECT_EQ(compare(Variant{}, Variant{}), equal);
}

}  // namespace
}  // namespace tarnmill
