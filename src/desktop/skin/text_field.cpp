#include "desktop/skin/text_field.h"

#include <QFocusEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "desktop/skin/fonts.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr int kInset = 9;
constexpr int kGap = 3;
constexpr int kPrefixSize = 12;

}  // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {}

void TextField::setPrefix(const QString& prefix) {
  prefix_ = prefix;
  const double width = QFontMetricsF(caption_font(kPrefixSize)).horizontalAdvance(prefix);
  setTextMargins(prefix.isEmpty() ? 0 : static_cast<int>(std::ceil(width)) + kGap, 0, 0, 0);
  update();
}

void TextField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (prefix_.isEmpty()) {
    return;
  }
  QPainter painter(this);
  painter.setFont(caption_font(kPrefixSize));
  painter.setPen(palette::display_dim);
  painter.drawText(rect().adjusted(kInset, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, prefix_);
}

void TextField::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  const bool would_select =
      reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
  QFocusEvent plain(QEvent::FocusIn, would_select ? Qt::OtherFocusReason : reason);
  QLineEdit::focusInEvent(&plain);
}

}  // namespace tarnmill::desktop
