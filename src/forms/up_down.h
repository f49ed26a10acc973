#pragma once

#include <cstdint>

#include "forms/control.h"

namespace tarnmill {

/// A pair of arrows that count a value up and down within a range.
class UpDown final : public Control {
 public:
  UpDown(Window& window, std::string_view name, std::int32_t least, std::int32_t most)
      : Control{window, name}, Min{*this, "Min", least}, Max{*this, "Max", most} {}

  /// \name The ends of the range, and how far one press counts
  ///@{
  Property<std::int32_t> Min;
  Property<std::int32_t> Max;
  Property<std::int32_t> Increment{*this, "Increment", 1};
  ///@}
  /// Kept within the range. A new value raises Change, whoever sets it.
  Property<std::int32_t> Value{*this, "Value"};

  /// What a press of one of the arrows does: up for 1, down for -1.
  void step(int direction);

  Event<> Change{*this, "Change"};

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  std::int32_t last_ = 0;
};

}  // namespace tarnmill
