#include "desktop/line_walk.h"

#include <algorithm>
#include <cmath>

namespace tarnmill::desktop {

namespace {

/// How far beyond the surface a line is followed to its own ends. Whatever starts within this is never cut,
/// so that it runs through exactly the pixels that its ends give it.
constexpr double margin = 1 << 20;

struct Ends {
  double x1, y1, x2, y2;
};

bool near(double value, int size) { return value >= -margin && value <= size + margin; }

/// Whether both values lie beyond the same side of a surface and its margin.
bool both_beyond(double one, double other, int size) {
  return std::max(one, other) < -margin || std::min(one, other) > size + margin;
}

/// Cuts a line no steeper than 1 to the surface and the margin around it, along x. `length` and `breadth` are
/// those along and across the line.
std::optional<Ends> cut_along(Ends ends, int length, int breadth) {
  if (both_beyond(ends.x1, ends.x2, length)) return std::nullopt;
  const double dx = ends.x2 - ends.x1;
  if (dx == 0) return std::nullopt;
  // As slope and offset, which lose nothing where the ends are too far away to be told from each other's
  // neighbours.
  const double slope = (ends.y2 - ends.y1) / dx;
  const double offset = (ends.y1 * ends.x2 - ends.y2 * ends.x1) / dx;
  const auto cut_end = [&](double& x, double& y) {
    if (near(x, length)) return;
    x = x < 0 ? -margin : length + margin;
    y = slope * x + offset;
  };
  cut_end(ends.x1, ends.y1);
  cut_end(ends.x2, ends.y2);
  if (both_beyond(ends.y1, ends.y2, breadth)) return std::nullopt;
  return ends;
}

std::optional<Ends> cut(const Ends& ends, int width, int height) {
  if (near(ends.x1, width) && near(ends.x2, width) && near(ends.y1, height) && near(ends.y2, height))
    return ends;
  if (std::abs(ends.x2 - ends.x1) >= std::abs(ends.y2 - ends.y1)) return cut_along(ends, width, height);
  const std::optional<Ends> turned = cut_along({ends.y1, ends.x1, ends.y2, ends.x2}, height, width);
  if (!turned) return std::nullopt;
  return Ends{turned->y1, turned->x1, turned->y2, turned->x2};
}

int nearest(double value) { return static_cast<int>(std::floor(value + 0.5)); }

}  // namespace

std::optional<PixelLine> pixel_line(double x1, double y1, double x2, double y2, int width, int height) {
  const std::optional<Ends> ends = cut({x1, y1, x2, y2}, width, height);
  if (!ends) return std::nullopt;
  return PixelLine{nearest(ends->x1), nearest(ends->y1), nearest(ends->x2), nearest(ends->y2)};
}

namespace detail {

int Walk::across(long long a) const {
  const long long length = a2 - a1;
  if (length == 0) return static_cast<int>(b1);
  const long long twice = 2 * (a - a1) * (b2 - b1) + length;
  const long long whole = 2 * length;
  const long long steps = twice >= 0 ? twice / whole : -((-twice + whole - 1) / whole);
  return static_cast<int>(b1 + steps);
}

}  // namespace detail

}  // namespace tarnmill::desktop
