#include "forms/workbench.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <string>

#include "engine/fault.h"
#include "forms/control.h"
#include "forms/desk.h"
#include "forms/handler_scope.h"

namespace tarnmill {

HandlerScope::HandlerScope(Workbench& workbench)
    : workbench_{workbench}, exceptions_before_{std::uncaught_exceptions()} {
  ++workbench_.depth_;
}

HandlerScope::~HandlerScope() {
  workbench_.handler_failed_ = std::uncaught_exceptions() > exceptions_before_;
  workbench_.leave_handler();
}

Workbench::Workbench(Desk& desk) : desk_{desk} {}

Workbench::~Workbench() {
  for (const auto& [name, window] : windows_) desk_.window_unloaded(*window);
}

void Workbench::add_window(std::string_view name, Factory factory) { factories_[name] = std::move(factory); }

Window& Workbench::window(std::string_view name) {
  if (Window* present = find_window(name)) return *present;
  const auto factory = factories_.find(name);
  if (factory == factories_.end()) throw std::out_of_range{"no window class " + std::string{name}};
  const HandlerScope scope{*this};
  Window& made = *(windows_[factory->first] = factory->second(*this));
  desk_.window_loaded(made);
  made.Load.raise();
  return made;
}

Window* Workbench::find_window(std::string_view name) const {
  const auto found = windows_.find(name);
  return found == windows_.end() ? nullptr : found->second.get();
}

bool Workbench::is_visible(std::string_view name) const {
  const Window* present = find_window(name);
  return present != nullptr && present->Visible;
}

std::vector<std::string_view> Workbench::window_names() const {
  std::vector<std::string_view> names;
  for (const auto& [name, factory] : factories_) names.push_back(name);
  return names;
}

std::optional<Fault> Workbench::attempt(const std::function<void()>& request) {
  handler_failed_ = false;
  try {
    request();
  } catch (const Fault& fault) {
    if (handler_failed_) throw;
    return fault;
  }
  return std::nullopt;
}

bool Workbench::enter(const std::function<void()>& entry) {
  if (ended_) return false;
  const HandlerScope scope{*this};
  try {
    entry();
  } catch (const Fault& fault) {
    report(fault);
  } catch (const Ended&) {
    // Recorded where it was thrown.
  }
  return !ended_;
}

void Workbench::report(const Fault& fault) {
  fault_ = fault.number();
  const std::string number = std::to_string(fault.number());
  desk_.message(
      {u"Run-time error '" + Text(number.begin(), number.end()) + u"':\r\n\r\n" + Text{fault.description()},
       u"Tarnmill", MessageIcon::critical});
  ended_ = true;
  desk_.quit();
}

void Workbench::end() {
  ended_ = true;
  desk_.quit();
  throw Ended{};
}

void Workbench::leave_if_ended() const {
  if (ended_) throw Ended{};
}

void Workbench::do_events() {
  desk_.do_events();
  leave_if_ended();
}

MessageResult Workbench::message(const MessageBox& box) {
  const MessageResult result = desk_.message(box);
  leave_if_ended();
  return result;
}

void Workbench::MousePointer(int shape) {
  mouse_pointer_ = shape;
  desk_.set_mouse_pointer(shape);
}

void Workbench::set_focus(Control* control) {
  if (control == focus_) return;
  Control* before = focus_;
  focus_ = control;
  desk_.focus_moved(control);
  if (before != nullptr) before->LostFocus.raise();
  if (control != nullptr && focus_ == control) control->GotFocus.raise();
}

void Workbench::forget(const Control& control) {
  if (focus_ == &control) focus_ = nullptr;
}

void Workbench::activate(Window& window) {
  if (active_ == &window) return;
  std::erase(stack_, &window);
  stack_.push_back(&window);
  active_ = &window;
  desk_.window_activated(window);
  window.Activate.raise();
}

void Workbench::showing(Window& window) {
  window.Visible = true;
  active_ = nullptr;
  activate(window);
}

void Workbench::hidden(Window& window) {
  std::erase(stack_, &window);
  window.Visible = false;
  if (active_ != &window) return;
  active_ = nullptr;
  if (!stack_.empty()) activate(*stack_.back());
}

void Workbench::unload(Window& window) {
  const auto found = windows_.find(window.name());
  if (found == windows_.end() || found->second.get() != &window) return;
  const HandlerScope scope{*this};
  window.Unloading.raise();
  unloaded_.push_back(std::move(found->second));
  windows_.erase(found);
  hidden(window);
  desk_.window_unloaded(window);
}

void Workbench::leave_handler() {
  if (--depth_ == 0) unloaded_.clear();
}

bool Workbench::any_visible() const { return !stack_.empty(); }

}  // namespace tarnmill
