#pragma once

namespace tarnmill {

struct Plane;

/// The walk of the parameter K across the width of the surface, one step a pixel: from the left edge of the
/// plane to the right one, which is 401 points on 400 pixels at every zoom.
///
/// The step is added again and again, and its roundings add up: the values are those sums, and the end allows
/// for half a step, so that the last point is not lost to them.
class PlotWalk {
 public:
  /// `width` in pixels. Division-by-zero for a zoom of 0, Overflow.
  PlotWalk(const Plane& plane, float width);

  /// True when the walk is over. A zoom below 0 has no points.
  [[nodiscard]] bool at_end() const { return k_ > end_ + step_ / 2; }

  /// The present value of K.
  [[nodiscard]] double k() const { return k_; }

  /// Goes on by one step. A step too small to change K ends the walk.
  void advance();

 private:
  double k_;
  double end_;
  double step_;
};

}  // namespace tarnmill
