#include "desktop/skin/overlay.h"

#include <QApplication>
#include <QChildEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "desktop/skin/key.h"
#include "desktop/skin/key_face.h"
#include "desktop/skin/palette.h"
#include "desktop/skin/panel.h"

namespace tarnmill::desktop {

namespace {

constexpr int kReach = 4;
constexpr double kRingWidth = 2;
/// From the key's edge to the middle of the ring around it.
constexpr double kRingDistance = 1.5;

QRect in_window(const QWidget* widget) {
  return {widget->mapTo(widget->window(), QPoint(0, 0)), widget->size()};
}

bool casts_shadow(const Key& key) {
  return key.isVisible() && !is_flat(key.role()) && !key_look(key.role(), key.is_chosen()).outlined;
}

bool stands_on_panel(const Key& key) { return qobject_cast<const Panel*>(key.parentWidget()) != nullptr; }

}  // namespace

Overlay::Overlay(QWidget* window) : QWidget(window) {
  setObjectName("deco_overlay");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  setGeometry(window->rect());
  window->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, &Overlay::follow_focus);
}

void Overlay::set_ring_colour(const QColor& colour) {
  ring_colour_ = colour;
  update();
}

void Overlay::set_frame_colour(const QColor& colour) {
  frame_colour_ = colour;
  update();
}

QRect Overlay::reach_of(const QWidget* widget) {
  return in_window(widget).adjusted(-kReach, -kReach, kReach, kReach);
}

bool Overlay::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    setGeometry(parentWidget()->rect());
  } else if (event->type() == QEvent::ChildAdded && dynamic_cast<QChildEvent*>(event)->child() != this) {
    raise();
  }
  return QWidget::eventFilter(watched, event);
}

void Overlay::follow_focus(QWidget* old, QWidget* now) {
  for (const QWidget* widget : {old, now}) {
    if (widget != nullptr && widget->window() == window()) {
      update(reach_of(widget));
    }
  }
}

void Overlay::paint_shadows(QPainter& painter, const QRect& region) const {
  for (const Key* key : window()->findChildren<Key*>()) {
    if (!casts_shadow(*key) || !reach_of(key).intersects(region)) {
      continue;
    }
    const QRect rect = in_window(key);
    QPainterPath outside = shadow_path(rect);
    QPainterPath body;
    const double radius = corner_radius(rect.height());
    body.addRoundedRect(rect, radius, radius);
    painter.fillPath(outside.subtracted(body), QColor(0, 0, 0, 82));
  }
}

void Overlay::paint_ring(QPainter& painter) const {
  const auto* key = qobject_cast<const Key*>(QApplication::focusWidget());
  if (key == nullptr || key->window() != window() || !ring_colour_.isValid()) {
    return;
  }
  // A flat key stands close to its neighbours, so its ring lies within it.
  const double out = is_flat(key->role()) ? -kRingWidth / 2 : kRingDistance;
  const double radius = is_flat(key->role()) ? 4 : corner_radius(key->height()) + kRingDistance;
  painter.setPen(QPen(stands_on_panel(*key) ? palette::focus_on_light : ring_colour_, kRingWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(in_window(key)).adjusted(-out, -out, out, out), radius, radius);
}

void Overlay::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (frame_colour_.isValid()) {
    painter.setPen(frame_colour_);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  painter.setRenderHint(QPainter::Antialiasing);
  paint_shadows(painter, event->rect());
  paint_ring(painter);
}

}  // namespace tarnmill::desktop
