#pragma once

#include <filesystem>
#include <memory>

#include "engine/text.h"
#include "forms/color.h"
#include "forms/font.h"

namespace tarnmill {

/// How a text is printed on a raster.
struct TextStyle {
  Font font;
  Color color = 0;
  /// False fills the cells of the glyphs with `background` first.
  bool transparent = true;
  Color background = 0;
  /// Tenths of a degree, anticlockwise; the text turns about its start.
  int escapement = 0;
  /// Weight 1 to 1000 and height of the cell in pixels; 0 takes those of the font.
  int weight = 0;
  int height = 0;
};

/// A grid of pixels that keeps what was drawn on it. All lengths are pixels; colours come resolved.
class Raster {
 public:
  virtual ~Raster() = default;

  [[nodiscard]] virtual int width() const = 0;
  [[nodiscard]] virtual int height() const = 0;

  /// Fills the whole raster.
  virtual void clear(Color color) = 0;
  /// A line one pixel thick, not antialiased, both ends included; what lies outside is cut off.
  virtual void line(float x1, float y1, float x2, float y2, Color color) = 0;
  /// The colour of a pixel; -1 outside of the raster.
  [[nodiscard]] virtual Color point(int x, int y) const = 0;
  /// Draws a text with its upper left corner at x, y.
  virtual void print(float x, float y, const Text& text, const TextStyle& style) = 0;
  [[nodiscard]] virtual float text_width(const Text& text, const Font& font) const = 0;
  [[nodiscard]] virtual float text_height(const Text& text, const Font& font) const = 0;

  /// A copy with the same pixels.
  [[nodiscard]] virtual std::unique_ptr<Raster> copy() const = 0;
  /// Takes over the pixels of a raster of the same desk and size.
  virtual void paste(const Raster& other) = 0;
  /// Writes a bitmap or, by the ending of the name, a PNG file, whole or not at all. False when it could
  /// not be written.
  [[nodiscard]] virtual bool save(const std::filesystem::path& path) const = 0;
  /// The same, a bitmap under any name.
  [[nodiscard]] virtual bool save_bitmap(const std::filesystem::path& path) const = 0;
};

}  // namespace tarnmill
