#include "desktop/skin/key.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/skin/fonts.h"
#include "desktop/skin/key_caption.h"
#include "desktop/skin/key_face.h"
#include "desktop/skin/overlay.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr double kMarkWidth = 18;
constexpr double kLampHeight = 3;
constexpr double kLampTop = 5;
constexpr double kLampGlow = 2;
/// The caption makes room for the lamp above it, or for the bar below it.
constexpr double kShiftUnderLamp = 3;
constexpr double kShiftOverBar = -1.5;
constexpr double kChevronSize = 13;
constexpr double kChevronFromRight = 9;
constexpr double kChevronFromBottom = 11;
constexpr double kDisabled = 0.5;

/// Assigns and tells whether that changed anything.
template <typename Value>
bool assign(Value& field, const Value& value) {
  if (field == value) {
    return false;
  }
  field = value;
  return true;
}

QRectF mark_rect(const QRectF& face, double top, double height) {
  return {face.center().x() - kMarkWidth / 2, top, kMarkWidth, height};
}

void paint_mark(QPainter& painter, const QRectF& rect, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
}

void paint_lamp(QPainter& painter, const QRectF& face, bool on) {
  const QRectF lamp = mark_rect(face, face.top() + kLampTop, kLampHeight);
  if (on) {
    QColor glow = palette::lamp_on;
    glow.setAlpha(70);
    paint_mark(painter, lamp.adjusted(-kLampGlow, -kLampGlow, kLampGlow, kLampGlow), glow);
  }
  paint_mark(painter, lamp, on ? palette::lamp_on : palette::lamp_off);
}

}  // namespace

Key::Key(QWidget* parent) : QAbstractButton(parent) {
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
}

void Key::setRole(KeyRole role) {
  if (assign(role_, role)) {
    update_surroundings();
  }
}

void Key::setLamp(KeyLamp lamp) {
  if (assign(lamp_, lamp)) {
    update();
  }
}

void Key::setIconName(const QString& name) {
  if (assign(icon_name_, name)) {
    update();
  }
}

void Key::setIconHeight(int height) {
  if (assign(icon_height_, height)) {
    update();
  }
}

int Key::caption_size() const {
  return caption_size_ > 0 ? caption_size_ : key_look(role_, false).caption_size;
}

void Key::setCaptionSize(int size) {
  if (assign(caption_size_, size)) {
    update();
  }
}

void Key::setSuperscript(const QString& text) {
  if (assign(superscript_, text)) {
    update();
  }
}

void Key::setChip(const QString& word) {
  if (assign(chip_, word)) {
    update();
  }
}

void Key::setChosen(bool chosen) {
  if (assign(chosen_, chosen)) {
    update();
  }
}

void Key::setHeld(bool held) {
  if (assign(held_, held)) {
    update();
  }
}

void Key::setChevron(bool chevron) {
  if (assign(chevron_, chevron)) {
    update();
  }
}

void Key::setStacked(bool stacked) {
  if (assign(stacked_, stacked)) {
    update();
  }
}

QSize Key::sizeHint() const { return {60, 36}; }

FaceState Key::face_state() const {
  return {isEnabled(), isEnabled() && underMouse(), isEnabled() && (isDown() || held_), chosen_};
}

QRectF Key::caption_rect(const QRectF& face) const {
  if (lamp_ != KeyLamp::none) {
    return face.translated(0, kShiftUnderLamp);
  }
  return chosen_ && !is_flat(role_) ? face.translated(0, kShiftOverBar) : face;
}

void Key::paint_caption(QPainter& painter, const QRectF& face) const {
  if (!chip_.isEmpty()) {
    paint_chip(painter, face, chip_, isEnabled());
    return;
  }
  const KeyLook look = key_look(role_, chosen_);
  painter.save();
  painter.setOpacity(isEnabled() ? 1 : kDisabled);
  painter.setFont(caption_font(caption_size(), look.weight));
  // A sign that is drawn needs no letters beside it; its text is for those who can't see it.
  const bool sign = !icon_name_.isEmpty() && text().size() == 1;
  const Caption caption{sign ? QString() : text(), superscript_, icon_name_, icon_height_, stacked_};
  paint_key_caption(painter, caption_rect(face), caption, look.ink);
  painter.restore();
}

void Key::paint_marks(QPainter& painter, const QRectF& face, const QRectF& key) const {
  if (lamp_ != KeyLamp::none) {
    paint_lamp(painter, face, lamp_ == KeyLamp::on);
  }
  if (chosen_ && !is_flat(role_)) {
    paint_mark(painter, mark_rect(face, face.bottom() - 5, 2), palette::display);
  }
  if (chevron_) {
    QRectF box(0, 0, kChevronSize, kChevronSize);
    box.moveCenter(
        {key.right() - kChevronFromRight, face.bottom() + lip_height(key.height()) - kChevronFromBottom});
    painter.setOpacity(isEnabled() ? 1 : kDisabled);
    paint_icon(painter, "chevron", box, key_look(role_, chosen_).ink);
  }
}

void Key::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF key(rect());
  const KeyLook look = key_look(role_, chosen_);
  const FaceState state = face_state();
  if (is_flat(role_)) {
    paint_flat_face(painter, key, role_, state);
    paint_caption(painter, key);
    paint_marks(painter, key, key);
    return;
  }
  if (!look.outlined && state.pressed) {
    paint_shadow(painter, key);
  }
  paint_solid_face(painter, key, look, state);
  const QRectF face = face_rect(key, look, state.pressed);
  paint_caption(painter, face);
  paint_marks(painter, face, key);
}

void Key::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void Key::showEvent(QShowEvent* event) {
  QAbstractButton::showEvent(event);
  update_surroundings();
}

void Key::hideEvent(QHideEvent* event) {
  QAbstractButton::hideEvent(event);
  update_surroundings();
}

void Key::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) {
    update_surroundings();
  }
}

void Key::update_surroundings() {
  update();
  window()->update(Overlay::reach_of(this));
}

}  // namespace tarnmill::desktop
