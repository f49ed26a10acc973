#pragma once

#include "forms/color.h"
#include "forms/control.h"

namespace tarnmill {

/// A text on the window that nobody types into. Many hold state of the program in their caption.
class Label final : public Control {
 public:
  Label(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place} {}
  Label(Window& window, std::string_view name, tarnmill::Text caption, Place place = Place::on_window)
      : Control{window, name, place} {
    Caption.start_as(std::move(caption));
  }

  Property<tarnmill::Text> Caption{*this, "Caption"};
  Property<Color> ForeColor{*this, "ForeColor"};
  Property<Color> BackColor{*this, "BackColor"};

  Event<> Change{*this, "Change"};

 protected:
  void property_changed(const PropertyBase& property) override {
    if (&property == &Caption) Change.raise();
  }
};

}  // namespace tarnmill
