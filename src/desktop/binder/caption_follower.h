#pragma once

#include <QObject>

class QWidget;

namespace tarnmill {
class Control;
}

namespace tarnmill::desktop {

class Key;

/// Shows a caption on a widget that paints it: plainly, unless the form gave the key a face of its own, such
/// as a sign drawn as an icon; then the caption is what is spoken.
void show_caption(QWidget& widget, const QString& caption);

/// A key whose painted caption is that of a label of the program that lies over it.
class CaptionFollower : public QObject {
  Q_OBJECT

 public:
  CaptionFollower(Control& label, QWidget& key, QObject& parent);
  ~CaptionFollower() override;

  /// Lets go of the label, which goes.
  void release();

 private:
  void show_label();

  Control* label_;
  QWidget& key_;
};

}  // namespace tarnmill::desktop
