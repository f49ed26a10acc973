// Where the desk meets the windows' widgets.
#include <QWidget>

#include "desktop/binder/view_store.h"
#include "desktop/qt_desk.h"
#include "forms/control.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

QWidget* QtDesk::dialog_parent() const {
  Window* active = bench_ == nullptr ? nullptr : bench_->active_window();
  return active == nullptr ? nullptr : store_->find(*active);
}

QWidget& QtDesk::view(Window& window) { return store_->view(window); }

void QtDesk::window_loaded(Window& window) {
  attach(window.bench());
  store_->follow(window);
}

void QtDesk::window_unloaded(Window& window) { store_->forget(window); }

void QtDesk::window_activated(Window& window) { store_->bring_forward(window); }

void QtDesk::focus_moved(Control* control) { store_->give_focus(control); }

void QtDesk::run_modal(Window& window) {
  if (shows_views()) store_->run_modal(window);
}

void QtDesk::refresh(Window& window) {
  if (QWidget* widget = store_->find(window)) widget->repaint();
}

void QtDesk::start_move(Window& window) { store_->start_move(window); }

void QtDesk::set_on_top(Window& window, bool on_top) { store_->set_on_top(window, on_top); }

}  // namespace tarnmill
