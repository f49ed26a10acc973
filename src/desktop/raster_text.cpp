#include "desktop/raster_text.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"
#include "desktop/skin/fonts.h"

namespace tarnmill::desktop {

namespace {

constexpr double pixels_per_point = 96.0 / 72.0;

int at_least_one(double pixels) { return std::max(1, static_cast<int>(std::lround(pixels))); }

QStringList lines_of(const Text& text) { return lines_to_qt(text).split('\n'); }

/// Resizes `font` so that its cell, from the highest ascent to the lowest descent, is `height` pixels high.
void fit_cell(QFont& font, int height) {
  font.setPixelSize(height);
  const double cell = QFontMetricsF{font}.height();
  if (cell > 0) font.setPixelSize(at_least_one(height * height / cell));
}

QFont styled_font(const TextStyle& style) {
  QFont font = printed_font(style.font);
  if (style.weight > 0) font.setWeight(static_cast<QFont::Weight>(std::min(style.weight, 1000)));
  if (style.height > 0) fit_cell(font, style.height);
  return font;
}

}  // namespace

QFont printed_font(const Font& font) {
  QFont made;
  made.setFamilies(QStringList{to_qt(font.name)} + caption_families());
  made.setPixelSize(at_least_one(font.size * pixels_per_point));
  made.setBold(font.bold);
  made.setItalic(font.italic);
  made.setUnderline(font.underline);
  made.setStrikeOut(font.strike_through);
  // Coloured fringes would be pixels of colours that nobody chose.
  made.setStyleStrategy(QFont::NoSubpixelAntialias);
  return made;
}

void print_text(QPainter& painter, const QPointF& at, const Text& text, const TextStyle& style) {
  const QFont font = styled_font(style);
  const QFontMetricsF metrics{font};
  painter.save();
  painter.setFont(font);
  painter.setPen(QColor{to_qt(style.color)});
  painter.translate(at);
  painter.rotate(-style.escapement / 10.0);
  double top = 0;
  for (const QString& line : lines_of(text)) {
    const QRectF cell{0, top, metrics.horizontalAdvance(line), metrics.height()};
    if (!style.transparent) painter.fillRect(cell, QColor{to_qt(style.background)});
    painter.drawText(QPointF{0, top + metrics.ascent()}, line);
    top += metrics.height();
  }
  painter.restore();
}

float printed_width(const Text& text, const Font& font) {
  const QFontMetricsF metrics{printed_font(font)};
  double widest = 0;
  for (const QString& line : lines_of(text)) widest = std::max(widest, metrics.horizontalAdvance(line));
  return static_cast<float>(widest);
}

float printed_height(const Text& text, const Font& font) {
  const QFontMetricsF metrics{printed_font(font)};
  return static_cast<float>(metrics.height() * static_cast<double>(lines_of(text).size()));
}

}  // namespace tarnmill::desktop
