#pragma once

#include <QLabel>

namespace tarnmill::desktop {

/// A piece of a bench in one colour, that of the palette's window; black at first.
class Swatch : public QLabel {
  Q_OBJECT

 public:
  explicit Swatch(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnmill::desktop
