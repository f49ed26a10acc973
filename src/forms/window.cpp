#include "forms/window.h"

#include <algorithm>

#include "forms/control.h"
#include "forms/control_array.h"
#include "forms/desk.h"
#include "forms/field.h"
#include "forms/menu_item.h"
#include "forms/procedure.h"
#include "forms/workbench.h"

namespace tarnmill {

Window::Window(Workbench& workbench, std::string_view name) : Node{name}, workbench_{workbench} {}

Window::~Window() = default;

void Window::Show() { workbench_.showing(*this); }

void Window::ShowModal() {
  Show();
  workbench_.desk().run_modal(*this);
  workbench_.leave_if_ended();
}

void Window::Hide() { workbench_.hidden(*this); }

void Window::Unload() {
  // Handlers of the unloading may unload it themselves.
  if (unloading_) return;
  const HandlerScope scope{workbench_};
  unloading_ = true;
  try {
    std::int16_t cancel = 0;
    QueryUnload.raise(cancel);
    if (cancel == 0) workbench_.unload(*this);
  } catch (...) {
    unloading_ = false;
    throw;
  }
  unloading_ = false;
}

void Window::close() {
  const HandlerScope scope{workbench_};
  const bool was_visible = Visible;
  Unload();
  const bool gone = workbench_.find_window(name()) != this;
  if (gone && was_visible && !workbench_.any_visible()) workbench_.end();
}

void Window::PopupMenu(MenuItem& menu) {
  popup_shown_ = &menu;
  MenuItem* chosen = workbench_.desk().popup(*this, menu, std::nullopt);
  workbench_.leave_if_ended();
  if (chosen != nullptr) chosen->press();
}

void Window::PopupMenu(MenuItem& menu, double x, double y) {
  constexpr double twips_per_pixel = 15;
  popup_shown_ = &menu;
  const std::pair at{static_cast<int>(x / twips_per_pixel), static_cast<int>(y / twips_per_pixel)};
  MenuItem* chosen = workbench_.desk().popup(*this, menu, at);
  workbench_.leave_if_ended();
  if (chosen != nullptr) chosen->press();
}

MessageResult Window::MsgBox(const Text& text, MessageIcon icon, const Text& title, MessageButtons buttons,
                             int default_button) {
  return workbench_.message({text, title, icon, buttons, default_button});
}

const Window::Member* Window::find(std::string_view name) const {
  const auto found = members_.find(name);
  return found == members_.end() ? nullptr : &found->second;
}

Control* Window::find_control(std::string_view name, int index) const {
  const Member* member = find(name);
  if (member == nullptr) return nullptr;
  if (const auto* array = std::get_if<ControlArrayBase*>(member)) return (*array)->find(index);
  const auto* control = std::get_if<Control*>(member);
  return control == nullptr ? nullptr : *control;
}

Procedure* Window::find_procedure(std::string_view name) const {
  const auto found = procedures_.find(name);
  return found == procedures_.end() ? nullptr : found->second;
}

std::vector<std::string> Window::control_names() const {
  std::vector<std::string> names;
  for (const Control* each : controls_) names.emplace_back(each->name());
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

void Window::add(Control& control) {
  controls_.push_back(&control);
  const Member* present = find(control.name());
  const bool element = present != nullptr && std::holds_alternative<ControlArrayBase*>(*present);
  if (!element) members_[control.name()] = &control;
}

void Window::add(ControlArrayBase& array) { members_[array.name()] = &array; }

void Window::add(Procedure& procedure) {
  procedures_[procedure.name()] = &procedure;
  members_.try_emplace(procedure.name(), &procedure);
}

void Window::add(FieldBase& field) { members_[field.name()] = &field; }

void Window::remove(Control& control) { std::erase(controls_, &control); }

void Window::property_changed(const PropertyBase& property) {
  if (&property == &Width || &property == &Height || &property == &WindowState) Resize.raise();
}

}  // namespace tarnmill
