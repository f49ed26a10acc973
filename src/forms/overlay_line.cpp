#include "forms/overlay_line.h"

#include "forms/picture_box.h"

namespace tarnmill {

OverlayLine::OverlayLine(Window& window, PictureBox& surface, std::string_view name, Color color)
    : Control{window, name, Place::parked}, surface_{surface} {
  Visible.start_as(false);
  BorderColor.start_as(color);
  surface.adopt(*this);
}

}  // namespace tarnmill
