#include "complex/complex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <vector>

#include "engine/fault.h"

namespace tarnmill {
namespace {

using std::numbers::pi;

constexpr double untouched = 77;

// The messages of a call and its outputs, which begin with a value that no call here gives.
struct Outcome {
  double re = untouched;
  double im = untouched;
  std::vector<MessageBox> messages;

  MessageSink show = [this](const MessageBox& box) { messages.push_back(box); };

  Outcome() = default;
  Outcome(const Outcome&) = delete;
  Outcome& operator=(const Outcome&) = delete;
  ~Outcome() = default;
};

void expect_value(const Outcome& outcome, double re, double im, double error = 1e-14) {
  EXPECT_NEAR(outcome.re, re, error);
  EXPECT_NEAR(outcome.im, im, error);
  EXPECT_TRUE(outcome.messages.empty());
}

void expect_untouched(const Outcome& outcome) {
  EXPECT_EQ(outcome.re, untouched);
  EXPECT_EQ(outcome.im, untouched);
}

void expect_messages(const Outcome& outcome, const std::vector<TextView>& texts) {
  ASSERT_EQ(outcome.messages.size(), texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const MessageBox& box = outcome.messages[i];
    EXPECT_EQ(box.text, texts[i]);
    EXPECT_EQ(box.title, u"Tarnmill");
    EXPECT_EQ(box.icon, MessageIcon::information);
    EXPECT_EQ(box.buttons, MessageButtons::ok);
  }
}

int fault_of(const std::function<void()>& step) {
  try {
    step();
  } catch (const Fault& fault) {
    return fault.number();
  }
  return 0;
}

constexpr TextView probably_invalid = u"Owerflow. Probably invalid input.";
constexpr TextView invalid = u"Owerflow.\r\nInvalid input.";

TEST(Complex, AddsAndSubtractsByParts) {
  Outcome sum;
  ComplexAdd(1, 2, 3.5, -4, sum.re, sum.im);
  expect_value(sum, 4.5, -2);
  Outcome difference;
  ComplexSubtract(1, 2, 3.5, -4, difference.re, difference.im);
  expect_value(difference, -2.5, 6);
}

TEST(Complex, ASumBeyondTheRangeIsAFaultAndKeepsWhatWasWritten) {
  Outcome outcome;
  EXPECT_EQ(fault_of([&] { ComplexAdd(1, 1e308, 2, 1e308, outcome.re, outcome.im); }), 6);
  EXPECT_EQ(outcome.re, 3);
  EXPECT_EQ(outcome.im, untouched);
  Outcome difference;
  EXPECT_EQ(fault_of([&] { ComplexSubtract(1e308, 1, -1e308, 1, difference.re, difference.im); }), 6);
  expect_untouched(difference);
}

TEST(Complex, Multiplies) {
  Outcome outcome;
  ComplexMultiply(1, 2, 3, 4, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, -5, 10);
}

TEST(Complex, AProductBeyondTheRangeTellsAndLeavesTheOutputs) {
  Outcome outcome;
  ComplexMultiply(1e200, 0, 1e200, 0, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {probably_invalid});
}

TEST(Complex, AProductWhoseImaginaryPartOverflowsKeepsItsRealPart) {
  Outcome outcome;
  ComplexMultiply(1, 1e308, 10, 0, outcome.re, outcome.im, outcome.show);
  EXPECT_EQ(outcome.re, 10);
  EXPECT_EQ(outcome.im, untouched);
  expect_messages(outcome, {probably_invalid});
}

TEST(Complex, Divides) {
  Outcome outcome;
  ComplexDivide(1, 0, 0, 1, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, 0, -1);
  Outcome other;
  ComplexDivide(-5, 10, 3, 4, other.re, other.im, other.show);
  expect_value(other, 1, 2);
}

TEST(Complex, AQuotientByZeroIsAnOverflow) {
  for (const double a : {0.0, 1.0, -3.0}) {
    Outcome outcome;
    ComplexDivide(a, 2, 0, 0, outcome.re, outcome.im, outcome.show);
    expect_untouched(outcome);
    expect_messages(outcome, {invalid});
  }
}

TEST(Complex, AQuotientByANumberWhoseSquareVanishesEndsInSilence) {
  Outcome outcome;
  ComplexDivide(1, 0, 1e-200, 0, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {});
}

TEST(Complex, AQuotientBehindAFailedProductGoesOnWithZeros) {
  Outcome outcome;
  ComplexDivide(1e300, 0, 1e150, 0, outcome.re, outcome.im, outcome.show);
  EXPECT_EQ(outcome.re, 0);
  EXPECT_EQ(outcome.im, 0);
  expect_messages(outcome, {probably_invalid});
  Outcome both;
  ComplexDivide(1e300, 0, 1e300, 0, both.re, both.im, both.show);
  expect_untouched(both);
  expect_messages(both, {probably_invalid, invalid});
}

TEST(Complex, TheMagnitudeIsTheRootOfTheSquares) {
  double magnitude = untouched;
  ComplexAbs(3, -4, magnitude);
  EXPECT_EQ(magnitude, 5);
  EXPECT_EQ(fault_of([&] { ComplexAbs(1e200, 0, magnitude); }), 6);
  EXPECT_EQ(magnitude, 5);
}

TEST(Complex, TheExponentialTurnsByTheImaginaryPart) {
  Outcome outcome;
  ComplexExp(1, 2, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, std::exp(1) * std::cos(2), std::exp(1) * std::sin(2));
}

TEST(Complex, AnExponentialBeyondTheRangeTellsAndLeavesTheOutputs) {
  Outcome outcome;
  ComplexExp(1000, 0, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {invalid});
}

TEST(Complex, TheLogarithmHasItsOwnRangeOfAngles) {
  struct Row {
    double a;
    double b;
    double re;
    double im;
  };
  const double t = std::atan(2);
  const double log5 = std::log(std::sqrt(5));
  for (const auto& [a, b, re, im] : std::vector<Row>{{0, 0, 0, 0},
                                                     {2, 0, std::log(2), 0},
                                                     {0, 2, std::log(2), pi / 2},
                                                     {-1, 0, 0, pi},
                                                     {0, -1, 0, 3 * pi / 2},
                                                     {1, 2, log5, t},
                                                     {-1, 2, log5, pi - t},
                                                     {-1, -2, log5, t - pi},
                                                     {1, -2, log5, 2 * pi - t},
                                                     {-1, -1, std::log(std::sqrt(2)), -3 * pi / 4},
                                                     {1, -1, std::log(std::sqrt(2)), 7 * pi / 4}}) {
    SCOPED_TRACE(::testing::Message() << a << ", " << b);
    Outcome outcome;
    ComplexLn(a, b, outcome.re, outcome.im);
    expect_value(outcome, re, im);
  }
}

TEST(Complex, ALogarithmWhoseAngleFaultsHasItsRealPart) {
  Outcome tiny;
  EXPECT_EQ(fault_of([&] { ComplexLn(1e-150, 1e-200, tiny.re, tiny.im); }), 6);  // a * b is 0, and 0/0
  EXPECT_NEAR(tiny.re, std::log(1e-150), 1e-12);
  EXPECT_EQ(tiny.im, untouched);
  Outcome large;
  EXPECT_EQ(fault_of([&] { ComplexLn(1e200, 1, large.re, large.im); }), 6);
  expect_untouched(large);
}

TEST(Complex, PowersGoByTheLogarithm) {
  Outcome i_to_the_i;
  ComplexPower(0, 1, 0, 1, i_to_the_i.re, i_to_the_i.im, i_to_the_i.show);
  expect_value(i_to_the_i, std::exp(-pi / 2), 0);
  Outcome square;
  ComplexPower(1, 2, 2, 0, square.re, square.im, square.show);
  expect_value(square, -3, 4);
  Outcome third_quadrant;
  ComplexPower(-1, -1, 0.5, 0, third_quadrant.re, third_quadrant.im, third_quadrant.show);
  const double root = std::pow(2, 0.25);
  expect_value(third_quadrant, root * std::cos(-3 * pi / 8), root * std::sin(-3 * pi / 8));
}

TEST(Complex, ZeroToAnyPowerIsOne) {
  Outcome outcome;
  ComplexPower(0, 0, 3, -2, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, 1, 0);
}

TEST(Complex, APowerBeyondTheRangeTellsAndLeavesTheOutputs) {
  Outcome outcome;
  ComplexPower(10, 0, 1000, 0, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {invalid});
}

TEST(Complex, LogarithmsHaveAnyBase) {
  Outcome outcome;
  ComplexLog(8, 0, 2, 0, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, 3, 0);
  Outcome of_minus_one;
  ComplexLog(-1, 0, 0, 1, of_minus_one.re, of_minus_one.im, of_minus_one.show);
  expect_value(of_minus_one, 2, 0);
}

TEST(Complex, ALogarithmToTheBaseOneIsAnOverflow) {
  Outcome outcome;
  ComplexLog(8, 0, 1, 0, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {invalid});
}

TEST(Complex, TheSineIsCrossed) {
  Outcome real;
  ComplexSin(1, 0, real.re, real.im, real.show);
  expect_value(real, std::sin(1), std::cos(1));
  Outcome outcome;
  ComplexSin(0.7, -1.2, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, std::sin(0.7) * std::cosh(1.2), std::cos(0.7) * std::cosh(1.2));
}

TEST(Complex, TheCosineIsTheMathematicalOne) {
  Outcome zero;
  ComplexCos(0, 0, zero.re, zero.im, zero.show);
  expect_value(zero, 1, 0);
  Outcome outcome;
  ComplexCos(0.7, -1.2, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, std::cos(0.7) * std::cosh(1.2), std::sin(0.7) * std::sinh(1.2));
}

TEST(Complex, TheTangentIsMadeOfTheCrossedSine) {
  Outcome sine_part;
  ComplexSin(0.7, 0.4, sine_part.re, sine_part.im, sine_part.show);
  Outcome cosine_part;
  ComplexCos(0.7, 0.4, cosine_part.re, cosine_part.im, cosine_part.show);
  Outcome quotient;
  ComplexDivide(sine_part.re, sine_part.im, cosine_part.re, cosine_part.im, quotient.re, quotient.im,
                quotient.show);
  Outcome outcome;
  ComplexTan(0.7, 0.4, outcome.re, outcome.im, outcome.show);
  EXPECT_EQ(outcome.re, quotient.re);
  EXPECT_EQ(outcome.im, quotient.im);
  Outcome real;
  ComplexTan(1, 0, real.re, real.im, real.show);
  expect_value(real, std::tan(1), 1);
}

TEST(Complex, TheHyperbolicFunctionsAreTheMathematicalOnes) {
  const double a = 0.7;
  const double b = -1.2;
  Outcome sinh;
  ComplexSinh(a, b, sinh.re, sinh.im, sinh.show);
  expect_value(sinh, std::sinh(a) * std::cos(b), std::cosh(a) * std::sin(b));
  Outcome cosh;
  ComplexCosh(a, b, cosh.re, cosh.im, cosh.show);
  expect_value(cosh, std::cosh(a) * std::cos(b), std::sinh(a) * std::sin(b));
  Outcome tanh;
  ComplexTanh(a, b, tanh.re, tanh.im, tanh.show);
  const double below = std::cosh(2 * a) + std::cos(2 * b);
  expect_value(tanh, std::sinh(2 * a) / below, std::sin(2 * b) / below);
}

TEST(Complex, FunctionsGoOnWithZerosBehindAFailedExponential) {
  Outcome cosine_part;
  ComplexCos(0, 1000, cosine_part.re, cosine_part.im, cosine_part.show);
  EXPECT_EQ(cosine_part.re, 0);
  EXPECT_EQ(cosine_part.im, 0);
  expect_messages(cosine_part, {invalid});
  Outcome sinh;
  ComplexSinh(1000, 0, sinh.re, sinh.im, sinh.show);
  EXPECT_EQ(sinh.re, 0);
  EXPECT_EQ(sinh.im, 0);
  expect_messages(sinh, {invalid});
  Outcome tanh;
  ComplexTanh(1000, 0, tanh.re, tanh.im, tanh.show);
  expect_untouched(tanh);
  expect_messages(tanh, {invalid, invalid});
}

TEST(Complex, TheReciprocalOfZeroIsAnUnrecoveredOverflow) {
  Outcome outcome;
  EXPECT_EQ(fault_of([&] { ComplexReciprocal(0, 0, outcome.re, outcome.im); }), 6);
  expect_untouched(outcome);
  Outcome value;
  ComplexReciprocal(3, 4, value.re, value.im);
  expect_value(value, 0.12, -0.16);
}

TEST(Complex, TheArgumentIsAPlainArcTangent) {
  Outcome outcome;
  ComplexArgRad(-1, -1, outcome.re, outcome.im, outcome.show);
  expect_value(outcome, pi / 4, 0);
  Outcome second_quadrant;
  ComplexArgRad(-1, 2, second_quadrant.re, second_quadrant.im, second_quadrant.show);
  expect_value(second_quadrant, -std::atan(2), 0);
}

TEST(Complex, AnArgumentOnTheImaginaryAxisEndsInSilence) {
  Outcome outcome;
  ComplexArgRad(0, 1, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {});
}

TEST(Complex, TheArgumentOfZeroTells) {
  Outcome outcome;
  ComplexArgRad(0, 0, outcome.re, outcome.im, outcome.show);
  expect_untouched(outcome);
  expect_messages(outcome, {probably_invalid});
  Outcome large;
  ComplexArgRad(1e-200, 1e200, large.re, large.im, large.show);
  expect_untouched(large);
  expect_messages(large, {probably_invalid});
}

TEST(Complex, TheArgumentInDegreesIsText) {
  struct Row {
    double a;
    double b;
    TextView degrees;
  };
  for (const auto& [a, b, degrees] :
       std::vector<Row>{{1, 0, u"0"}, {-1, -1, u"45"}, {1, -1, u"-45"}, {2, 1, u"26.565051177078"}}) {
    Outcome outcome;
    Text re = u"before";
    ComplexArgDeg(a, b, re, outcome.im, Regional{}, outcome.show);
    EXPECT_EQ(to_utf8(re), to_utf8(degrees));
    EXPECT_EQ(outcome.im, 0);
  }
}

TEST(Complex, DegreesFollowTheRegionalSeparator) {
  Outcome outcome;
  Text re;
  ComplexArgDeg(2, 1, re, outcome.im, Regional{u','}, outcome.show);
  EXPECT_EQ(to_utf8(re), "26,565051177078");
}

TEST(Complex, DegreesWithoutAQuotientLeaveTheOutputs) {
  Outcome on_axis;
  Text re = u"before";
  ComplexArgDeg(0, -2, re, on_axis.im, Regional{}, on_axis.show);
  EXPECT_EQ(re, u"before");
  EXPECT_EQ(on_axis.im, untouched);
  expect_messages(on_axis, {});
  Outcome of_zero;
  ComplexArgDeg(0, 0, re, of_zero.im, Regional{}, of_zero.show);
  EXPECT_EQ(re, u"before");
  EXPECT_EQ(of_zero.im, untouched);
  expect_messages(of_zero, {invalid});
}

}  // namespace
}  // namespace tarnmill
