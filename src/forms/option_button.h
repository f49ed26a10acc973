#pragma once

#include "forms/control.h"

namespace tarnmill {

/// One choice of several. Setting it on turns the window's others of the same group off; a person's click
/// turns it on. A new value of True raises Click, as does a click on one that is on already.
class OptionButton final : public Control {
 public:
  OptionButton(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place} {}

  Property<tarnmill::Text> Caption{*this, "Caption"};
  Property<bool> Value{*this, "Value"};

  void press() override;

 protected:
  void property_changed(const PropertyBase& property) override;
};

}  // namespace tarnmill
