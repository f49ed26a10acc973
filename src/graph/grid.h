#pragma once

#include <vector>

#include "forms/color.h"

namespace tarnmill {

class PictureBox;
struct Plane;

enum class Direction { up, down };

/// Coordinates in pixels of the grid lines on one side of the origin: from `origin` up or down to `end`, in
/// steps of `pitch`. None when `end` lies on the other side. Of lines less than a pixel apart each pixel gets
/// one, at its whole number. None for a pitch of 0 or below, and for one too small to advance by.
[[nodiscard]] std::vector<double> grid_coordinates(double origin, double end, double pitch,
                                                   Direction direction);

/// Draws grid lines and, over them, the axes on top of whatever the surface holds. Overflow for a coordinate
/// beyond the range of Single.
void draw_grid(PictureBox& surface, const Plane& plane, Color color, Color axis_color);

}  // namespace tarnmill
