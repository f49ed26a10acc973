#include "graph/plane.h"

#include "engine/checked.h"
#include "engine/rounding.h"

namespace tarnmill {

double Plane::column(double x) const { return add(origin_x, multiply(pixels_per_unit, x)); }

double Plane::row(double y) const { return add(origin_y, multiply(pixels_per_unit, negate(y))); }

double Plane::left() const { return divide(-origin_x, pixels_per_unit); }

double Plane::right(float width) const {
  return divide(to_single(subtract(width, origin_x)), pixels_per_unit);
}

double Plane::percent_of_width(double x, float width) const {
  const double before = negate(left());
  return FloorOf(divide(multiply(100, add(x, before)), add(before, right(width))));
}

}  // namespace tarnmill
