#include "desktop/binder/up_down_binding.h"

namespace tarnmill::desktop {

UpDownBinding::UpDownBinding(UpDown& arrows, Stepper& stepper, WindowView& view)
    : Binding{arrows, stepper, view} {
  connect(&stepper, &Stepper::stepped, this,
          [this, &arrows](int direction) { enter([&arrows, direction] { arrows.step(direction); }); });
}

}  // namespace tarnmill::desktop
