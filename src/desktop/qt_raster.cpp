#include "desktop/qt_raster.h"

#include <QFile>
#include <QPainter>
#include <utility>

#include "desktop/line_walk.h"
#include "desktop/picture_data.h"
#include "desktop/raster_text.h"

namespace tarnmill::desktop {

QRgb to_qt(Color color) { return qRgb(red_of(color), green_of(color), blue_of(color)); }

Color from_qt(QRgb color) { return rgb(qRed(color), qGreen(color), qBlue(color)); }

QtRaster::QtRaster(int width, int height) : QtRaster{QImage{width, height, QImage::Format_RGB32}} {
  image_.fill(Qt::black);
}

QtRaster::QtRaster(QImage image) : image_{std::move(image)}, changed_{image_.rect()} {}

void QtRaster::clear(Color color) {
  image_.fill(to_qt(color));
  changed_ = image_.rect();
}

void QtRaster::line(float x1, float y1, float x2, float y2, Color color) {
  const std::optional<PixelLine> line = pixel_line(x1, y1, x2, y2, width(), height());
  if (!line) return;
  const QRgb pixel = to_qt(color);
  walk_line(*line, width(), height(), [this, pixel](int x, int y) {
    reinterpret_cast<QRgb*>(image_.scanLine(y))[x] = pixel;  // NOLINT: how the toolkit gives pixels
  });
  const QRect reach = QRect{QPoint{line->x1, line->y1}, QPoint{line->x2, line->y2}}.normalized();
  changed_ |= reach.adjusted(-1, -1, 1, 1) & image_.rect();
}

Color QtRaster::point(int x, int y) const { return image_.valid(x, y) ? from_qt(image_.pixel(x, y)) : -1; }

void QtRaster::print(float x, float y, const Text& text, const TextStyle& style) {
  QPainter painter{&image_};
  print_text(painter, QPointF{x, y}, text, style);
  // Turned text has no simple bounds, and is printed once in a while only.
  changed_ = image_.rect();
}

float QtRaster::text_width(const Text& text, const Font& font) const { return printed_width(text, font); }

float QtRaster::text_height(const Text& text, const Font& font) const { return printed_height(text, font); }

std::unique_ptr<Raster> QtRaster::copy() const { return std::make_unique<QtRaster>(image_.copy()); }

void QtRaster::paste(const Raster& other) {
  image_ = image_of(other).copy();
  changed_ = image_.rect();
}

bool QtRaster::save(const std::filesystem::path& path) const {
  const bool png = QFile::decodeName(path.c_str()).endsWith(".png", Qt::CaseInsensitive);
  return save_image(image_, path, png ? "PNG" : "BMP");
}

bool QtRaster::save_bitmap(const std::filesystem::path& path) const {
  return save_image(image_, path, "BMP");
}

QRect QtRaster::take_changed() const { return std::exchange(changed_, QRect{}); }

const QImage& image_of(const Raster& raster) { return dynamic_cast<const QtRaster&>(raster).image(); }

}  // namespace tarnmill::desktop
