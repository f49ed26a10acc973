#pragma once

#include "forms/control.h"

namespace tarnmill {

/// A bar that shows how far a task has come: Value between Min and Max.
class ProgressBar final : public Control {
 public:
  ProgressBar(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place} {}

  Property<double> Min{*this, "Min", 0};
  Property<double> Max{*this, "Max", 100};
  Property<double> Value{*this, "Value", 0};
};

}  // namespace tarnmill
