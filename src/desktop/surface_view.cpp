#include "desktop/surface_view.h"

#include <QPaintEvent>
#include <QPainter>

#include "desktop/line_walk.h"
#include "desktop/qt_raster.h"
#include "desktop/skin/palette.h"
#include "forms/overlay_line.h"
#include "forms/picture_box.h"

namespace tarnmill::desktop {

namespace {

std::optional<PixelLine> pixels_of(const OverlayLine& line, const Raster& raster) {
  return pixel_line(line.X1.get(), line.Y1.get(), line.X2.get(), line.Y2.get(), raster.width(),
                    raster.height());
}

void paint_line(QPainter& painter, const OverlayLine& line, const Raster& raster) {
  const std::optional<PixelLine> pixels = pixels_of(line, raster);
  if (!pixels) return;
  const QColor color{to_qt(resolve(line.BorderColor))};
  // By the walk of the raster, so that a line taken into it covers the same pixels.
  walk_line(*pixels, raster.width(), raster.height(),
            [&painter, &color](int x, int y) { painter.fillRect(x, y, 1, 1, color); });
}

void paint_outline(QPainter& painter, const QRect& rect) {
  painter.setPen(QPen{palette::display_ink, 1, Qt::DashLine});
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

}  // namespace

SurfaceView::SurfaceView(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void SurfaceView::setOutlined(bool outlined) {
  outlined_ = outlined;
  update();
}

void SurfaceView::show_surface(const PictureBox* surface) {
  surface_ = surface;
  lines_ = surface == nullptr ? QRect{} : reach_of_lines();
  update();
}

void SurfaceView::update_drawn() {
  const QRect changed = dynamic_cast<const QtRaster&>(surface_->raster()).take_changed();
  if (!changed.isEmpty()) update(changed);
}

void SurfaceView::update_lines() {
  const QRect now = reach_of_lines();
  update(lines_ | now);
  lines_ = now;
}

QRect SurfaceView::reach_of_lines() const {
  QRect reach;
  for (const OverlayLine* each : surface_->overlay_lines()) {
    if (!each->Visible) continue;
    const std::optional<PixelLine> line = pixels_of(*each, surface_->raster());
    if (!line) continue;
    reach |=
        QRect{QPoint{line->x1, line->y1}, QPoint{line->x2, line->y2}}.normalized().adjusted(-1, -1, 1, 1);
  }
  return reach & rect();
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  QPainter painter{this};
  if (surface_ == nullptr) {
    painter.fillRect(event->rect(), palette().window());
    return;
  }
  const QRect part = event->rect();
  painter.drawImage(part, image_of(surface_->raster()), part);
  for (const OverlayLine* each : surface_->overlay_lines()) {
    if (each->Visible) paint_line(painter, *each, surface_->raster());
  }
  if (outlined_) paint_outline(painter, rect());
}

}  // namespace tarnmill::desktop
