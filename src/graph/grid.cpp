#include "graph/grid.h"

#include <algorithm>

#include "engine/checked.h"
#include "forms/picture_box.h"
#include "graph/plane.h"

namespace tarnmill {

std::vector<double> grid_coordinates(double origin, double end, double pitch) {
  std::vector<double> coordinates;
  if (pitch <= 0 || origin + pitch == origin || end + pitch == end) return coordinates;
  // Lines closer than a pixel fill every pixel; each is drawn once.
  const double step = std::max(pitch, 1.0);
  const double direction = end < origin ? -1 : 1;
  for (double at = origin; direction * at <= direction * end; at += direction * step) {
    coordinates.push_back(at);
  }
  return coordinates;
}

void draw_grid(PictureBox& surface, const Plane& plane, Color color, Color axis_color) {
  const float width = surface.ScaleWidth();
  const float height = surface.ScaleHeight();
  const auto column = [&](double x, Color pen) { surface.Line(to_single(x), 0, to_single(x), height, pen); };
  const auto row = [&](double y, Color pen) { surface.Line(0, to_single(y), width, to_single(y), pen); };

  for (const float end : {width, 0.0F}) {
    for (const double x : grid_coordinates(plane.origin_x, end, plane.pixels_per_unit)) column(x, color);
  }
  // Rows run to the width as well; on the square surface that is the height.
  for (const float end : {width, 0.0F}) {
    for (const double y : grid_coordinates(plane.origin_y, end, plane.pixels_per_unit)) row(y, color);
  }
  column(plane.origin_x, axis_color);
  row(plane.origin_y, axis_color);
}

}  // namespace tarnmill
