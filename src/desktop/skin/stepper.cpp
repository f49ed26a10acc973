#include "desktop/skin/stepper.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/skin/icons.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr int kFirstRepeat = 400;
constexpr int kNextRepeat = 60;
constexpr int kGap = 2;
constexpr double kRadius = 4;
constexpr double kIcon = 10;

void paint_arrow(QPainter& painter, const QRectF& box, const QString& icon, bool held) {
  painter.setPen(palette::line_on_bone);
  painter.setBrush(held ? palette::bone_hover : palette::paper);
  painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  QRectF sign(0, 0, kIcon, kIcon);
  sign.moveCenter(box.center());
  paint_icon(painter, icon, sign, {palette::ink, palette::ink});
}

}  // namespace

Stepper::Stepper(QWidget* parent) : QWidget(parent) {
  connect(&repeat_, &QTimer::timeout, this, [this] {
    repeat_.setInterval(kNextRepeat);
    emit stepped(held_);
  });
}

QRect Stepper::arrow_rect(int direction) const {
  const int half = (height() - kGap) / 2;
  return {0, direction > 0 ? 0 : height() - half, width(), half};
}

void Stepper::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint_arrow(painter, arrow_rect(1), "chevron-up", held_ == 1);
  paint_arrow(painter, arrow_rect(-1), "chevron", held_ == -1);
}

void Stepper::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = event->position().y() < height() / 2.0 ? 1 : -1;
  update();
  repeat_.start(kFirstRepeat);
  emit stepped(held_);
}

void Stepper::mouseReleaseEvent(QMouseEvent* /*event*/) { let_go(); }

void Stepper::hideEvent(QHideEvent* event) {
  let_go();
  QWidget::hideEvent(event);
}

void Stepper::let_go() {
  repeat_.stop();
  held_ = 0;
  update();
}

}  // namespace tarnmill::desktop
