#include "graph/grid.h"

#include <algorithm>

#include "engine/checked.h"
#include "forms/picture_box.h"
#include "graph/plane.h"

namespace tarnmill {

std::vector<double> grid_coordinates(double origin, double end, double pitch, Direction direction) {
  std::vector<double> coordinates;
  if (pitch <= 0 || origin + pitch == origin || end + pitch == end) return coordinates;
  // Lines closer than a pixel fill every pixel; each is drawn once.
  const double step = std::max(pitch, 1.0);
  const double sign = direction == Direction::up ? 1 : -1;
  double at = origin;
  while (sign * at <= sign * end) {
    coordinates.push_back(at);
    at += sign * step;
  }
  return coordinates;
}

void draw_grid(PictureBox& surface, const Plane& plane, Color color, Color axis_color) {
  const float width = surface.ScaleWidth();
  const float height = surface.ScaleHeight();
  const auto column = [&](double x, Color pen) { surface.Line(to_single(x), 0, to_single(x), height, pen); };
  const auto row = [&](double y, Color pen) { surface.Line(0, to_single(y), width, to_single(y), pen); };

  // Rows run to the width as well; on the square surface that is the height.
  const auto both_ways = [&](double origin, const auto& draw) {
    for (const double at : grid_coordinates(origin, width, plane.pixels_per_unit, Direction::up))
      draw(at, color);
    for (const double at : grid_coordinates(origin, 0, plane.pixels_per_unit, Direction::down))
      draw(at, color);
  };
  both_ways(plane.origin_x, column);
  both_ways(plane.origin_y, row);
  column(plane.origin_x, axis_color);
  row(plane.origin_y, axis_color);
}

}  // namespace tarnmill
