#include "desktop/binder/binding.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <cmath>
#include <utility>

#include "desktop/binder/key_codes.h"
#include "desktop/binder/window_view.h"
#include "desktop/menu_builder.h"
#include "desktop/qt_text.h"
#include "forms/control.h"
#include "forms/window.h"

namespace tarnmill::desktop {

namespace {

int pixels(double twips) { return static_cast<int>(std::lround(twips / WindowView::twips_per_pixel)); }

}  // namespace

Binding::Binding(Control& control, QWidget& widget, WindowView& view)
    : QObject{&view}, control_{&control}, widget_{widget}, view_{view} {}

Binding::~Binding() {
  if (control_ != nullptr) control_->stop_observing(this);
}

void Binding::start() {
  starting_ = true;
  change_widget([this] {
    for (const PropertyBase* each : control_->properties()) show_property(each->name());
  });
  starting_ = false;
  control_->observe(
      this, [this](const PropertyBase& property) { change_widget([&] { show_property(property.name()); }); });
  watch(widget_);
}

void Binding::release() {
  if (control_ == nullptr) return;
  control_->stop_observing(this);
  control_ = nullptr;
}

void Binding::watch(QWidget& part) {
  part.installEventFilter(this);
  part.setMouseTracking(true);
}

Text Binding::text_property(std::string_view name) const {
  const PropertyBase* property = control_->find_property(name);
  return property == nullptr ? Text{} : property->read().to_text(control_->regional());
}

double Binding::number_property(std::string_view name) const {
  const PropertyBase* property = control_->find_property(name);
  return property == nullptr ? 0 : property->read().to_number(control_->regional());
}

void Binding::show_property(std::string_view name) {
  if (name == "Visible") {
    widget_.setVisible(control_->Visible);
  } else if (name == "Enabled") {
    widget_.setEnabled(control_->Enabled);
  } else if (name == "ToolTipText") {
    widget_.setToolTip(to_qt(control_->ToolTipText.get()));
  } else if (name == "Left" || name == "Top" || name == "Width" || name == "Height") {
    show_geometry(name);
  }
  if (name == "ToolTipText" || name == "Caption") {
    // A form keeps its own name for a key whose tooltip is that of another as well.
    const Text spoken = control_->accessible_name();
    if (!spoken.empty() && !widget_.property("keepsName").toBool()) widget_.setAccessibleName(to_qt(spoken));
  }
}

void Binding::show_geometry(std::string_view name) {
  if (is_starting() && (control_->Width == 0 || control_->Height == 0)) return;
  QRect place = widget_.geometry();
  if (name == "Left") place.moveLeft(pixels(control_->Left));
  if (name == "Top") place.moveTop(pixels(control_->Top));
  if (name == "Width") place.setWidth(pixels(control_->Width));
  if (name == "Height") place.setHeight(pixels(control_->Height));
  widget_.setGeometry(place);
}

void Binding::enter(const std::function<void()>& entry) {
  if (control_ == nullptr || changing_widget_) return;
  view_.enter(entry);
}

void Binding::change_widget(const std::function<void()>& change) {
  const bool before = std::exchange(changing_widget_, true);
  change();
  changing_widget_ = before;
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  if (control_ == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return widget_.isEnabled() && mouse_event(dynamic_cast<QMouseEvent&>(*event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      released_by_mouse_ = false;
      return watched == &widget_ && !replacing_key_ && key_event(dynamic_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
      if (takes_focus()) enter([this] { control_->SetFocus(); });
      return false;
    default:
      return false;
  }
}

bool Binding::mouse_event(QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonPress) {
    view_.touched();
    pressed_ = event.button() == Qt::LeftButton;
  }
  if (event.type() == QEvent::MouseButtonRelease) released_by_mouse_ = true;
  const QPointer<QWidget> form = widget_.window();
  const int menus = menus_shown(*form);
  enter([&] { raise_mouse(event); });
  const bool opened_menu = form != nullptr && menus_shown(*form) != menus;
  if (opened_menu && event.type() == QEvent::MouseButtonPress) {
    // The menu took the release to itself; a key that got the press now would stay down.
    pressed_ = false;
    return true;
  }
  const bool clicked = event.type() == QEvent::MouseButtonRelease && event.button() == Qt::LeftButton &&
                       std::exchange(pressed_, false) && widget_.rect().contains(event.position().toPoint());
  if (clicked && !uses_mouse()) enter([this] { control_->press(); });
  // The release of such a press goes to the menu, so the widget would stay pressed.
  if (event.type() == QEvent::MouseButtonPress && opens_a_menu()) return true;
  return !uses_mouse() || control_ == nullptr;
}

void Binding::raise_mouse(const QMouseEvent& event) {
  const float x = static_cast<float>(event.position().x()) * mouse_scale();
  const float y = static_cast<float>(event.position().y()) * mouse_scale();
  const int shift = shift_state(event.modifiers());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      control_->MouseDown.raise(button_code(event.button()), shift, x, y);
      break;
    case QEvent::MouseButtonRelease:
      control_->MouseUp.raise(button_code(event.button()), shift, x, y);
      break;
    case QEvent::MouseButtonDblClick:
      control_->DblClick.raise();
      break;
    default:
      control_->MouseMove.raise(button_state(event.buttons()), shift, x, y);
  }
}

bool Binding::key_event(QKeyEvent& event) {
  const int code = key_code(event);
  if (code == 0) return false;
  const int shift = shift_state(event.modifiers());
  int left = code;
  const bool down = event.type() == QEvent::KeyPress;
  enter([&] {
    Window& window = control_->window();
    (down ? window.KeyDown : window.KeyUp).raise(left, shift);
    if (left == 0 || control_ == nullptr || !takes_focus()) return;
    (down ? control_->KeyDown : control_->KeyUp).raise(left, shift);
  });
  if (left == 0 || control_ == nullptr) return true;
  if (down && view_.answer_key(left, shift)) return true;
  if (left == code) return false;
  QKeyEvent other{event.type(), key_of(left), event.modifiers()};
  replacing_key_ = true;
  QCoreApplication::sendEvent(&widget_, &other);
  replacing_key_ = false;
  return true;
}

}  // namespace tarnmill::desktop
