#pragma once

#include "forms/control.h"

namespace tarnmill {

/// A command button: a caption or a picture, and a click.
class Button final : public Control {
 public:
  Button(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place} {}
  Button(Window& window, std::string_view name, tarnmill::Text caption, tarnmill::Text tooltip = {},
         Place place = Place::on_window)
      : Control{window, name, place} {
    Caption.start_as(std::move(caption));
    ToolTipText.start_as(std::move(tooltip));
  }

  Property<tarnmill::Text> Caption{*this, "Caption"};
  /// The name of the picture it shows, empty for none.
  Property<tarnmill::Text> Picture{*this, "Picture"};
};

}  // namespace tarnmill
