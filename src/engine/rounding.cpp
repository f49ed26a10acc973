#include "engine/rounding.h"

#include <cmath>
#include <limits>

#include "engine/checked.h"
#include "engine/number_text.h"

namespace tarnmill {
namespace {

// From here on the steps between neighbouring values are whole numbers.
constexpr double first_without_fraction = 0x1p52;

double half_to_even(double x) { return std::nearbyint(x); }

template <typename Whole>
Whole nearest(double x) {
  const double rounded = half_to_even(x);
  const bool fits = rounded >= double{std::numeric_limits<Whole>::min()} &&
                    rounded <= double{std::numeric_limits<Whole>::max()};
  if (!fits) throw Fault{FaultCode::Overflow};
  return static_cast<Whole>(rounded);
}

}  // namespace

double RoundTo(double x, std::int32_t digits) {
  if (digits < 0) throw Fault{FaultCode::InvalidArgument};
  if (!(std::fabs(x) < first_without_fraction)) return x;
  const double scale = finite(std::pow(10.0, digits));
  return divide(half_to_even(multiply(x, scale)), scale);
}

double RoundTo(TextView text, std::int32_t digits, const Regional& regional) {
  return RoundTo(NumberFromTextStrict(text, regional), digits);
}

std::int16_t ToInteger(double x) { return nearest<std::int16_t>(x); }

std::int16_t ToInteger(TextView text, const Regional& regional) {
  return ToInteger(NumberFromTextStrict(text, regional));
}

std::int32_t ToLong(double x) { return nearest<std::int32_t>(x); }

std::int32_t ToLong(TextView text, const Regional& regional) {
  return ToLong(NumberFromTextStrict(text, regional));
}

double FloorOf(double x) { return finite(std::floor(x)); }

double TruncOf(double x) { return finite(std::trunc(x)); }

std::int16_t SignOf(double x) {
  if (x > 0) return 1;
  return static_cast<std::int16_t>(x < 0 ? -1 : 0);
}

}  // namespace tarnmill
