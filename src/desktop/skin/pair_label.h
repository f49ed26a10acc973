#pragma once

#include <QLabel>

namespace tarnmill::desktop {

/// A label whose caption is two words parted by several blanks: it paints the first at its left edge and the
/// second at its right, so that the second words of labels in a column stand in line.
class PairLabel : public QLabel {
  Q_OBJECT

 public:
  explicit PairLabel(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnmill::desktop
