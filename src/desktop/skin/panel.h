#pragma once

#include <QGroupBox>

namespace tarnmill::desktop {

/// A small light window within a dark one: a title bar over bone, with a shadow around. Its widgets look as
/// on a bench. The outer `margin` pixels of its rectangle are the shadow's.
class Panel : public QGroupBox {
  Q_OBJECT

 public:
  static constexpr int margin = 8;

  explicit Panel(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnmill::desktop
