#include "forms/up_down.h"

#include <algorithm>

namespace tarnmill {

void UpDown::step(int direction) {
  const std::int64_t next = std::int64_t{Value} + std::int64_t{direction} * Increment;
  Value = static_cast<std::int32_t>(std::clamp<std::int64_t>(next, Min, Max));
}

void UpDown::property_changed(const PropertyBase& property) {
  if (&property != &Value) return;
  Value.start_as(std::clamp(Value.get(), Min.get(), std::max(Min.get(), Max.get())));
  if (Value == last_) return;
  last_ = Value;
  Change.raise();
}

}  // namespace tarnmill
