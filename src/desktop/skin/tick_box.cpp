#include "desktop/skin/tick_box.h"

#include <QPainter>

#include "desktop/skin/fonts.h"
#include "desktop/skin/icons.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr double kBox = 18;
constexpr double kRadius = 4;
constexpr int kTextAt = 25;
/// Room for the focus ring around the box.
constexpr double kRing = 2;

}  // namespace

TickBox::TickBox(QWidget* parent) : QCheckBox(parent) { setFont(caption_font(12)); }

QSize TickBox::sizeHint() const {
  return {kTextAt + fontMetrics().size(Qt::TextShowMnemonic, text()).width() + 2, 22};
}

bool TickBox::hitButton(const QPoint& position) const { return rect().contains(position); }

void TickBox::paint_box(QPainter& painter, const QRectF& box) const {
  const bool dark = isChecked() && isEnabled();
  const QRectF outline = box.adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(dark ? palette::selected : isEnabled() ? palette::tick_line : palette::bone_rule);
  painter.setBrush(dark ? palette::selected : isEnabled() ? palette::paper : palette::disabled_box);
  painter.drawRoundedRect(outline, kRadius, kRadius);
  if (isChecked()) {
    paint_icon(painter, "tick", box.adjusted(2, 2, -2, -2), {palette::selected_text, palette::selected_text});
  }
}

void TickBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box(kRing, (height() - kBox) / 2, kBox, kBox);
  paint_box(painter, box);
  if (hasFocus()) {
    painter.setPen(QPen(palette::focus_on_light, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(-1, -1, 1, 1), kRadius + 1, kRadius + 1);
  }
  painter.setFont(font());
  painter.setPen(palette::ink);
  painter.setOpacity(isEnabled() ? 1 : 0.5);
  const QRect row = rect().adjusted(kTextAt + static_cast<int>(kRing), 0, 0, 0);
  painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
}

}  // namespace tarnmill::desktop
