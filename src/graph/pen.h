#pragma once

namespace tarnmill {

/// What the pen of a plot does at a defined point.
enum class PenMove {
  place,           ///< goes there without drawing
  line,            ///< draws from where it is
  line_then_place  ///< draws, and stays up behind it
};

/// The state of the pen between two points.
struct Pen {
  bool up = true;        ///< at the start, and while the last defined point lay outside the vertical range
  bool unplaced = true;  ///< until it has first been placed on the surface

  /// Takes the pen to the next defined point: says what to do there and keeps the state behind it. A segment
  /// is drawn when at least one of its ends lies in the vertical range.
  PenMove move_to(bool in_range);

  bool operator==(const Pen&) const = default;
};

}  // namespace tarnmill
