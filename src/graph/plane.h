#pragma once

namespace tarnmill {

/// The plane of a plot on its surface: the origin in pixels, and the zoom in pixels per unit. y runs upwards
/// on the plane and downwards on the surface. Overflow where a result leaves the range.
struct Plane {
  float origin_x = 0;
  float origin_y = 0;
  double pixels_per_unit = 0;

  /// The column of a point, in pixels.
  [[nodiscard]] double column(double x) const;

  /// The row of a point, in pixels.
  [[nodiscard]] double row(double y) const;

  /// x at the left edge of the surface. Division-by-zero for a zoom of 0.
  [[nodiscard]] double left() const;

  /// x at the right edge of a surface of this width in pixels. Division-by-zero for a zoom of 0.
  [[nodiscard]] double right(float width) const;

  /// The whole part of the hundredths of the width, in pixels, that lie left of x.
  [[nodiscard]] double percent_of_width(double x, float width) const;
};

}  // namespace tarnmill
