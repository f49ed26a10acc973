#include "engine/checked.h"

#include <cmath>

#include "engine/rounding.h"

namespace tarnmill {

double finite(double value) {
  if (!std::isfinite(value)) throw Fault{FaultCode::Overflow};
  return value;
}

double add(double a, double b) { return finite(a + b); }

double subtract(double a, double b) { return finite(a - b); }

double multiply(double a, double b) { return finite(a * b); }

double divide(double a, double b) {
  if (b != 0) return finite(a / b);
  throw Fault{a == 0 || std::isnan(a) ? FaultCode::Overflow : FaultCode::DivisionByZero};
}

double negate(double a) { return finite(-a); }

double sine(double radians) { return finite(std::sin(radians)); }

double cosine(double radians) { return finite(std::cos(radians)); }

double tangent(double radians) { return finite(std::tan(radians)); }

double arctangent(double value) { return finite(std::atan(value)); }

double exponential(double value) { return finite(std::exp(value)); }

double natural_log(double value) {
  if (value <= 0) throw Fault{FaultCode::InvalidArgument};
  return finite(std::log(value));
}

double square_root(double value) {
  if (value < 0) throw Fault{FaultCode::InvalidArgument};
  return finite(std::sqrt(value));
}

float to_single(double value) {
  // Half a step above the greatest Single still rounds down to it; the conversion beyond is not defined.
  constexpr double first_beyond = 0x1.ffffffp127;
  if (!(std::fabs(value) < first_beyond)) throw Fault{FaultCode::Overflow};
  return static_cast<float>(value);
}

namespace {

struct Operands {
  std::int64_t dividend;
  std::int64_t divisor;
};

Operands whole_operands(double a, double b) {
  const Operands operands{ToLong(a), ToLong(b)};
  if (operands.divisor == 0) throw Fault{FaultCode::DivisionByZero};
  return operands;
}

}  // namespace

std::int32_t whole_divide(double a, double b) {
  const auto [dividend, divisor] = whole_operands(a, b);
  return Long{dividend / divisor}.value();
}

std::int32_t Mod(double a, double b) {
  const auto [dividend, divisor] = whole_operands(a, b);
  return static_cast<std::int32_t>(dividend % divisor);
}

}  // namespace tarnmill
