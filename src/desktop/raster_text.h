#pragma once

#include <QFont>
#include <QPainter>
#include <QPointF>

#include "forms/raster.h"

namespace tarnmill::desktop {

/// The font that is painted for a font by name, in pixels of a surface of 96 to the inch. A family that isn't
/// there gives way to that of captions.
[[nodiscard]] QFont printed_font(const Font& font);

/// Prints a text, of several lines where it has breaks, with the upper left corner of its cell at `at`.
void print_text(QPainter& painter, const QPointF& at, const Text& text, const TextStyle& style);

/// Size in pixels of a text: its widest line, and the heights of all lines.
[[nodiscard]] float printed_width(const Text& text, const Font& font);
[[nodiscard]] float printed_height(const Text& text, const Font& font);

}  // namespace tarnmill::desktop
