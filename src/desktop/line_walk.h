#pragma once

#include <optional>

namespace tarnmill::desktop {

/// A line between two pixels.
struct PixelLine {
  int x1, y1, x2, y2;
};

/// The pixels nearest to the ends of a line given in fractions of a pixel, halves counting upwards. A line
/// that reaches far beyond a surface of `width` by `height` is cut where it does; empty when it never comes
/// near.
[[nodiscard]] std::optional<PixelLine> pixel_line(double x1, double y1, double x2, double y2, int width,
                                                  int height);

/// Calls `set` with each pixel of a line that lies on a surface of `width` by `height`, both ends included:
/// one pixel for each step along the longer side. The order of the ends makes no difference to the pixels.
template <class Set>
void walk_line(PixelLine line, int width, int height, Set set);

namespace detail {

/// A line as steps along its longer axis: `a` counts along it, `b` across.
struct Walk {
  long long a1, b1, a2, b2;

  /// The place across at `a`, rounded to the nearest, halves upwards.
  [[nodiscard]] int across(long long a) const;
};

}  // namespace detail

template <class Set>
void walk_line(PixelLine line, int width, int height, Set set) {
  const long long dx = static_cast<long long>(line.x2) - line.x1;
  const long long dy = static_cast<long long>(line.y2) - line.y1;
  const bool steep = (dy < 0 ? -dy : dy) > (dx < 0 ? -dx : dx);
  detail::Walk walk = steep ? detail::Walk{line.y1, line.x1, line.y2, line.x2}
                            : detail::Walk{line.x1, line.y1, line.x2, line.y2};
  if (walk.a1 > walk.a2) walk = {walk.a2, walk.b2, walk.a1, walk.b1};
  const long long end_a = steep ? height : width;
  const int end_b = steep ? width : height;
  const long long first = walk.a1 < 0 ? 0 : walk.a1;
  const long long last = walk.a2 >= end_a ? end_a - 1 : walk.a2;
  for (long long a = first; a <= last; ++a) {
    const int b = walk.across(a);
    if (b < 0 || b >= end_b) continue;
    if (steep) {
      set(b, static_cast<int>(a));
    } else {
      set(static_cast<int>(a), b);
    }
  }
}

}  // namespace tarnmill::desktop
