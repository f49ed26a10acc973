#pragma once

#include "forms/control.h"

namespace tarnmill {

/// Raises its event each time Interval milliseconds have passed while it is enabled; an interval of 0
/// stops it. A new interval or enabling starts the wait afresh.
class Timer final : public Control {
 public:
  Timer(Window& window, std::string_view name, bool enabled = true, int interval = 0);
  ~Timer() override;

  /// Milliseconds.
  Property<int> Interval{*this, "Interval"};
  /// Raised when the interval has passed.
  Event<> Tick{*this, "Timer"};

  [[nodiscard]] bool runs() const { return Enabled && Interval > 0; }

 protected:
  void property_changed(const PropertyBase& property) override;
};

}  // namespace tarnmill
