#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

#include "desktop/skin/key_look.h"

namespace tarnmill::desktop {

/// What a key's face shows besides its caption.
struct FaceState {
  bool enabled = true;
  bool hovered = false;
  bool pressed = false;
  bool chosen = false;
};

/// The rectangle of the face, without the lip, of a solid key that fills `key` (pixels).
QRectF face_rect(const QRectF& key, const KeyLook& look, bool pressed);

/// The outline of the shadow of a solid key that fills `key`. It reaches half a pixel beyond the sides and
/// one and a half below.
QPainterPath shadow_path(const QRectF& key);

/// Fills the shadow of a solid key that fills `key`.
void paint_shadow(QPainter& painter, const QRectF& key);

/// Draws lip and face of a solid key.
void paint_solid_face(QPainter& painter, const QRectF& key, const KeyLook& look, const FaceState& state);

/// Draws the ground of a flat key: nothing at rest.
void paint_flat_face(QPainter& painter, const QRectF& key, KeyRole role, const FaceState& state);

}  // namespace tarnmill::desktop
