#pragma once

#include <QCheckBox>

namespace tarnmill::desktop {

/// A check box of a bench: a tick on dark green, or an empty box.
class TickBox : public QCheckBox {
  Q_OBJECT

 public:
  explicit TickBox(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& position) const override;

 private:
  void paint_box(QPainter& painter, const QRectF& box) const;
};

}  // namespace tarnmill::desktop
