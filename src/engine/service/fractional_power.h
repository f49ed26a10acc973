#pragma once

#include <span>

#include "engine/text.h"

namespace tarnmill {

/// A power whose exponent is a fixed fraction in lowest terms, under the name that the rewriting chain gives
/// it.
struct FractionalPower {
  TextView name;
  int numerator;
  int denominator;

  /// x to the fraction. With an odd denominator a negative x has a value, which takes its sign from the
  /// parity of the numerator; with an even one it is an Invalid-argument. 0 to a negative fraction is an
  /// Invalid-argument as well. Overflow beyond the range.
  [[nodiscard]] double call(double x) const;
};

/// All fractional powers that have a name of their own.
std::span<const FractionalPower> fractional_powers();

}  // namespace tarnmill
