#include "desktop/skin/key_face.h"

#include <QLinearGradient>

#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr double kPressedDarker = 0.14;
constexpr double kGlossAtTop = 0.09;
constexpr double kShadeAtBottom = 0.05;
/// Where along the height a face has its own colour.
constexpr double kWaist = 0.55;
constexpr double kDisabled = 0.5;

QPainterPath rounded(const QRectF& rect, double radius) {
  QPainterPath path;
  path.addRoundedRect(rect, radius, radius);
  return path;
}

QColor resting_face(const KeyLook& look, const FaceState& state) {
  if (state.pressed) {
    return palette::mix(look.face, Qt::black, kPressedDarker);
  }
  return state.hovered ? palette::mix(look.face, Qt::white, look.hover) : look.face;
}

QLinearGradient face_gradient(const QRectF& face, const QColor& colour, bool pressed) {
  QLinearGradient gradient(face.topLeft(), face.bottomLeft());
  gradient.setColorAt(0, pressed ? colour : palette::mix(colour, Qt::white, kGlossAtTop));
  gradient.setColorAt(kWaist, colour);
  gradient.setColorAt(1, palette::mix(colour, Qt::black, kShadeAtBottom));
  return gradient;
}

void paint_gloss(QPainter& painter, const QPainterPath& face, double share) {
  QColor white(Qt::white);
  white.setAlphaF(static_cast<float>(share));
  painter.fillPath(face.subtracted(face.translated(0, 1)), white);
}

/// The whole key, lip included; a pressed one has sunk.
QRectF body_rect(const QRectF& key, const KeyLook& look, bool pressed) {
  const double sunk = look.outlined ? 1 : 2;
  return pressed ? key.adjusted(0, sunk, 0, 0) : key;
}

QColor flat_face(KeyRole role, const FaceState& state) {
  const bool on_bone = role == KeyRole::bar_tool;
  if (state.pressed) {
    return on_bone ? palette::selected_tint : palette::mix(palette::bar, Qt::black, 0.1);
  }
  if (state.hovered && role == KeyRole::close) {
    return palette::close_hover;
  }
  if (state.chosen) {
    return palette::selected_tint;
  }
  return on_bone ? palette::bone_hover : palette::bar_hover;
}

}  // namespace

QRectF face_rect(const QRectF& key, const KeyLook& look, bool pressed) {
  const QRectF body = body_rect(key, look, pressed);
  const double lip = pressed ? 1 : lip_height(key.height());
  return look.outlined ? body.adjusted(1, 1, -1, -lip) : body.adjusted(0, 0, 0, -lip);
}

QPainterPath shadow_path(const QRectF& key) {
  return rounded(key.adjusted(-0.5, 1, 0.5, 1.5), corner_radius(key.height()) + 0.5);
}

void paint_shadow(QPainter& painter, const QRectF& key) {
  painter.fillPath(shadow_path(key), QColor(0, 0, 0, 82));
}

void paint_solid_face(QPainter& painter, const QRectF& key, const KeyLook& look, const FaceState& state) {
  const double radius = corner_radius(key.height());
  const QPainterPath body = rounded(body_rect(key, look, state.pressed), radius);
  const QRectF face = face_rect(key, look, state.pressed);
  const QPainterPath face_path = rounded(face, look.outlined ? radius - 1 : radius);
  painter.save();
  painter.setOpacity(state.enabled ? 1 : kDisabled);
  // A half transparent face would let the lip beneath it through.
  painter.fillPath(state.enabled ? body : body.subtracted(face_path), look.lip);
  painter.fillPath(face_path, face_gradient(face, resting_face(look, state), state.pressed));
  painter.setOpacity(1);
  if (!state.pressed && look.highlight > 0) {
    paint_gloss(painter, face_path, look.highlight);
  }
  painter.restore();
}

void paint_flat_face(QPainter& painter, const QRectF& key, KeyRole role, const FaceState& state) {
  if (!state.enabled || !(state.hovered || state.pressed || state.chosen)) {
    return;
  }
  painter.fillPath(rounded(key, 5), flat_face(role, state));
  if (state.chosen) {
    painter.setPen(palette::line_on_green);
    painter.drawRoundedRect(key.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
  }
}

}  // namespace tarnmill::desktop
