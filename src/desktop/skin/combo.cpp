#include "desktop/skin/combo.h"

#include <QPainter>

#include "desktop/skin/fonts.h"
#include "desktop/skin/icons.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr int kInset = 9;
constexpr int kArrowRoom = 24;
constexpr double kArrowSize = 14;
constexpr double kRadius = 5;

struct ComboLook {
  QColor face;
  QColor line;
  QColor ink;
  QColor focus;
  QFont::Weight weight;
};

ComboLook combo_look(ComboKind kind) {
  switch (kind) {
    case ComboKind::green:
      return {palette::display, palette::line_on_green, palette::display_ink, palette::focus_on_dark,
              QFont::Normal};
    case ComboKind::dark:
      return {palette::function, palette::function_lip, palette::cream, palette::focus_on_dark,
              QFont::DemiBold};
    default:
      return {palette::paper, palette::line_on_bone, palette::ink, palette::focus_on_light, QFont::Normal};
  }
}

}  // namespace

Combo::Combo(QWidget* parent) : QComboBox(parent) { setFont(caption_font(12)); }

void Combo::setKind(ComboKind kind) {
  kind_ = kind;
  setFont(caption_font(12, combo_look(kind).weight));
  update();
}

void Combo::paint_box(QPainter& painter) const {
  const ComboLook look = combo_look(kind_);
  const double pen = hasFocus() ? 2 : 1;
  painter.setPen(QPen(hasFocus() ? look.focus : look.line, pen));
  const bool lit = isEnabled() && underMouse() && kind_ == ComboKind::dark;
  painter.setBrush(lit ? palette::mix(look.face, Qt::white, 0.1) : look.face);
  painter.drawRoundedRect(QRectF(rect()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2), kRadius, kRadius);
  QRectF arrow(0, 0, kArrowSize, kArrowSize);
  arrow.moveCenter({width() - kArrowRoom / 2.0, height() / 2.0});
  paint_icon(painter, "chevron-ink", arrow, {look.ink, look.ink});
}

void Combo::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(isEnabled() ? 1 : 0.5);
  paint_box(painter);
  if (isEditable()) {
    return;
  }
  painter.setFont(font());
  painter.setPen(combo_look(kind_).ink);
  const QRect box = rect().adjusted(kInset, 0, -kArrowRoom, 0);
  const QString shown = currentIndex() < 0 ? placeholderText() : currentText();
  const QString fitted = painter.fontMetrics().elidedText(shown, Qt::ElideRight, box.width());
  painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, fitted);
}

}  // namespace tarnmill::desktop
