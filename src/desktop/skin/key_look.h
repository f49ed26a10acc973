#pragma once

#include <QColor>
#include <QFont>

#include "desktop/skin/icons.h"
#include "desktop/skin/key_role.h"

namespace tarnmill::desktop {

/// Colours and type of one kind of key at rest.
struct KeyLook {
  QColor face;
  QColor lip;
  IconInk ink;
  /// Share of white in the line along the top edge; 0 for none.
  double highlight = 0;
  /// Share of white in the face under the mouse.
  double hover = 0.10;
  QFont::Weight weight = QFont::Medium;
  int caption_size = 14;
  /// The lip runs around the whole key as a thin line.
  bool outlined = false;
};

/// What a solid key of `role` looks like; `chosen` is the key of the field that takes input. Flat keys have
/// none of it but the ink and the type.
KeyLook key_look(KeyRole role, bool chosen);

/// Whether keys of `role` lie flat on their bar, with a face only under the mouse.
bool is_flat(KeyRole role);

/// Height in pixels of the lip of a key `height` high.
double lip_height(double height);
/// Radius in pixels of the corners of a key `height` high.
double corner_radius(double height);

}  // namespace tarnmill::desktop
