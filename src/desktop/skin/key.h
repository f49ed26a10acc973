#pragma once

#include <QAbstractButton>
#include <QString>

#include "desktop/skin/key_look.h"
#include "desktop/skin/key_role.h"

namespace tarnmill::desktop {

struct FaceState;

/// A painted key. Its geometry is the visible key, lip included; shadow and focus ring lie outside and are
/// drawn by the window's overlay. A click, the mnemonic, Space and Enter activate it as any button.
///
/// The caption is `text`, with an icon before it where `icon_name` is set, or in place of the character
/// U+FFFC where the text holds one. A sign drawn as an icon keeps its caption as the accessible name.
class Key : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(tarnmill::desktop::KeyRole role READ role WRITE setRole)
  Q_PROPERTY(tarnmill::desktop::KeyLamp lamp READ lamp WRITE setLamp)
  Q_PROPERTY(QString iconName READ icon_name WRITE setIconName)
  Q_PROPERTY(int iconHeight READ icon_height WRITE setIconHeight)
  Q_PROPERTY(int captionSize READ caption_size WRITE setCaptionSize)
  Q_PROPERTY(QString superscript READ superscript WRITE setSuperscript)
  Q_PROPERTY(QString chip READ chip WRITE setChip)
  Q_PROPERTY(bool chosen READ is_chosen WRITE setChosen)
  Q_PROPERTY(bool held READ is_held WRITE setHeld)
  Q_PROPERTY(bool chevron READ has_chevron WRITE setChevron)
  Q_PROPERTY(bool stacked READ is_stacked WRITE setStacked)

 public:
  explicit Key(QWidget* parent = nullptr);

  KeyRole role() const { return role_; }
  void setRole(KeyRole role);

  KeyLamp lamp() const { return lamp_; }
  /// A lamp takes the top of the face and moves the caption down.
  void setLamp(KeyLamp lamp);

  QString icon_name() const { return icon_name_; }
  /// Name of a shipped icon; empty for a caption of text alone.
  void setIconName(const QString& name);

  int icon_height() const { return icon_height_; }
  /// Height of the icon in pixels.
  void setIconHeight(int height);

  /// Height of the caption's letters in pixels; that of the role where none is set.
  int caption_size() const;
  /// 0 for the role's own size.
  void setCaptionSize(int size);

  QString superscript() const { return superscript_; }
  /// Raised small behind the caption.
  void setSuperscript(const QString& text);

  QString chip() const { return chip_; }
  /// A word shown on a small green display instead of the caption.
  void setChip(const QString& word);

  bool is_chosen() const { return chosen_; }
  /// Marks the key of the field that takes input, or a tool that is on.
  void setChosen(bool chosen);

  bool is_held() const { return held_; }
  /// Shows the key pressed without a mouse on it.
  void setHeld(bool held);

  bool has_chevron() const { return chevron_; }
  /// Marks a key that opens a menu.
  void setChevron(bool chevron);

  bool is_stacked() const { return stacked_; }
  /// Puts the icon above the caption instead of before it.
  void setStacked(bool stacked);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  FaceState face_state() const;
  QRectF caption_rect(const QRectF& face) const;
  void paint_caption(QPainter& painter, const QRectF& face) const;
  void paint_marks(QPainter& painter, const QRectF& face, const QRectF& key) const;
  void update_surroundings();

  KeyRole role_ = KeyRole::function;
  KeyLamp lamp_ = KeyLamp::none;
  QString icon_name_;
  int icon_height_ = 20;
  int caption_size_ = 0;
  QString superscript_;
  QString chip_;
  bool chosen_ = false;
  bool held_ = false;
  bool chevron_ = false;
  bool stacked_ = false;
};

}  // namespace tarnmill::desktop
