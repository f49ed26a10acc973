#include "engine/function_table.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/checked.h"
#include "engine/evaluator.h"
#include "engine/power.h"
#include "engine/rounding.h"

namespace tarnmill {
namespace {

// A quarter turn in radians, as 2 * atn(1) gives it.
double quarter_turn() { return 2 * std::atan(1.0); }

double squared_plus(double x, double addend) { return add(multiply(x, x), addend); }

double one_minus_square(double x) { return add(1, multiply(x, negate(x))); }

// x to a power of odd denominator, with the sign of x kept and 0 for 0.
double odd_root(double x, double exponent) {
  if (x == 0) return 0;
  return x > 0 ? Power(x, exponent) : -Power(-x, exponent);
}

double nil(double x) { return x == 0 ? 0 : Power(std::fabs(x), 2.0 / 3); }

double stef(double x) { return multiply(multiply(10, sine(x)), cosine(x)); }

double arcsine(double x) { return arctangent(divide(x, square_root(one_minus_square(x)))); }

double arccosine(double x) {
  return add(arctangent(divide(negate(x), square_root(one_minus_square(x)))), quarter_turn());
}

// The common part of arc secant and arc cosecant: the angle whose sine is 1/x, seen from the far leg.
double secant_angle(double x) { return arctangent(divide(x, square_root(squared_plus(x, -1)))); }

void undefined(EvaluatorHost& host, double& result) {
  result = Evaluator::undefined_marker;
  host.Boje2();
}

// At a size of exactly 1 this one divides by zero, while its sister below is undefined there.
void arcsecant(double x, EvaluatorHost& host, double& result) {
  if (std::fabs(x) < 1) return undefined(host, result);
  result = add(secant_angle(x), SignOf(subtract(x, 1)) * quarter_turn());
  host.Boje3();
}

void arccosecant(double x, EvaluatorHost& host, double& result) {
  if (std::fabs(x) <= 1) return undefined(host, result);
  result = add(secant_angle(x), (SignOf(x) - 1) * quarter_turn());
  host.Boje3();
}

double exponentials_sum(double x) { return add(exponential(x), exponential(negate(x))); }

double exponentials_difference(double x) { return subtract(exponential(x), exponential(negate(x))); }

double half_log_of_ratio(double dividend, double divisor) {
  return natural_log(divide(dividend, divisor)) / 2;
}

double hyperbolic_arcsine(double x) { return natural_log(add(x, square_root(squared_plus(x, 1)))); }

double hyperbolic_arccosine(double x) { return natural_log(add(x, square_root(squared_plus(x, -1)))); }

double hyperbolic_arcsecant(double x) {
  return natural_log(divide(add(square_root(one_minus_square(x)), 1), x));
}

double hyperbolic_arccosecant(double x) {
  return natural_log(divide(add(multiply(SignOf(x), square_root(squared_plus(x, 1))), 1), x));
}

constexpr FunctionEntry of_argument(TextView name, double (*pure)(double)) { return {name, pure, nullptr}; }

constexpr FunctionEntry of_host(TextView name, void (*hosted)(double, EvaluatorHost&, double&)) {
  return {name, nullptr, hosted};
}

constexpr std::array table{
    of_argument(u"STEF", stef),
    of_argument(u"SIN", sine),
    of_argument(u"COS", cosine),
    of_argument(u"TAN", tangent),
    of_argument(u"COTAN", [](double x) { return divide(1, tangent(x)); }),
    of_argument(u"ATN", arctangent),
    of_argument(u"EXP", exponential),
    of_argument(u"LOG", [](double x) { return divide(natural_log(x), natural_log(10)); }),
    of_argument(u"LN", natural_log),
    of_argument(u"FIX", TruncOf),
    of_argument(u"INT", FloorOf),
    of_host(u"RND", [](double x, EvaluatorHost& host, double& result) { result = host.NextRandom(x); }),
    of_argument(u"SGN", [](double x) -> double { return SignOf(x); }),
    of_argument(u"ABS", [](double x) { return std::fabs(x); }),
    of_argument(u"SQR", square_root),
    of_argument(u"NIL", nil),
    of_argument(u"CBR", [](double x) { return odd_root(x, 1.0 / 3); }),
    of_argument(u"CBR2", [](double x) { return odd_root(x, -1.0 / 3); }),
    of_argument(u"QVR", [](double x) { return Power(x, 1.0 / 4); }),
    of_argument(u"PBR", [](double x) { return odd_root(x, 1.0 / 5); }),
    of_argument(u"CUB", [](double x) { return Power(x, 3); }),
    of_argument(u"BIN", [](double x) { return Power(x, 2); }),
    of_argument(u"QVD", [](double x) { return Power(x, 4); }),
    of_argument(u"PNT", [](double x) { return Power(x, 5); }),
    of_argument(u"ARCSIN", arcsine),
    of_argument(u"ARCCOS", arccosine),
    of_host(u"ARCSEC", arcsecant),
    of_host(u"ARCCOSEC", arccosecant),
    of_argument(u"ARCCOTAN", [](double x) { return add(arctangent(x), quarter_turn()); }),
    of_argument(u"SEC", [](double x) { return divide(1, cosine(x)); }),
    of_argument(u"COSEC", [](double x) { return divide(1, sine(x)); }),
    of_argument(u"HSIN", [](double x) { return exponentials_difference(x) / 2; }),
    of_argument(u"HCOS", [](double x) { return exponentials_sum(x) / 2; }),
    of_argument(u"HTAN", [](double x) { return divide(exponentials_difference(x), exponentials_sum(x)); }),
    of_argument(u"HSEC", [](double x) { return divide(2, exponentials_sum(x)); }),
    of_argument(u"HCOSEC", [](double x) { return divide(2, exponentials_difference(x)); }),
    of_argument(u"HCOTAN", [](double x) { return divide(exponentials_sum(x), exponentials_difference(x)); }),
    of_argument(u"HARCSIN", hyperbolic_arcsine),
    of_argument(u"HARCCOS", hyperbolic_arccosine),
    of_argument(u"N!", [](double x) { return Evaluator::factorial2(ToInteger(x)); }),
    of_argument(u"HARCTAN", [](double x) { return half_log_of_ratio(add(1, x), subtract(1, x)); }),
    of_argument(u"HARCSEC", hyperbolic_arcsecant),
    of_argument(u"HARCCOSEC", hyperbolic_arccosecant),
    of_argument(u"HARCCOTAN", [](double x) { return half_log_of_ratio(add(x, 1), subtract(x, 1)); }),
    of_host(u"TIMER",
            [](double, EvaluatorHost& host, double& result) { result = host.SecondsSinceMidnight(); }),
    of_host(u"YEAR", [](double, EvaluatorHost& host, double& result) { result = host.now().year; }),
    of_host(u"MONTH", [](double, EvaluatorHost& host, double& result) { result = host.now().month; }),
    of_host(u"DAY", [](double, EvaluatorHost& host, double& result) { result = host.now().day; }),
    of_host(u"WEEKDAY", [](double, EvaluatorHost& host, double& result) { result = host.now().weekday; }),
    of_host(u"HOUR", [](double, EvaluatorHost& host, double& result) { result = host.now().hour; }),
    of_host(u"MINUTE", [](double, EvaluatorHost& host, double& result) { result = host.now().minute; }),
    of_host(u"SECOND", [](double, EvaluatorHost& host, double& result) { result = host.now().second; }),
    of_argument(u"PI", [](double) { return 4 * std::atan(1.0); }),
    of_argument(u"E", [](double) { return 2.71828182845905; }),
};

}  // namespace

void FunctionEntry::call(double x, EvaluatorHost& host, double& result) const {
  if (pure != nullptr) {
    result = pure(x);
  } else {
    hosted(x, host, result);
  }
}

std::span<const FunctionEntry> function_table() { return table; }

const FunctionEntry* find_function(TextView name) {
  const auto* entry = std::ranges::find(table, name, &FunctionEntry::name);
  return entry == table.end() ? nullptr : entry;
}

}  // namespace tarnmill
