#include "desktop/skin/key_caption.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <vector>

#include "desktop/skin/fonts.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr QChar kIconPlace(0xFFFC);
constexpr double kGapBeforeText = 8;
constexpr double kGapAroundInnerIcon = 1;
constexpr double kStackedOverlap = 1;

double text_width(const QPainter& painter, const QString& text) {
  static const QRegularExpression mark("&(.)");
  return QFontMetricsF(painter.font()).horizontalAdvance(QString(text).replace(mark, "\\1"));
}

/// Draws text whose left edge is at `left` and gives its right edge.
double paint_text(QPainter& painter, const QRectF& box, double left, const QString& text) {
  const double width = text_width(painter, text);
  painter.drawText(QRectF(left, box.top(), width + 1, box.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextDontClip, text);
  return left + width;
}

QFont raised_font(const QFont& base) {
  QFont font = base;
  font.setPixelSize(base.pixelSize() * 3 / 4);
  return font;
}

double raised_width(const QPainter& painter, const QString& text) {
  return text.isEmpty() ? 0 : 1 + QFontMetricsF(raised_font(painter.font())).horizontalAdvance(text);
}

void paint_raised(QPainter& painter, const QRectF& box, double left, const QString& text) {
  painter.save();
  const double rise = painter.font().pixelSize() * 0.4;
  painter.setFont(raised_font(painter.font()));
  paint_text(painter, box.translated(0, -rise), left + 1, text);
  painter.restore();
}

void paint_inner_icon(QPainter& painter, const QRectF& box, const Caption& caption, const IconInk& colours) {
  QFont light = painter.font();
  light.setWeight(QFont::Normal);
  painter.setFont(light);
  const QString before = caption.text.section(kIconPlace, 0, 0);
  const QString behind = caption.text.section(kIconPlace, 1);
  const QSizeF icon = icon_size(caption.icon_name, caption.icon_height);
  const double width =
      text_width(painter, before) + text_width(painter, behind) + icon.width() + 2 * kGapAroundInnerIcon;
  double left = paint_text(painter, box, box.center().x() - width / 2, before) + kGapAroundInnerIcon;
  paint_icon(painter, caption.icon_name, {{left, box.center().y() - icon.height() / 2}, icon}, colours);
  left += icon.width() + kGapAroundInnerIcon;
  paint_text(painter, box, left, behind);
}

void paint_stacked(QPainter& painter, const QRectF& box, const Caption& caption, const IconInk& colours) {
  const QSizeF icon = icon_size(caption.icon_name, caption.icon_height);
  const double line = QFontMetricsF(painter.font()).height();
  const double top = box.center().y() - (icon.height() + line - kStackedOverlap) / 2;
  paint_icon(painter, caption.icon_name, {{box.center().x() - icon.width() / 2, top}, icon}, colours);
  const QRectF row(box.left(), top + icon.height() - kStackedOverlap, box.width(), line);
  painter.drawText(row, Qt::AlignCenter | Qt::TextShowMnemonic, caption.text);
}

void paint_row(QPainter& painter, const QRectF& box, const Caption& caption, const IconInk& colours) {
  if (caption.icon_name.isEmpty() && caption.superscript.isEmpty()) {
    painter.drawText(box, Qt::AlignCenter | Qt::TextShowMnemonic, caption.text);
    return;
  }
  const QSizeF icon = icon_size(caption.icon_name, caption.icon_height);
  const double gap = icon.isEmpty() || caption.text.isEmpty() ? 0 : kGapBeforeText;
  const double width =
      icon.width() + gap + text_width(painter, caption.text) + raised_width(painter, caption.superscript);
  double left = box.center().x() - width / 2;
  if (!icon.isEmpty()) {
    paint_icon(painter, caption.icon_name, {{left, box.center().y() - icon.height() / 2}, icon}, colours);
    left += icon.width() + gap;
  }
  left = paint_text(painter, box, left, caption.text);
  paint_raised(painter, box, left, caption.superscript);
}

}  // namespace

void paint_key_caption(QPainter& painter, const QRectF& box, const Caption& caption, const IconInk& colours) {
  painter.setPen(colours.stroke);
  if (caption.text.contains(kIconPlace)) {
    paint_inner_icon(painter, box, caption, colours);
  } else if (caption.stacked) {
    paint_stacked(painter, box, caption, colours);
  } else {
    paint_row(painter, box, caption, colours);
  }
}

void paint_chip(QPainter& painter, const QRectF& box, const QString& word, bool enabled) {
  QRectF chip(0, 0, 43.5, 21.5);
  chip.moveCenter(box.center());
  const QColor ground = palette::mix(palette::function, palette::body_bottom, 0.5);
  painter.setPen(QPen(palette::chip_rim, 1.5));
  painter.setBrush(enabled ? palette::display : palette::mix(palette::display, ground, 0.5));
  painter.drawRoundedRect(chip, 4, 4);
  painter.setFont(caption_font(12, QFont::Bold));
  painter.setPen(enabled ? palette::display_ink : palette::mix(palette::display_ink, palette::display, 0.35));
  painter.drawText(chip, Qt::AlignCenter, word);
}

}  // namespace tarnmill::desktop
