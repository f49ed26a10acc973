#include "desktop/binder/view_store.h"

#include <algorithm>
#include <utility>

#include "forms/control.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill::desktop {

ViewStore::ViewStore(Pulse& pulse, bool shows, Forms form)
    : pulse_{pulse}, shows_{shows}, form_{std::move(form)} {}

ViewStore::~ViewStore() {
  for (const auto& [window, view] : views_) delete view;
  for (const QPointer<WindowView>& each : discarded_) delete each.data();
}

void ViewStore::follow(Window& window) {
  if (!shows_) return;
  window.observe(this, [this, &window](const PropertyBase& property) {
    if (&property == &window.Visible && window.Visible && find_view(window) == nullptr) make(window);
  });
}

void ViewStore::forget(Window& window) {
  window.stop_observing(this);
  WindowView* view = find_view(window);
  if (view == nullptr) return;
  views_.erase(&window);
  view->release();
  std::erase_if(discarded_, [](const QPointer<WindowView>& each) { return each.isNull(); });
  discarded_.emplace_back(view);
  view->deleteLater();
}

WindowView& ViewStore::make(Window& window) {
  auto* view = new WindowView{window, *this, form_(window.name()), shows_};
  views_[&window] = view;
  if (Control* focus = window.bench().focus()) give_focus(focus);
  return *view;
}

WindowView* ViewStore::find_view(Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second;
}

QWidget* ViewStore::find(Window& window) const {
  const WindowView* view = find_view(window);
  return view == nullptr ? nullptr : &view->widget();
}

WindowView& ViewStore::view_of(Window& window) {
  WindowView* present = find_view(window);
  return present == nullptr ? make(window) : *present;
}

QWidget& ViewStore::view(Window& window) { return view_of(window).widget(); }

void ViewStore::bring_forward(Window& window) {
  WindowView* view = find_view(window);
  if (view == nullptr || !shows_ || view->widget().isActiveWindow()) return;
  awaited_ = view;
  view->widget().raise();
  view->widget().activateWindow();
}

void ViewStore::give_focus(Control* control) {
  if (control == nullptr) return;
  if (WindowView* view = find_view(control->window())) view->give_focus(*control);
}

void ViewStore::run_modal(Window& window) {
  WindowView* view = find_view(window);
  if (view != nullptr && window.Visible) view->run_modal();
}

void ViewStore::start_move(Window& window) {
  if (WindowView* view = find_view(window)) view->start_move();
}

void ViewStore::set_on_top(Window& window, bool on_top) {
  if (shows_) view_of(window).set_on_top(on_top);
}

void ViewStore::activated(WindowView& view) {
  if (!awaited_.isNull() && awaited_ != &view) return;
  touched(view);
}

void ViewStore::touched(WindowView& view) {
  awaited_.clear();
  view.enter([&view] { view.window()->bench().activate(*view.window()); });
}

}  // namespace tarnmill::desktop
