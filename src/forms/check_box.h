#pragma once

#include <cstdint>

#include "forms/control.h"

namespace tarnmill {

/// A box to tick: 0 off, 1 on. A new value raises Click, whoever sets it.
class CheckBox final : public Control {
 public:
  CheckBox(Window& window, std::string_view name, tarnmill::Text caption = {}, Place place = Place::on_window)
      : Control{window, name, place} {
    Caption.start_as(std::move(caption));
  }

  Property<tarnmill::Text> Caption{*this, "Caption"};
  Property<std::int16_t> Value{*this, "Value"};

  void press() override { Value = Value == 0 ? std::int16_t{1} : std::int16_t{0}; }

 protected:
  void property_changed(const PropertyBase& property) override {
    if (&property != &Value) return;
    // True, which is -1, ticks it as well.
    if (Value < 0) Value.start_as(1);
    Click.raise();
  }
};

}  // namespace tarnmill
