#pragma once

#include "forms/color.h"
#include "forms/control.h"
#include "forms/font.h"

namespace tarnmill {

/// A label that shows its caption in a font of the program's choice.
class FontLabel final : public Control, public FontProperties {
 public:
  FontLabel(Window& window, std::string_view name, Place place = Place::on_window)
      : Control{window, name, place}, FontProperties{static_cast<Node&>(*this)} {}

  Property<tarnmill::Text> Caption{*this, "Caption"};
  Property<Color> ForeColor{*this, "ForeColor"};
  Property<Color> BackColor{*this, "BackColor"};
};

}  // namespace tarnmill
