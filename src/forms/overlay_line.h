#pragma once

#include "forms/color.h"
#include "forms/control.h"

namespace tarnmill {

class PictureBox;

/// A line that floats above a surface and is no part of its raster. Ends in pixels of the surface.
class OverlayLine final : public Control {
 public:
  OverlayLine(Window& window, PictureBox& surface, std::string_view name, Color color = 0);

  Property<float> X1{*this, "X1"};
  Property<float> Y1{*this, "Y1"};
  Property<float> X2{*this, "X2"};
  Property<float> Y2{*this, "Y2"};
  Property<Color> BorderColor{*this, "BorderColor"};

  [[nodiscard]] PictureBox& surface() const { return surface_; }

 private:
  PictureBox& surface_;
};

}  // namespace tarnmill
