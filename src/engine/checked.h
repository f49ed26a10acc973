#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <utility>

#include "engine/fault.h"

namespace tarnmill {

// Double arithmetic in which no infinity and no not-a-number value leaves an operation. Arithmetic on Single
// is the same operation on the widened values followed by to_single, which rounds exactly as a 32-bit
// operation.

/// The value itself when it is finite; otherwise Overflow.
double finite(double value);

/// a + b; Overflow.
double add(double a, double b);

/// a - b; Overflow.
double subtract(double a, double b);

/// a * b; Overflow.
double multiply(double a, double b);

/// a / b; Division-by-zero for a non-zero a over 0, Overflow for 0/0 and for a result beyond the range.
double divide(double a, double b);

/// -a; Overflow when a is not finite.
double negate(double a);

/// Sine of an angle in radians.
double sine(double radians);

/// Cosine of an angle in radians.
double cosine(double radians);

/// Tangent of an angle in radians; beside a pole a very large number.
double tangent(double radians);

/// The angle in radians, between minus and plus a quarter turn, whose tangent is given.
double arctangent(double value);

/// e to the given power; Overflow above about 709.78.
double exponential(double value);

/// Natural logarithm; Invalid-argument at or below 0.
double natural_log(double value);

/// Square root; Invalid-argument below 0.
double square_root(double value);

/// The value as Single, rounded to nearest; Overflow beyond its range.
float to_single(double value);

/// Whole-number division: both operands are rounded to Long (half to even), the quotient's fraction is
/// dropped. Overflow when an operand or the quotient does not fit, Division-by-zero.
std::int32_t whole_divide(double a, double b);

/// Remainder of whole_divide, with the sign of the dividend. Overflow when an operand does not fit,
/// Division-by-zero.
std::int32_t Mod(double a, double b);

/// A whole number of fixed width whose range is checked after every operation; leaving it raises Overflow.
template <std::signed_integral Stored>
class CheckedWhole {
 public:
  constexpr CheckedWhole() = default;

  /// Takes any whole number; Overflow when it does not fit.
  template <std::integral Given>
  // Implicit, so that counters read like plain ones: `i = i + 1`.
  constexpr CheckedWhole(Given value)  // NOLINT(google-explicit-constructor)
      : value_{narrowed(value)} {}

  /// A fraction is rounded by ToInteger or ToLong, never dropped on the way in.
  template <std::floating_point Given>
  CheckedWhole(Given) = delete;

  /// The plain number.
  [[nodiscard]] constexpr Stored value() const { return value_; }

  /// The plain number.
  constexpr explicit operator Stored() const { return value_; }

  friend constexpr CheckedWhole operator+(CheckedWhole a, CheckedWhole b) {
    return CheckedWhole{a.wide() + b.wide()};
  }
  friend constexpr CheckedWhole operator-(CheckedWhole a, CheckedWhole b) {
    return CheckedWhole{a.wide() - b.wide()};
  }
  friend constexpr CheckedWhole operator*(CheckedWhole a, CheckedWhole b) {
    return CheckedWhole{a.wide() * b.wide()};
  }
  friend constexpr CheckedWhole operator-(CheckedWhole a) { return CheckedWhole{-a.wide()}; }
  constexpr CheckedWhole& operator+=(CheckedWhole other) { return *this = *this + other; }
  constexpr CheckedWhole& operator-=(CheckedWhole other) { return *this = *this - other; }
  constexpr CheckedWhole& operator*=(CheckedWhole other) { return *this = *this * other; }
  constexpr CheckedWhole& operator++() { return *this += 1; }
  constexpr CheckedWhole& operator--() { return *this -= 1; }
  friend constexpr bool operator==(CheckedWhole, CheckedWhole) = default;
  friend constexpr auto operator<=>(CheckedWhole a, CheckedWhole b) { return a.value_ <=> b.value_; }

 private:
  static_assert(sizeof(Stored) < sizeof(std::int64_t), "products are formed in 64 bits");

  template <std::integral Given>
  static constexpr Stored narrowed(Given value) {
    if (!std::in_range<Stored>(value)) throw Fault{FaultCode::Overflow};
    return static_cast<Stored>(value);
  }

  [[nodiscard]] constexpr std::int64_t wide() const { return value_; }

  Stored value_ = 0;
};

/// 16-bit whole number: counters, text positions, digit values.
using Integer = CheckedWhole<std::int16_t>;

/// 32-bit whole number.
using Long = CheckedWhole<std::int32_t>;

}  // namespace tarnmill
