#include "desktop/skin/display.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include "desktop/skin/fonts.h"
#include "desktop/skin/palette.h"
#include "desktop/skin/text_fit.h"

namespace tarnmill::desktop {

Display::Display(QWidget* parent) : QLabel(parent) {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, palette::display_ink);
  setPalette(colours);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setTextFormat(Qt::PlainText);
}

QString Display::sizes() const {
  QStringList words;
  for (const int size : sizes_) {
    words += QString::number(size);
  }
  return words.join(',');
}

void Display::setSizes(const QString& sizes) {
  QList<int> found;
  for (const QString& word : sizes.split(',')) {
    if (const int size = word.toInt(); size > 0) {
      found += size;
    }
  }
  if (!found.isEmpty()) {
    sizes_ = found;
    update();
  }
}

void Display::setMono(bool mono) {
  mono_ = mono;
  update();
}

void Display::setWeight(int weight) {
  weight_ = weight;
  update();
}

QFont Display::font_at(int size) const {
  const auto weight = static_cast<QFont::Weight>(weight_);
  return mono_ ? number_font(size, weight) : caption_font(size, weight);
}

int Display::shown_size() const {
  return fitting_size(text(), font_at(sizes_.front()), sizes_, contentsRect().width());
}

void Display::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font_at(shown_size()));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setOpacity(isEnabled() ? 1 : 0.5);
  const QRect box = contentsRect();
  const bool overflows = QFontMetricsF(painter.font()).horizontalAdvance(text()) > box.width();
  const int side = overflows ? Qt::AlignRight : static_cast<int>(alignment() & Qt::AlignHorizontal_Mask);
  painter.drawText(box, side | static_cast<int>(alignment() & Qt::AlignVertical_Mask) | Qt::TextSingleLine,
                   text());
}

}  // namespace tarnmill::desktop
