#include "forms/option_button.h"

#include "forms/window.h"

namespace tarnmill {

void OptionButton::press() {
  if (Value) {
    Click.raise();
  } else {
    Value = true;
  }
}

void OptionButton::property_changed(const PropertyBase& property) {
  if (&property != &Value) return;
  if (Value) {
    for (Control* each : window().controls()) {
      auto* other = dynamic_cast<OptionButton*>(each);
      if (other != nullptr && other != this) other->Value = false;
    }
    Click.raise();
  }
}

}  // namespace tarnmill
