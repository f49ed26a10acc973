#include "desktop/skin/ground.h"

#include <QLinearGradient>
#include <QPainter>

#include "desktop/skin/fonts.h"
#include "desktop/skin/overlay.h"
#include "desktop/skin/palette.h"
#include "desktop/skin/style_sheets.h"

namespace tarnmill::desktop {

namespace {

constexpr int kBands = 256;

/// Bands two units high on a scale of 512 units, whatever the window's height.
void paint_bands(QPainter& painter, const QRect& rect) {
  const auto top_of = [&](int band) { return qRound(band * rect.height() / double{kBands}); };
  for (int i = 0; i < kBands; ++i) {
    painter.fillRect(0, top_of(i), rect.width(), top_of(i + 1) - top_of(i), QColor(palette::case_red, 0, i));
  }
}

QColor frame_colour(GroundKind kind) {
  switch (kind) {
    case GroundKind::body:
      return palette::body_line;
    case GroundKind::bone:
      return palette::line_on_bone;
    default:
      return {};
  }
}

bool is_light(GroundKind kind) { return kind == GroundKind::bone || kind == GroundKind::framed_bone; }

}  // namespace

Ground::Ground(QWidget* parent) : QWidget(parent), overlay_(new Overlay(this)) {
  register_fonts();
  setFont(caption_font(12));
  setKind(kind_);
}

void Ground::setKind(GroundKind kind) {
  kind_ = kind;
  overlay_->set_ring_colour(is_light(kind) ? palette::focus_on_light : palette::focus_on_dark);
  overlay_->set_frame_colour(frame_colour(kind));
  setStyleSheet(is_light(kind) ? bench_style_sheet() : instrument_style_sheet());
  update();
}

void Ground::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (kind_ == GroundKind::banded_case) {
    paint_bands(painter, rect());
  } else if (kind_ == GroundKind::body) {
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, palette::body_top);
    gradient.setColorAt(1, palette::body_bottom);
    painter.fillRect(rect(), gradient);
  } else {
    painter.fillRect(rect(), palette::bone);
  }
}

}  // namespace tarnmill::desktop
