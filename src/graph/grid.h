#pragma once

#include <vector>

#include "forms/color.h"

namespace tarnmill {

class PictureBox;
struct Plane;

/// Coordinates in pixels of the grid lines on one side of the origin: from `origin` to `end`, which may lie
/// on either side of it, in steps of `pitch`. Of lines less than a pixel apart each pixel gets one, at its
/// whole number. None for a pitch of 0 or below, and for one too small to advance by.
[[nodiscard]] std::vector<double> grid_coordinates(double origin, double end, double pitch);

/// Draws grid lines and, over them, the axes on top of whatever the surface holds. Overflow for a coordinate
/// beyond the range of Single.
void draw_grid(PictureBox& surface, const Plane& plane, Color color, Color axis_color);

}  // namespace tarnmill
