#pragma once

#include "forms/control.h"

namespace tarnmill {

/// A picture that takes the mouse. It shows the picture of the name it holds.
class Image final : public Control {
 public:
  Image(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place} {}
  Image(Window& window, std::string_view name, tarnmill::Text picture, tarnmill::Text tooltip = {},
        Place place = Place::on_window)
      : Control{window, name, place} {
    Picture.start_as(std::move(picture));
    ToolTipText.start_as(std::move(tooltip));
  }

  Property<tarnmill::Text> Picture{*this, "Picture"};
};

}  // namespace tarnmill
