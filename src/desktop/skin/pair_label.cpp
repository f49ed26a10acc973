#include "desktop/skin/pair_label.h"

#include <QPainter>

namespace tarnmill::desktop {

PairLabel::PairLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void PairLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const QString words = text().simplified();
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, words.section(' ', 0, 0));
  painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, words.section(' ', 1));
}

}  // namespace tarnmill::desktop
