#pragma once

#include <optional>
#include <span>

namespace tarnmill {

/// Pi with the digits of the display.
inline constexpr double shown_pi = 3.14159265358979;

/// The unit in which a key takes or gives an angle.
enum class AngleUnit { radians, degrees };

/// What a key answers to one exact value.
struct SpecialAnswer {
  double value;
  /// The unit in which it holds; empty for both.
  std::optional<AngleUnit> unit;
  /// Empty for a value that is refused.
  std::optional<double> result;
};

/// A trigonometric key. Its special answers are exact where the function would leave a residue, and their
/// values have the digits that the display shows.
struct TrigonometricKey {
  /// In the order in which they are looked for; none for a key that always computes.
  std::span<const SpecialAnswer> special;
  /// The answer to any other value. Raises the faults of its arithmetic.
  double (*general)(double value, AngleUnit unit);

  /// The first special answer to this value in this unit, or null.
  [[nodiscard]] const SpecialAnswer* find(double value, AngleUnit unit) const;
};

/// Keys that take an angle, named for the unit they take.
extern const TrigonometricKey sine_of_radians;
extern const TrigonometricKey sine_of_degrees;
extern const TrigonometricKey cosine_of_radians;
extern const TrigonometricKey cosine_of_degrees;
extern const TrigonometricKey tangent_of_radians;
extern const TrigonometricKey tangent_of_degrees;
extern const TrigonometricKey cotangent_of_radians;
extern const TrigonometricKey cotangent_of_degrees;

/// Keys that give an angle in the unit asked for.
extern const TrigonometricKey arcsine;
extern const TrigonometricKey arccosine;
extern const TrigonometricKey arctangent_key;
extern const TrigonometricKey arccotangent;

/// An angle in degrees as radians, by the constant of the display: angle * 6.28318530717958 / 360. Raises
/// Overflow.
[[nodiscard]] double radians_of(double angle);

/// An angle in radians as degrees, by angle * 360 / 6.28318530717958. Raises Overflow.
[[nodiscard]] double degrees_of(double angle);

}  // namespace tarnmill
