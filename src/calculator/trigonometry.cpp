#include "calculator/trigonometry.h"

#include <algorithm>

#include "engine/checked.h"

namespace tarnmill {

namespace {

constexpr auto radians = AngleUnit::radians;
constexpr auto degrees = AngleUnit::degrees;
constexpr auto both = std::nullopt;
constexpr auto refused = std::nullopt;

constexpr double quarter_pi = 0.785398163397448;
constexpr double half_pi = 1.5707963267949;
constexpr double three_half_pi = 4.71238898038469;
constexpr double two_pi = 6.28318530717958;

constexpr SpecialAnswer sines_of_radians[] = {
    {0, radians, 0},      {half_pi, radians, 1}, {shown_pi, radians, 0}, {three_half_pi, radians, -1},
    {two_pi, radians, 0},
};

constexpr SpecialAnswer sines_of_degrees[] = {
    {0, degrees, 0}, {90, degrees, 1}, {180, degrees, 0}, {270, degrees, -1}, {360, degrees, 0},
};

constexpr SpecialAnswer cosines_of_radians[] = {
    {0, radians, 1},      {half_pi, radians, 0}, {shown_pi, radians, -1}, {three_half_pi, radians, 0},
    {two_pi, radians, 1},
};

constexpr SpecialAnswer cosines_of_degrees[] = {
    {0, degrees, 1}, {90, degrees, 0}, {180, degrees, -1}, {270, degrees, 0}, {360, degrees, 1},
};

constexpr SpecialAnswer tangents_of_radians[] = {
    {quarter_pi, both, 1},
    {half_pi, radians, refused},
    {-half_pi, radians, refused},
    {three_half_pi, radians, refused},
    {0, radians, 0},
    {shown_pi, radians, 0},
    {two_pi, radians, 0},
};

constexpr SpecialAnswer tangents_of_degrees[] = {
    {45, both, 1},   {90, degrees, refused}, {-90, degrees, refused}, {270, degrees, refused},
    {0, degrees, 0}, {180, degrees, 0},      {360, degrees, 0},
};

// The arcsine of -1 answers with the angle of the full circle, not with a negative one.
constexpr SpecialAnswer arcsines[] = {
    {-1, degrees, 270},           {1, degrees, 90},      {0, degrees, 0},
    {-1, radians, three_half_pi}, {1, radians, half_pi}, {0, radians, 0},
};

constexpr SpecialAnswer arccosines[] = {
    {0, degrees, 90}, {0, radians, half_pi}, {1, degrees, 0},
    {1, radians, 0},  {-1, degrees, 180},    {-1, radians, shown_pi},
};

constexpr SpecialAnswer arctangents[] = {
    {0, both, 0},
    {-1, degrees, -45},
    {1, degrees, 45},
    {1, radians, quarter_pi},
};

// Degrees in both units.
constexpr SpecialAnswer arccotangents[] = {
    {0, both, 90},
    {-1, both, 180},
};

double in_unit(double angle, AngleUnit unit) {
  return unit == AngleUnit::degrees ? multiply(angle, 360 / two_pi) : angle;
}

/// The square root of 1 - x * x.
double leg(double x) { return square_root(add(multiply(negate(x), x), 1)); }

double right_angle() { return multiply(2, arctangent(1)); }

}  // namespace

double radians_of(double angle) { return divide(multiply(angle, two_pi), 360); }

double degrees_of(double angle) { return divide(multiply(angle, 360), two_pi); }

const SpecialAnswer* TrigonometricKey::find(double value, AngleUnit unit) const {
  const auto found = std::find_if(special.begin(), special.end(), [&](const SpecialAnswer& each) {
    return each.value == value && each.unit.value_or(unit) == unit;
  });
  return found == special.end() ? nullptr : &*found;
}

constinit const TrigonometricKey sine_of_radians{sines_of_radians,
                                                 [](double x, AngleUnit) { return sine(x); }};

constinit const TrigonometricKey sine_of_degrees{sines_of_degrees,
                                                 [](double x, AngleUnit) { return sine(radians_of(x)); }};

constinit const TrigonometricKey cosine_of_radians{cosines_of_radians,
                                                   [](double x, AngleUnit) { return cosine(x); }};

constinit const TrigonometricKey cosine_of_degrees{cosines_of_degrees,
                                                   [](double x, AngleUnit) { return cosine(radians_of(x)); }};

constinit const TrigonometricKey tangent_of_radians{tangents_of_radians,
                                                    [](double x, AngleUnit) { return tangent(x); }};

constinit const TrigonometricKey tangent_of_degrees{
    tangents_of_degrees, [](double x, AngleUnit) { return tangent(radians_of(x)); }};

constinit const TrigonometricKey cotangent_of_radians{
    {}, [](double x, AngleUnit) { return divide(1, tangent(x)); }};

constinit const TrigonometricKey cotangent_of_degrees{
    {}, [](double x, AngleUnit) { return divide(1, tangent(radians_of(x))); }};

constinit const TrigonometricKey arcsine{
    arcsines, [](double x, AngleUnit unit) { return in_unit(arctangent(divide(x, leg(x))), unit); }};

constinit const TrigonometricKey arccosine{arccosines, [](double x, AngleUnit unit) {
                                             const double angle = arctangent(divide(negate(x), leg(x)));
                                             return in_unit(add(angle, right_angle()), unit);
                                           }};

constinit const TrigonometricKey arctangent_key{
    arctangents, [](double x, AngleUnit unit) { return in_unit(arctangent(x), unit); }};

// The arctangent is added where the identity would take it away.
constinit const TrigonometricKey arccotangent{
    arccotangents, [](double x, AngleUnit unit) { return in_unit(add(arctangent(x), right_angle()), unit); }};

}  // namespace tarnmill
