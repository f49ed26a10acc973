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
  /// Between Min and Max; fault 380 for a value outside of them, which leaves the bar as it was.
  ComputedProperty Value{*this, "Value", [this] { return Variant{value_}; },
                         [this](const Variant& value) { advance_to(value.to_number(regional())); }};

  [[nodiscard]] double value() const { return value_; }
  /// Sets Value.
  void advance_to(double value);

 private:
  double value_ = 0;
};

}  // namespace tarnmill
