#include "desktop/skin/nameplate.h"

#include <QFontMetricsF>
#include <QPainter>

#include "desktop/skin/fonts.h"
#include "desktop/skin/icons.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr double kSubtitleGap = 10;

}  // namespace

Nameplate::Nameplate(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

void Nameplate::setTitle(const QString& title) {
  title_ = title;
  update();
}

void Nameplate::setSubtitle(const QString& subtitle) {
  subtitle_ = subtitle;
  update();
}

void Nameplate::setSmall(bool small) {
  small_ = small;
  update();
}

void Nameplate::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double icon = small_ ? 16 : 20;
  paint_icon(painter, "app", {0, (height() - icon) / 2.0, icon, icon},
             {palette::display_ink, palette::display});
  const QFont title_font = caption_font(small_ ? 13 : 15, QFont::Bold);
  const QFontMetricsF metrics(title_font);
  const double left = small_ ? 24 : 28;
  const double baseline = height() / 2.0 + (metrics.ascent() - metrics.descent()) / 2;
  painter.setFont(title_font);
  painter.setPen(palette::cream);
  painter.drawText(QPointF(left, baseline), title_);
  painter.setFont(caption_font(12));
  painter.setPen(palette::lilac);
  painter.drawText(QPointF(left + metrics.horizontalAdvance(title_) + kSubtitleGap, baseline), subtitle_);
}

}  // namespace tarnmill::desktop
