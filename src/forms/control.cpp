#include "forms/control.h"

#include "engine/trim.h"
#include "forms/control_array.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

Control::Control(Window& window, std::string_view name, Place place)
    : Node{name}, window_{window}, place_{place} {
  constexpr double beyond_any_window = 30000;
  Visible.start_as(place != Place::hidden);
  if (only_holds_state()) Left.start_as(beyond_any_window);
  window.add(*this);
}

Control::~Control() {
  window_.bench().forget(*this);
  window_.remove(*this);
}

void Control::SetFocus() { workbench().set_focus(this); }

Text Control::accessible_name() const {
  Text name{trimmed(ToolTipText.get())};
  if (!name.empty()) return name;
  const auto* caption = dynamic_cast<const Property<Text>*>(find_property("Caption"));
  return caption == nullptr ? Text{} : Text{trimmed(caption->get())};
}

ControlArrayBase::ControlArrayBase(Window& window, std::string_view name, int first)
    : window_{window}, name_{name}, first_{first} {
  window.add(*this);
}

ControlArrayBase::~ControlArrayBase() = default;

}  // namespace tarnmill
