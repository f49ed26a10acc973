#include "forms/progress_bar.h"

#include "engine/fault.h"

namespace tarnmill {

void ProgressBar::advance_to(double value) {
  if (!(value >= Min && value <= Max)) {
    throw Fault{fault_invalid_property_value, u"Invalid property value"};
  }
  if (value == value_) return;
  value_ = value;
  Value.changed();
}

}  // namespace tarnmill
