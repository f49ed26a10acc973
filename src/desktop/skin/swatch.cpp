#include "desktop/skin/swatch.h"

#include <QPainter>

#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

Swatch::Swatch(QWidget* parent) : QLabel(parent) {
  QPalette black = palette();
  black.setColor(QPalette::Window, Qt::black);
  setPalette(black);
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
  constexpr double radius = 5;
  QPainter painter(this);
  painter.fillRect(rect(), palette::bone);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette::line_on_bone);
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

}  // namespace tarnmill::desktop
