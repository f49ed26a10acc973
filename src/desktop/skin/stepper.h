#pragma once

#include <QTimer>
#include <QWidget>

namespace tarnmill::desktop {

/// Two arrows, one above the other. Each steps when it is pressed, and again and again while it is held.
class Stepper : public QWidget {
  Q_OBJECT

 public:
  explicit Stepper(QWidget* parent = nullptr);

 signals:
  /// 1 for the upper arrow, -1 for the lower.
  void stepped(int direction);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  [[nodiscard]] QRect arrow_rect(int direction) const;
  void let_go();

  QTimer repeat_;
  int held_ = 0;
};

}  // namespace tarnmill::desktop
