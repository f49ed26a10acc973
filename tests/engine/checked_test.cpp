#include "engine/checked.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "fault_expectation.h"

namespace tarnmill {
namespace {

constexpr double greatest = std::numeric_limits<double>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

TEST(CheckedDouble, FiniteResultsAreThoseOfTheProcessor) {
  EXPECT_EQ(add(0.1, 0.2), 0.1 + 0.2);
  EXPECT_EQ(subtract(1, 0.9), 1 - 0.9);
  EXPECT_EQ(multiply(1e200, 1e100), 1e300);
  EXPECT_EQ(divide(1, 3), 1.0 / 3);
  EXPECT_EQ(negate(2.5), -2.5);
}

TEST(CheckedDouble, AResultBeyondTheRangeOverflows) {
  EXPECT_FAULT(add(greatest, greatest), Overflow);
  EXPECT_FAULT(subtract(-greatest, greatest), Overflow);
  EXPECT_FAULT(multiply(1e200, 1e200), Overflow);
  EXPECT_FAULT(divide(1e200, 1e-200), Overflow);
}

TEST(CheckedDouble, UnderflowIsNoFault) {
  EXPECT_EQ(multiply(1e-200, 1e-200), 0);
  EXPECT_EQ(divide(1e-200, 1e200), 0);
  EXPECT_EQ(exponential(-1000), 0);
}

TEST(CheckedDouble, DivisionByZeroTellsZeroOverZeroApart) {
  EXPECT_FAULT(divide(1, 0.0), DivisionByZero);
  EXPECT_FAULT(divide(-1, -0.0), DivisionByZero);
  EXPECT_FAULT(divide(0.0, 0.0), Overflow);
  EXPECT_FAULT(divide(no_number, 0.0), Overflow);
}

TEST(CheckedDouble, WhatIsNotFiniteNeverLeaves) {
  EXPECT_FAULT(finite(infinity), Overflow);
  EXPECT_FAULT(finite(no_number), Overflow);
  EXPECT_FAULT(negate(infinity), Overflow);
  EXPECT_FAULT(sine(infinity), Overflow);
  EXPECT_FAULT(cosine(no_number), Overflow);
  EXPECT_FAULT(arctangent(no_number), Overflow);
  EXPECT_FAULT(square_root(infinity), Overflow);
}

TEST(CheckedDouble, AnglesAreRadians) {
  EXPECT_DOUBLE_EQ(sine(std::numbers::pi / 6), 0.5);
  EXPECT_DOUBLE_EQ(cosine(0), 1);
  EXPECT_DOUBLE_EQ(tangent(std::numbers::pi / 4), 1);
  EXPECT_DOUBLE_EQ(arctangent(1), std::numbers::pi / 4);
}

TEST(CheckedDouble, TheTangentBesideItsPoleIsVeryLarge) { EXPECT_GT(tangent(std::numbers::pi / 2), 1e15); }

TEST(CheckedDouble, TheExponentialOverflowsAboveItsLimit) {
  EXPECT_GT(exponential(709.78), 1e308);
  EXPECT_FAULT(exponential(709.79), Overflow);
}

TEST(CheckedDouble, RootsAndLogarithmsRefuseWhatTheyDoNotKnow) {
  EXPECT_EQ(square_root(0), 0);
  EXPECT_EQ(square_root(2.25), 1.5);
  EXPECT_FAULT(square_root(-1), InvalidArgument);
  EXPECT_DOUBLE_EQ(natural_log(std::numbers::e), 1);
  EXPECT_FAULT(natural_log(0), InvalidArgument);
  EXPECT_FAULT(natural_log(-1), InvalidArgument);
}

TEST(Single, RoundsToNearestAndChecksItsRange) {
  EXPECT_EQ(to_single(0.1), 0.1F);
  EXPECT_EQ(to_single(std::numeric_limits<float>::max()), std::numeric_limits<float>::max());
  EXPECT_EQ(to_single(0x1.fffffefp127), std::numeric_limits<float>::max());
  EXPECT_FAULT(to_single(0x1.ffffffp127), Overflow);
  EXPECT_FAULT(to_single(-1e39), Overflow);
  EXPECT_FAULT(to_single(no_number), Overflow);
}

TEST(WholeDivision, RoundsBothOperandsHalfToEven) {
  EXPECT_EQ(whole_divide(7, 2), 3);
  EXPECT_EQ(whole_divide(7.5, 2.5), 4);
  EXPECT_EQ(whole_divide(6.5, 1.5), 3);
  EXPECT_EQ(whole_divide(-7, 2), -3);
}

TEST(WholeDivision, FaultsOnZeroAndOutOfRange) {
  EXPECT_FAULT(whole_divide(1, 0), DivisionByZero);
  EXPECT_FAULT(whole_divide(0, 0.5), DivisionByZero);
  EXPECT_FAULT(whole_divide(2147483648.0, 1), Overflow);
  EXPECT_FAULT(whole_divide(-2147483648.0, -1), Overflow);
}

TEST(Mod, GivesTheRemainderWithTheSignOfTheDividend) {
  EXPECT_EQ(Mod(7, 3), 1);
  EXPECT_EQ(Mod(-7, 3), -1);
  EXPECT_EQ(Mod(7, -3), 1);
  EXPECT_EQ(Mod(7.5, 2.5), 0);
  EXPECT_EQ(Mod(-2147483648.0, -1), 0);
}

TEST(Mod, FaultsOnZeroAndOutOfRange) {
  EXPECT_FAULT(Mod(1, 0.4), DivisionByZero);
  EXPECT_FAULT(Mod(3e9, 2), Overflow);
}

TEST(Integer, CountsUpTo32767AndNoFurther) {
  Integer counter{32766};
  EXPECT_EQ((++counter).value(), 32767);
  EXPECT_FAULT(++counter, Overflow);
  EXPECT_EQ(counter.value(), 32767);
}

TEST(Integer, CountsDownToItsLeastValueAndNoFurther) {
  Integer counter{-32767};
  EXPECT_EQ((--counter).value(), -32768);
  EXPECT_FAULT(--counter, Overflow);
  EXPECT_FAULT(-counter, Overflow);
}

TEST(Integer, ChecksEveryOperation) {
  EXPECT_EQ((Integer{200} * Integer{100} + 5 - 10).value(), 19995);
  EXPECT_FAULT(Integer{200} * 200, Overflow);
  EXPECT_FAULT(Integer{32767} + 1, Overflow);
  EXPECT_FAULT(Integer{-32768} - 1, Overflow);
  EXPECT_FAULT(Integer{32768}, Overflow);
  EXPECT_EQ((-Integer{7}).value(), -7);
}

TEST(Integer, AssignsInPlace) {
  Integer value = 10;
  value += 5;
  value -= 3;
  value *= 2;
  EXPECT_EQ(static_cast<std::int16_t>(value), 24);
}

TEST(Integer, ComparesWithPlainNumbers) {
  EXPECT_TRUE(Integer{3} < 4);
  EXPECT_TRUE(Integer{3} == 3);
}

TEST(Long, HoldsThirtyTwoBits) {
  EXPECT_EQ((Long{2147483646} + 1).value(), 2147483647);
  EXPECT_FAULT(Long{2147483647} + 1, Overflow);
  EXPECT_FAULT(Long{65536} * 65536, Overflow);
  EXPECT_FAULT(Long{std::int64_t{1} << 40}, Overflow);
}

}  // namespace
}  // namespace tarnmill
