#include "forms/picture_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/desk.h"
#include "forms/overlay_line.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

PictureBox::PictureBox(Window& window, std::string_view name, int width, int height, Color back_color,
                       SurfaceUnit unit, Place place)
    : Control{window, name, place},
      FontProperties{static_cast<Node&>(*this)},
      unit_{static_cast<float>(unit)},
      raster_{workbench().desk().make_raster(width, height)} {
  BackColor.start_as(back_color);
  raster_->clear(resolve(back_color));
}

PictureBox::~PictureBox() = default;

void PictureBox::Line(float x1, float y1, float x2, float y2, Color color) {
  raster_->line(x1 / unit_, y1 / unit_, x2 / unit_, y2 / unit_, resolve(color));
  CurrentX = x2;
  CurrentY = y2;
  record(LineDrawn{x1, y1, x2, y2, color});
  Drawn.changed();
}

void PictureBox::LineTo(float x, float y, Color color) { Line(CurrentX, CurrentY, x, y, color); }

void PictureBox::Cls() {
  erase();
  record(Cleared{});
}

void PictureBox::erase() {
  if (picture_) {
    raster_->paste(*picture_);
  } else {
    raster_->clear(resolve(BackColor));
  }
  CurrentX = 0;
  CurrentY = 0;
  Drawn.changed();
}

TextStyle PictureBox::style() const {
  TextStyle style;
  style.font = FontProperties::get();
  style.color = resolve(ForeColor);
  style.transparent = FontTransparent;
  style.background = resolve(BackColor);
  return style;
}

void PictureBox::Print(const tarnmill::Text& text) { PrintRotated(text, 0, 0, 0); }

void PictureBox::PrintRotated(const tarnmill::Text& text, int escapement, int weight, int height) {
  TextStyle how = style();
  how.escapement = escapement;
  how.weight = weight;
  how.height = height;
  raster_->print(CurrentX / unit_, CurrentY / unit_, text, how);
  record(Printed{CurrentX, CurrentY, text});
  CurrentX = 0;
  CurrentY = CurrentY + TextHeight(text);
  Drawn.changed();
}

float PictureBox::TextWidth(const tarnmill::Text& text) const {
  return raster_->text_width(text, FontProperties::get()) * unit_;
}

float PictureBox::TextHeight(const tarnmill::Text& text) const {
  return raster_->text_height(text, FontProperties::get()) * unit_;
}

Color PictureBox::Point(int x, int y) const { return raster_->point(x, y); }

void PictureBox::FreezePicture() { picture_ = raster_->copy(); }

void PictureBox::RemovePicture() {
  picture_.reset();
  erase();
}

void PictureBox::TakeInOverlayLines() {
  for (const OverlayLine* each : overlay_lines_) {
    if (each->Visible) raster_->line(each->X1, each->Y1, each->X2, each->Y2, resolve(each->BorderColor));
  }
  Drawn.changed();
}

void PictureBox::Refresh() { workbench().desk().refresh(window()); }

void PictureBox::Record(bool on) {
  if (on) operations_.clear();
  recording_ = on;
}

void PictureBox::record(Operation operation) {
  if (recording_) operations_.push_back(std::move(operation));
}

/// Takes the size of the control, at least a pixel.
void PictureBox::resize() {
  constexpr double twips_per_pixel = 15;
  const auto pixels = [](double twips) {
    return std::max(1, static_cast<int>(std::lround(twips / twips_per_pixel)));
  };
  raster_ = workbench().desk().make_raster(pixels(Width), pixels(Height));
  picture_.reset();
  erase();
}

void PictureBox::property_changed(const PropertyBase& property) {
  if (&property == &Width || &property == &Height) resize();
  if (&property != &BackColor) return;
  picture_.reset();
  erase();
  record(BackColorSet{BackColor});
}

}  // namespace tarnmill
