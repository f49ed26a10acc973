#include "desktop/skin/panel.h"

#include <QPainter>
#include <QPainterPath>

#include "desktop/skin/fonts.h"
#include "desktop/skin/palette.h"
#include "desktop/skin/style_sheets.h"

namespace tarnmill::desktop {

namespace {

constexpr int kBar = 28;
constexpr double kRadius = 8;
constexpr int kTitleAt = 14;
constexpr int kTitleSize = 12;

/// Fades outwards, in steps of a pixel.
void paint_shadow(QPainter& painter, const QRectF& body) {
  constexpr int darkest = 26;
  painter.setPen(Qt::NoPen);
  for (int i = Panel::margin; i > 0; --i) {
    painter.setBrush(QColor(0, 0, 0, darkest * (Panel::margin - i + 1) / Panel::margin));
    painter.drawRoundedRect(body.adjusted(-i, -i + 2, i, i), kRadius + i, kRadius + i);
  }
}

}  // namespace

Panel::Panel(QWidget* parent) : QGroupBox(parent) {
  setFont(caption_font(kTitleSize));
  setStyleSheet(bench_style_sheet());
}

void Panel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
  paint_shadow(painter, body);
  QPainterPath outline;
  outline.addRoundedRect(body, kRadius, kRadius);
  painter.fillPath(outline, palette::bone);
  painter.setClipPath(outline);
  const QRectF bar(body.topLeft(), QSizeF(body.width(), kBar));
  painter.fillRect(bar, palette::bar);
  painter.setPen(palette::cream);
  painter.setFont(caption_font(kTitleSize, QFont::Bold));
  painter.drawText(bar.adjusted(kTitleAt, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, title().trimmed());
}

}  // namespace tarnmill::desktop
