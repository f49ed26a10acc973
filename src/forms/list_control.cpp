#include "forms/list_control.h"

#include <algorithm>
#include <utility>

#include "engine/fault.h"

namespace tarnmill {

ListControl::ListControl(Window& window, std::string_view name, Place place) : Control{window, name, place} {}

void ListControl::AddItem(tarnmill::Text item) {
  items_.push_back(std::move(item));
  ListCount.changed();
}

void ListControl::Clear() {
  items_.clear();
  ListIndex.start_as(-1);
  ListCount.changed();
}

tarnmill::Text ListControl::List(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) return {};
  return items_[static_cast<std::size_t>(index)];
}

void ListControl::choose(int index) {
  if (ListIndex == index) {
    Text = List(index);
    Click.raise();
  } else {
    ListIndex = index;
  }
}

void ListControl::follow_text() {
  if (List(ListIndex) == Text.get()) return;
  const auto entry = std::find(items_.begin(), items_.end(), Text.get());
  ListIndex.start_as(entry == items_.end() ? -1 : static_cast<int>(entry - items_.begin()));
}

void ListControl::property_changed(const PropertyBase& property) {
  if (&property == &ListIndex) {
    if (ListIndex >= static_cast<int>(items_.size()) || ListIndex < -1) {
      ListIndex.start_as(-1);
      throw Fault{FaultCode::InvalidArgument};
    }
    if (ListIndex >= 0) {
      Text = List(ListIndex);
      Click.raise();
    }
  } else if (&property == &Text) {
    follow_text();
    Change.raise();
  }
}

}  // namespace tarnmill
