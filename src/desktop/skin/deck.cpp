#include "desktop/skin/deck.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr double kBezel = 5;
constexpr double kScreenRadius = 6;
constexpr double kDeckRadius = 12;
constexpr double kCardRadius = 8;

void paint_panel(QPainter& painter, const QRectF& rect, double radius) {
  painter.setPen(QPen(palette::deck_line, 1));
  painter.setBrush(palette::deck);
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

/// Darkens `shade` from its start to nothing at its end, `depth` being the share of black at the start.
void paint_inner_shadow(QPainter& painter, const QRectF& shade, QPointF end, double depth) {
  QLinearGradient gradient(shade.topLeft(), end);
  gradient.setColorAt(0, QColor(0, 0, 0, static_cast<int>(255 * depth)));
  gradient.setColorAt(1, Qt::transparent);
  painter.fillRect(shade, gradient);
}

void paint_screen(QPainter& painter, const QRectF& rect) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette::bezel_rim);
  painter.drawRoundedRect(rect, kDeckRadius, kDeckRadius);
  painter.setBrush(palette::bezel);
  painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), kDeckRadius - 1, kDeckRadius - 1);
  const QRectF screen = rect.adjusted(kBezel, kBezel, -kBezel, -kBezel);
  QPainterPath path;
  path.addRoundedRect(screen, kScreenRadius, kScreenRadius);
  painter.fillPath(path, palette::display);
  painter.setClipPath(path);
  const QRectF top(screen.topLeft(), QSizeF(screen.width(), 9));
  paint_inner_shadow(painter, top, top.bottomLeft(), 0.24);
  const QRectF left(screen.topLeft(), QSizeF(5, screen.height()));
  paint_inner_shadow(painter, left, left.topRight(), 0.13);
}

void paint_plot_frame(QPainter& painter, const QRect& rect) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(palette::plot_rim);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  painter.setPen(palette::bezel);
  painter.drawRect(rect.adjusted(1, 1, -2, -2));
}

void paint_bar(QPainter& painter, const QRect& rect) {
  painter.fillRect(rect, palette::bar);
  painter.fillRect(rect.adjusted(0, rect.height() - 1, 0, 0), palette::bar_line);
}

/// White paper, its margins dashed, and lines of text, each third one short as the end of a paragraph.
void paint_page(QPainter& painter, const QRect& rect) {
  constexpr int margin = 12;
  constexpr int line_step = 8;
  constexpr int short_by = 14;
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(palette::line_on_bone);
  painter.setBrush(Qt::white);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  const QRect area = rect.adjusted(margin, margin, -margin - 3, -margin + 6);
  painter.setPen(QPen(palette::selected, 1, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(area.adjusted(0, 0, -1, -1));
  for (int y = area.top() + line_step, line = 1; y < area.bottom() - 3; y += line_step, ++line) {
    const int end = area.right() - 5 - (line % 3 == 0 ? short_by : 0);
    painter.fillRect(QRect(QPoint(area.left() + 5, y), QPoint(end, y + 1)), palette::bone_rule);
  }
}

}  // namespace

Deck::Deck(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

void Deck::setKind(DeckKind kind) {
  kind_ = kind;
  update();
}

void Deck::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  switch (kind_) {
    case DeckKind::keys:
      return paint_panel(painter, rect(), kDeckRadius);
    case DeckKind::card:
      return paint_panel(painter, rect(), kCardRadius);
    case DeckKind::display:
      return paint_screen(painter, rect());
    case DeckKind::plot:
      return paint_plot_frame(painter, rect());
    case DeckKind::bar:
      return paint_bar(painter, rect());
    case DeckKind::page:
      return paint_page(painter, rect());
  }
}

}  // namespace tarnmill::desktop
