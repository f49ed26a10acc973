#pragma once

#include <QWidget>

namespace tarnmill::desktop {

/// A transparent sheet over a window that draws what lies outside the widgets' own rectangles: the shadows
/// of the keys, the focus ring, and the line around a window without a platform's frame. The mouse goes
/// through it.
class Overlay : public QWidget {
  Q_OBJECT

 public:
  /// Covers `window` and follows its size.
  explicit Overlay(QWidget* window);

  void set_ring_colour(const QColor& colour);
  /// An invalid colour draws no line.
  void set_frame_colour(const QColor& colour);

  /// The rectangle of `widget` with all that the sheet may draw around it, in pixels of its window.
  static QRect reach_of(const QWidget* widget);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void follow_focus(QWidget* old, QWidget* now);
  void paint_shadows(QPainter& painter, const QRect& region) const;
  void paint_ring(QPainter& painter) const;

  QColor ring_colour_;
  QColor frame_colour_;
};

}  // namespace tarnmill::desktop
