#pragma once

#include <memory>
#include <variant>
#include <vector>

#include "forms/color.h"
#include "forms/control.h"
#include "forms/font.h"
#include "forms/raster.h"

namespace tarnmill {

class OverlayLine;

/// The unit of a surface's coordinates, and how many of it a pixel is.
enum class SurfaceUnit { pixel = 1, twip = 15 };

/// The drawing surface: a raster that keeps what was drawn on it until it is cleared, with a current
/// point, a back colour, a fore colour and a font. All lengths on it are in its own unit.
class PictureBox final : public Control, public FontProperties {
 public:
  /// Of this many pixels. Setting its width or height makes a new raster of that size, empty.
  PictureBox(Window& window, std::string_view name, int width, int height, Color back_color,
             SurfaceUnit unit = SurfaceUnit::pixel, Place place = Place::on_window);
  ~PictureBox() override;

  /// Size of the drawable area.
  [[nodiscard]] float ScaleWidth() const { return static_cast<float>(raster_->width()) * unit_; }
  [[nodiscard]] float ScaleHeight() const { return static_cast<float>(raster_->height()) * unit_; }
  /// How many of its units a pixel is.
  [[nodiscard]] float units_per_pixel() const { return unit_; }

  /// The current point; setting it moves the pen without drawing.
  Property<float> CurrentX{*this, "CurrentX"};
  Property<float> CurrentY{*this, "CurrentY"};
  /// Setting it erases the raster to the new colour, also when it has that colour already.
  Property<Color> BackColor{*this, "BackColor", 0, Repeat::counts};
  Property<Color> ForeColor{*this, "ForeColor"};
  /// True prints text without filling behind the glyphs.
  Property<bool> FontTransparent{*this, "FontTransparent", true};

  /// A one-pixel line between two points; leaves the current point at the second.
  void Line(float x1, float y1, float x2, float y2, Color color);
  /// The same from the current point.
  void LineTo(float x, float y, Color color);
  /// Erases the raster to the back colour, and sets the current point to (0, 0).
  void Cls();
  /// Draws text at the current point in the fore colour and font.
  void Print(const tarnmill::Text& text);
  /// The same turned by `escapement` tenths of a degree anticlockwise, with a weight and a height in
  /// pixels of its own.
  void PrintRotated(const tarnmill::Text& text, int escapement, int weight, int height);
  /// Size of a text.
  [[nodiscard]] float TextWidth(const tarnmill::Text& text) const;
  [[nodiscard]] float TextHeight(const tarnmill::Text& text) const;
  /// The colour number of a pixel, -1 outside. x and y count pixels, whatever the unit.
  [[nodiscard]] Color Point(int x, int y) const;

  /// Makes what was drawn the persistent bitmap beneath (`Picture` = `Image`).
  void FreezePicture();
  /// Removes the persistent bitmap: an erased surface shows its back colour again.
  void RemovePicture();
  /// Draws the visible overlay lines into the raster, as a paint into its own device context does.
  void TakeInOverlayLines();
  /// Repaints at once.
  void Refresh();

  /// The pixels, for a view, a printer or a file.
  [[nodiscard]] const Raster& raster() const { return *raster_; }
  [[nodiscard]] const std::vector<OverlayLine*>& overlay_lines() const { return overlay_lines_; }
  void adopt(OverlayLine& line) { overlay_lines_.push_back(&line); }

  /// \name What a recording holds, colours as the program gave them
  ///@{
  struct LineDrawn {
    float x1, y1, x2, y2;
    Color color;
  };
  struct Cleared {};
  struct BackColorSet {
    Color color;
  };
  struct Printed {
    float x, y;
    tarnmill::Text text;
  };
  using Operation = std::variant<LineDrawn, Cleared, BackColorSet, Printed>;
  ///@}
  /// Starts a recording, emptying the last one, or stops it.
  void Record(bool on);
  [[nodiscard]] const std::vector<Operation>& Ops() const { return operations_; }

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  void erase();
  void resize();
  void record(Operation operation);
  [[nodiscard]] TextStyle style() const;

  float unit_;
  std::unique_ptr<Raster> raster_;
  std::unique_ptr<Raster> picture_;
  std::vector<OverlayLine*> overlay_lines_;
  std::vector<Operation> operations_;
  bool recording_ = false;

 public:
  /// \name The size and its unit by name; 1 is the twip and 3 the pixel
  ///@{
  ComputedProperty scale_width_property{*this, "ScaleWidth", [this] { return to_variant(ScaleWidth()); }};
  ComputedProperty scale_height_property{*this, "ScaleHeight", [this] { return to_variant(ScaleHeight()); }};
  ComputedProperty ScaleMode{*this, "ScaleMode", [this] { return Variant{unit_ == 1 ? 3 : 1}; }};
  ///@}

  /// Tells the views that the raster shows something else now.
  ComputedProperty Drawn{*this, "Drawn", [] { return Variant{}; }};
};

}  // namespace tarnmill
