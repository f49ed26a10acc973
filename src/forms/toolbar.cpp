#include "forms/toolbar.h"

#include <algorithm>

#include "engine/fault.h"

namespace tarnmill {

ToolButton::ToolButton(Toolbar& bar, const ToolPlan& plan) : Node{plan.key}, bar_{bar}, kind_{plan.kind} {
  ToolTipText.start_as(Text{plan.tooltip});
}

Window& ToolButton::window() { return bar_.window(); }

void ToolButton::press() {
  if (kind_ == ToolKind::check) Value = Value == 0 ? std::int16_t{1} : std::int16_t{0};
  if (kind_ == ToolKind::group) Value = 1;
  Click.raise();
}

void ToolButton::property_changed(const PropertyBase& property) {
  if (&property == &Value && kind_ == ToolKind::group && Value != 0) bar_.let_up_others(*this);
}

Toolbar::Toolbar(Window& window, std::string_view name, const std::vector<ToolPlan>& plan)
    : Control{window, name} {
  for (const ToolPlan& each : plan) buttons_.push_back(std::make_unique<ToolButton>(*this, each));
}

ToolButton* Toolbar::find(int index) const {
  return index < 1 || index > size() ? nullptr : buttons_[static_cast<std::size_t>(index - 1)].get();
}

ToolButton* Toolbar::find(std::string_view key) const {
  const auto found =
      std::find_if(buttons_.begin(), buttons_.end(), [&](const auto& each) { return each->key() == key; });
  return key.empty() || found == buttons_.end() ? nullptr : found->get();
}

ToolButton& Toolbar::Buttons(int index) const {
  ToolButton* found = find(index);
  if (found == nullptr) throw Fault{FaultCode::InvalidArgument};
  return *found;
}

ToolButton& Toolbar::Buttons(std::string_view key) const {
  ToolButton* found = find(key);
  if (found == nullptr) throw Fault{FaultCode::InvalidArgument};
  return *found;
}

void Toolbar::let_up_others(const ToolButton& button) {
  const auto own =
      std::find_if(buttons_.begin(), buttons_.end(), [&](const auto& each) { return each.get() == &button; });
  const auto is_other_kind = [](const auto& each) { return each->kind() != ToolKind::group; };
  const auto first = std::find_if(std::make_reverse_iterator(own), buttons_.rend(), is_other_kind).base();
  const auto end = std::find_if(own, buttons_.end(), is_other_kind);
  for (auto each = first; each != end; ++each) {
    if (each != own) (*each)->Value = 0;
  }
}

}  // namespace tarnmill
