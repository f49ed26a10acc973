#include "complex/complex.h"

#include <cmath>
#include <concepts>

#include "engine/checked.h"
#include "engine/number_text.h"
#include "engine/power.h"

namespace tarnmill {
namespace {

constexpr TextView probably_invalid = u"Owerflow. Probably invalid input.";
constexpr TextView invalid = u"Owerflow.\r\nInvalid input.";

// The degrees of a half turn go with a pi of fifteen digits; the logarithm has the full one.
constexpr double short_pi = 3.14159265358979;

struct Pair {
  double re = 0;
  double im = 0;
};

// Runs the steps up to the first fault and shows `words` when that is an Overflow.
template <std::invocable Steps>
void recovering(TextView words, const MessageSink& show, Steps&& steps) {
  try {
    std::forward<Steps>(steps)();
  } catch (const Fault& fault) {
    if (!fault.is(FaultCode::Overflow)) return;
    show(MessageBox{.text = Text{words}, .icon = MessageIcon::information});
  }
}

double squared_magnitude(double a, double b) { return add(Power(a, 2), Power(b, 2)); }

Pair exponential_of(double a, double b, const MessageSink& show) {
  Pair result;
  ComplexExp(a, b, result.re, result.im, show);
  return result;
}

Pair product(double a, double b, double c, double d, const MessageSink& show) {
  Pair result;
  ComplexMultiply(a, b, c, d, result.re, result.im, show);
  return result;
}

Pair sum(const Pair& left, const Pair& right) {
  Pair result;
  ComplexAdd(left.re, left.im, right.re, right.im, result.re, result.im);
  return result;
}

Pair difference(const Pair& left, const Pair& right) {
  Pair result;
  ComplexSubtract(left.re, left.im, right.re, right.im, result.re, result.im);
  return result;
}

Pair logarithm(double a, double b) {
  Pair result;
  ComplexLn(a, b, result.re, result.im);
  return result;
}

// The two exponentials that the functions of an angle or of its like are made of.
struct Exponentials {
  Pair first;
  Pair second;
};

// Of i z and of -i z.
Exponentials circular(double a, double b, const MessageSink& show) {
  const Pair turned = product(a, b, 0, 1, show);
  const Pair first = exponential_of(turned.re, turned.im, show);
  const Pair turned_back = product(a, b, 0, -1, show);
  const Pair second = exponential_of(turned_back.re, turned_back.im, show);
  return {first, second};
}

// Of z and of -z.
Exponentials hyperbolic(double a, double b, const MessageSink& show) {
  const Pair first = exponential_of(a, b, show);
  const Pair second = exponential_of(negate(a), negate(b), show);
  return {first, second};
}

// The angle of a number on neither axis. One formula for all quadrants, which gives the third a value below 0
// and the fourth one near a whole turn.
double angle_off_the_axes(double a, double b, double pi) {
  const double t = arctangent(std::fabs(divide(b, a)));
  const double area = multiply(a, b);
  const double slope = divide(multiply(t, area), std::fabs(area));
  const double left_half = multiply(pi / 2, add(1, divide(negate(a), std::fabs(a))));
  const double lower_half =
      multiply(divide(multiply(pi, a), std::fabs(a)), add(1, divide(negate(b), std::fabs(b))));
  return add(add(slope, left_half), lower_half);
}

double angle(double a, double b, double pi) {
  if (b == 0) return a >= 0 ? 0 : pi;
  if (a == 0) return b > 0 ? pi / 2 : pi * 3 / 2;
  return angle_off_the_axes(a, b, pi);
}

}  // namespace

void ComplexAdd(double a, double b, double c, double d, double& re, double& im) {
  re = add(a, c);
  im = add(b, d);
}

void ComplexSubtract(double a, double b, double c, double d, double& re, double& im) {
  re = subtract(a, c);
  im = subtract(b, d);
}

void ComplexMultiply(double a, double b, double c, double d, double& re, double& im,
                     const MessageSink& show) {
  recovering(probably_invalid, show, [&] {
    re = subtract(multiply(a, c), multiply(b, d));
    im = add(multiply(a, d), multiply(b, c));
  });
}

void ComplexDivide(double a, double b, double c, double d, double& re, double& im, const MessageSink& show) {
  recovering(invalid, show, [&] {
    const auto [p, q] = product(a, b, c, negate(d), show);
    const double m = squared_magnitude(c, d);
    re = divide(p, m);
    im = divide(q, m);
  });
}

void ComplexAbs(double a, double b, double& result) { result = square_root(squared_magnitude(a, b)); }

void ComplexExp(double a, double b, double& re, double& im, const MessageSink& show) {
  recovering(invalid, show, [&] {
    re = multiply(exponential(a), cosine(b));
    im = multiply(exponential(a), sine(b));
  });
}

void ComplexLn(double a, double b, double& re, double& im) {
  const double pi = std::atan(1.0) * 4;
  double m = 0;
  ComplexAbs(a, b, m);
  re = m == 0 ? 0 : natural_log(m);
  im = angle(a, b, pi);
}

void ComplexPower(double a, double b, double c, double d, double& re, double& im, const MessageSink& show) {
  const auto [l, m] = logarithm(a, b);
  const Pair exponent = product(c, d, l, m, show);
  ComplexExp(exponent.re, exponent.im, re, im, show);
}

void ComplexLog(double a, double b, double c, double d, double& re, double& im, const MessageSink& show) {
  const Pair of_number = logarithm(a, b);
  const Pair of_base = logarithm(c, d);
  ComplexDivide(of_number.re, of_number.im, of_base.re, of_base.im, re, im, show);
}

// The second exponential is taken conjugate, and the quotient is stored crossed.
void ComplexSin(double a, double b, double& re, double& im, const MessageSink& show) {
  const auto [first, second] = circular(a, b, show);
  const Pair s = sum(first, {second.re, negate(second.im)});
  ComplexDivide(s.re, s.im, 2, 0, im, re, show);
}

void ComplexCos(double a, double b, double& re, double& im, const MessageSink& show) {
  const auto [first, second] = circular(a, b, show);
  const Pair s = sum(first, second);
  ComplexDivide(s.re, s.im, 2, 0, re, im, show);
}

void ComplexTan(double a, double b, double& re, double& im, const MessageSink& show) {
  Pair sine_part;
  ComplexSin(a, b, sine_part.re, sine_part.im, show);
  Pair cosine_part;
  ComplexCos(a, b, cosine_part.re, cosine_part.im, show);
  ComplexDivide(sine_part.re, sine_part.im, cosine_part.re, cosine_part.im, re, im, show);
}

void ComplexSinh(double a, double b, double& re, double& im, const MessageSink& show) {
  const auto [first, second] = hyperbolic(a, b, show);
  const Pair s = difference(first, second);
  ComplexDivide(s.re, s.im, 2, 0, re, im, show);
}

void ComplexCosh(double a, double b, double& re, double& im, const MessageSink& show) {
  const auto [first, second] = hyperbolic(a, b, show);
  const Pair s = sum(first, second);
  ComplexDivide(s.re, s.im, 2, 0, re, im, show);
}

void ComplexTanh(double a, double b, double& re, double& im, const MessageSink& show) {
  const auto [first, second] = hyperbolic(a, b, show);
  const Pair s = difference(first, second);
  const Pair t = sum(first, second);
  ComplexDivide(s.re, s.im, t.re, t.im, re, im, show);
}

void ComplexReciprocal(double a, double b, double& re, double& im) {
  re = divide(a, squared_magnitude(a, b));
  im = divide(multiply(b, -1), squared_magnitude(a, b));
}

void ComplexArgRad(double a, double b, double& re, double& im, const MessageSink& show) {
  recovering(probably_invalid, show, [&] {
    re = arctangent(divide(b, a));
    im = 0;
  });
}

void ComplexArgDeg(double a, double b, Text& re, double& im, const Regional& regional,
                   const MessageSink& show) {
  recovering(invalid, show, [&] {
    re = NumberToText(multiply(180 / short_pi, arctangent(divide(b, a))), regional);
    im = 0;
  });
}

}  // namespace tarnmill
