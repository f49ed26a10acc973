#pragma once

#include "desktop/binder/binding.h"
#include "desktop/skin/stepper.h"
#include "forms/up_down.h"

namespace tarnmill::desktop {

/// A pair of arrows on a stepper.
class UpDownBinding final : public Binding {
 public:
  UpDownBinding(UpDown& arrows, Stepper& stepper, WindowView& view);

 protected:
  [[nodiscard]] bool takes_focus() const override { return false; }
};

}  // namespace tarnmill::desktop
