// What happens to a window's own widget, told to the window.
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/binder/key_codes.h"
#include "desktop/binder/view_store.h"
#include "desktop/binder/window_view.h"
#include "forms/window.h"
#include "forms/workbench.h"
#include "shell/help.h"

namespace tarnmill::desktop {

bool WindowView::eventFilter(QObject* watched, QEvent* event) {
  if (drag_ && drag_event(*event)) return true;
  if (window_ == nullptr || watched != widget_.get()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return mouse_event(dynamic_cast<QMouseEvent&>(*event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return key_event(dynamic_cast<QKeyEvent&>(*event));
    default:
      return window_event(*event);
  }
}

bool WindowView::window_event(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      enter([this] { window_->close(); });
      return true;
    case QEvent::Resize:
      fill_width();
      [[fallthrough]];
    case QEvent::Move:
      take_geometry();
      return false;
    case QEvent::WindowStateChange:
      take_state();
      return false;
    case QEvent::WindowActivate:
      store_.activated(*this);
      return false;
    default:
      return false;
  }
}

void WindowView::take_geometry() {
  // Minimised and maximised windows keep the size that they come back to.
  if (changing_widget_ || !widget_->isVisible() || widget_->windowState() != Qt::WindowNoState) return;
  window_->Left.start_as(widget_->x() * twips_per_pixel);
  window_->Top.start_as(widget_->y() * twips_per_pixel);
  const double width = widget_->width() * twips_per_pixel;
  const double height = widget_->height() * twips_per_pixel;
  if (width == window_->Width && height == window_->Height) return;
  // Both at once, so that the window hears of a new size once.
  window_->Width.start_as(width);
  window_->Height.start_as(height);
  enter([this] { window_->Resize.raise(); });
}

void WindowView::take_state() {
  if (changing_widget_) return;
  const Qt::WindowStates state = widget_->windowState();
  const int number = state.testFlag(Qt::WindowMinimized) ? 1 : state.testFlag(Qt::WindowMaximized) ? 2 : 0;
  enter([this, number] { window_->WindowState = static_cast<std::int16_t>(number); });
}

bool WindowView::mouse_event(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonPress) touched();
  const auto x = static_cast<float>(event.position().x() * twips_per_pixel);
  const auto y = static_cast<float>(event.position().y() * twips_per_pixel);
  const int shift = shift_state(event.modifiers());
  const int button = button_code(event.button());
  enter([&] {
    switch (event.type()) {
      case QEvent::MouseButtonPress:
        window_->MouseDown.raise(button, shift, x, y);
        break;
      case QEvent::MouseButtonRelease:
        window_->MouseUp.raise(button, shift, x, y);
        if (button == 1 && window_ != nullptr) window_->Click.raise();
        break;
      case QEvent::MouseButtonDblClick:
        window_->DblClick.raise();
        break;
      default:
        window_->MouseMove.raise(button_state(event.buttons()), shift, x, y);
    }
  });
  return true;
}

bool WindowView::key_event(const QKeyEvent& event) {
  // A key that a control did not want comes by here on its way up; the window has seen it first.
  if (widget_->focusWidget() != nullptr && widget_->focusWidget() != widget_.get()) return false;
  int code = key_code(event);
  if (code == 0) return false;
  const int shift = shift_state(event.modifiers());
  const bool down = event.type() == QEvent::KeyPress;
  enter([&] { (down ? window_->KeyDown : window_->KeyUp).raise(code, shift); });
  return code == 0 || (down && answer_key(code, shift));
}

bool WindowView::answer_key(int code, int shift) {
  constexpr int menu_key = 93;
  constexpr int key_f1 = 112;
  constexpr int key_f10 = 121;
  constexpr int with_shift = 1;
  constexpr int right_button = 2;
  if (window_ == nullptr) return false;
  if (code == key_f1) {
    enter([this] { show_program_help(window_->bench().desk()); });
    return true;
  }
  if (code == menu_key || (code == key_f10 && shift == with_shift)) {
    enter([this] { window_->MouseDown.raise(right_button, 0, 0, 0); });
    return true;
  }
  return false;
}

bool WindowView::drag_event(const QEvent& event) {
  if (event.type() == QEvent::MouseMove) {
    widget_->move(dynamic_cast<const QMouseEvent&>(event).globalPosition().toPoint() - *drag_);
    return true;
  }
  if (event.type() == QEvent::MouseButtonRelease) {
    drag_.reset();
    qApp->removeEventFilter(this);
  }
  return false;
}

}  // namespace tarnmill::desktop
