#include "desktop/binder/window_view.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QWindow>
#include <cmath>
#include <utility>

#include "desktop/binder/binding.h"
#include "desktop/binder/caption_follower.h"
#include "desktop/binder/control_names.h"
#include "desktop/binder/menu_bar_binding.h"
#include "desktop/binder/view_store.h"
#include "desktop/qt_text.h"
#include "forms/control.h"
#include "forms/window.h"

namespace tarnmill::desktop {

namespace {

int pixels(double twips) { return static_cast<int>(std::lround(twips / WindowView::twips_per_pixel)); }

}  // namespace

WindowView::WindowView(Window& window, ViewStore& store, std::unique_ptr<QWidget> form, bool shows)
    : window_{&window}, store_{store}, shows_{shows}, widget_{std::move(form)} {
  widget_->setMouseTracking(true);
  bind_controls();
  if (auto* bar = widget_->findChild<QMenuBar*>()) new MenuBarBinding{*bar, *this};
  if (shows_) take_size_of_form();
  for (const std::string_view each : {"Caption", "Width", "WindowState"}) show_property(each);
  window_->observe(this, [this](const PropertyBase& property) { show_property(property.name()); });
  widget_->installEventFilter(this);
  show_visible();
}

WindowView::~WindowView() {
  if (window_ != nullptr) release();
}

void WindowView::bind_controls() {
  for (QWidget* each : widget_->findChildren<QWidget*>()) {
    // Without it a still button would keep the mouse's way over decoration from the window.
    each->setMouseTracking(true);
    Control* control =
        names_a_control(each->objectName()) ? control_named(*window_, each->objectName()) : nullptr;
    if (control == nullptr || control->only_holds_state()) continue;
    bindings_.push_back(make_binding(*control, *each, *this));
    bindings_.back()->start();
    bind_face(*each);
  }
}

void WindowView::fill_width() {
  for (QWidget* each : widget_->findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
    if (each->property("fills") == "width") each->resize(widget_->width(), each->height());
  }
}

void WindowView::bind_face(QWidget& key) {
  const QString face = key.property("face").toString();
  if (face.isEmpty()) return;
  if (Control* label = control_named(*window_, face)) new CaptionFollower{*label, key, *this};
}

void WindowView::take_size_of_form() {
  if (window_->Width != 0 && window_->Height != 0) return;
  window_->Width.start_as(widget_->width() * twips_per_pixel);
  window_->Height.start_as(widget_->height() * twips_per_pixel);
}

void WindowView::release() {
  if (window_ == nullptr) return;
  for (Binding* each : bindings_) each->release();
  for (CaptionFollower* each : findChildren<CaptionFollower*>()) each->release();
  window_->stop_observing(this);
  window_ = nullptr;
  widget_->hide();
  emit left_screen();
}

void WindowView::enter(const std::function<void()>& entry) {
  if (window_ != nullptr && !changing_widget_) store_.pulse().enter(entry);
}

void WindowView::touched() { store_.touched(*this); }

void WindowView::give_focus(const Control& control) {
  for (Binding* each : bindings_) {
    if (each->control() == &control && !each->widget().hasFocus())
      each->widget().setFocus(Qt::OtherFocusReason);
  }
}

void WindowView::show_property(std::string_view name) {
  const bool before = std::exchange(changing_widget_, true);
  if (name == "Caption") {
    widget_->setWindowTitle(to_qt(window_->Caption.get()));
  } else if (name == "Left" || name == "Top" || name == "Width" || name == "Height") {
    show_geometry();
  } else if (name == "WindowState") {
    show_state();
  }
  changing_widget_ = before;
  if (name == "Visible") show_visible();
}

void WindowView::show_geometry() {
  const QSize size{pixels(window_->Width), pixels(window_->Height)};
  const bool fixed = widget_->minimumSize() == widget_->maximumSize();
  if (!size.isEmpty() && size != widget_->size()) {
    if (fixed) widget_->setFixedSize(size);
    widget_->resize(size);
  }
  // Until it is told a place the platform chooses one.
  if (window_->Left != 0 || window_->Top != 0) widget_->move(pixels(window_->Left), pixels(window_->Top));
}

void WindowView::show_state() {
  constexpr int minimised = 1;
  constexpr int maximised = 2;
  Qt::WindowStates state = widget_->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (window_->WindowState == minimised) state |= Qt::WindowMinimized;
  if (window_->WindowState == maximised) state |= Qt::WindowMaximized;
  if (state != widget_->windowState()) widget_->setWindowState(state);
}

void WindowView::show_visible() {
  if (!shows_ || window_->Visible == widget_->isVisible()) return;
  widget_->setVisible(window_->Visible);
  if (window_->Visible) start_focus();
  if (!window_->Visible) emit left_screen();
}

void WindowView::start_focus() {
  const QString name = widget_->property("firstFocus").toString();
  auto* first = name.isEmpty() ? nullptr : widget_->findChild<QWidget*>(name);
  if (first != nullptr && widget_->focusWidget() == nullptr) first->setFocus(Qt::OtherFocusReason);
}

void WindowView::set_on_top(bool on_top) {
  const bool visible = widget_->isVisible();
  widget_->setWindowFlag(Qt::WindowStaysOnTopHint, on_top);
  // The toolkit hides a window whose flags change.
  if (visible) widget_->show();
}

void WindowView::run_modal() {
  widget_->hide();
  widget_->setWindowModality(Qt::ApplicationModal);
  widget_->show();
  QEventLoop loop;
  connect(this, &WindowView::left_screen, &loop, &QEventLoop::quit);
  loop.exec();
  if (window_ != nullptr) widget_->setWindowModality(Qt::NonModal);
}

void WindowView::start_move() {
  QWindow* handle = widget_->windowHandle();
  if (handle != nullptr && handle->startSystemMove()) return;
  drag_ = QCursor::pos() - widget_->pos();
  qApp->installEventFilter(this);
}

}  // namespace tarnmill::desktop
