#pragma once

#include "forms/control.h"

namespace tarnmill {

/// The fault of a value that a property can't take.
inline constexpr int fault_invalid_property_value = 380;

/// A bar that shows how far a task has come: Value between Min and Max.
class ProgressBar final : public Control {
 public:
  ProgressBar(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place} {}

  Property<double> Min{*this, "Min", 0};
  Property<double> Max{*this, "Max", 100};
  Property<double> Value{*this, "Value", 0};

  /// Sets Value. Raises fault 380 for one outside of Min to Max, and leaves the bar as it was.
  void advance_to(double value);
};

}  // namespace tarnmill
