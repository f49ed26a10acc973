#pragma once

#include "forms/control.h"

namespace tarnmill {

/// A titled group of controls that shows and hides as one.
class Frame final : public Control {
 public:
  Frame(Window& window, std::string_view name, tarnmill::Text caption = {}, Place place = Place::on_window)
      : Control{window, name, place} {
    Caption.start_as(std::move(caption));
  }

  Property<tarnmill::Text> Caption{*this, "Caption"};
};

}  // namespace tarnmill
