#pragma once

#include <QImage>
#include <QRect>

#include "forms/raster.h"

namespace tarnmill::desktop {

/// The toolkit's colour of a resolved colour number, and back.
[[nodiscard]] QRgb to_qt(Color color);
[[nodiscard]] Color from_qt(QRgb color);

/// A raster on an image of the toolkit.
class QtRaster final : public Raster {
 public:
  QtRaster(int width, int height);
  explicit QtRaster(QImage image);

  [[nodiscard]] int width() const override { return image_.width(); }
  [[nodiscard]] int height() const override { return image_.height(); }

  void clear(Color color) override;
  void line(float x1, float y1, float x2, float y2, Color color) override;
  [[nodiscard]] Color point(int x, int y) const override;
  void print(float x, float y, const Text& text, const TextStyle& style) override;
  [[nodiscard]] float text_width(const Text& text, const Font& font) const override;
  [[nodiscard]] float text_height(const Text& text, const Font& font) const override;
  [[nodiscard]] std::unique_ptr<Raster> copy() const override;
  void paste(const Raster& other) override;
  [[nodiscard]] bool save(const std::filesystem::path& path) const override;
  [[nodiscard]] bool save_bitmap(const std::filesystem::path& path) const override;

  [[nodiscard]] const QImage& image() const { return image_; }
  /// The rectangle within which pixels were drawn since this was asked last, for the one view that shows it.
  [[nodiscard]] QRect take_changed() const;

 private:
  QImage image_;
  mutable QRect changed_;
};

/// The image of a raster of this desk.
[[nodiscard]] const QImage& image_of(const Raster& raster);

}  // namespace tarnmill::desktop
