#pragma once

#include <QWidget>

namespace tarnmill {
class PictureBox;
}

namespace tarnmill::desktop {

/// Shows a drawing surface pixel by pixel, with its overlay lines above. On a screen of two pixels a unit
/// each of the surface's pixels is a block of four, unsmoothed.
class SurfaceView : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool outlined READ is_outlined WRITE setOutlined)

 public:
  explicit SurfaceView(QWidget* parent = nullptr);

  bool is_outlined() const { return outlined_; }
  /// Draws a broken line along the edge, over the surface: it floats above another.
  void setOutlined(bool outlined);

  /// Shows `surface` from now on; null shows nothing. The surface must be taken away before it goes.
  void show_surface(const PictureBox* surface);
  /// Repaints what was drawn on the surface since the last time.
  void update_drawn();
  /// Repaints where overlay lines were and are.
  void update_lines();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect reach_of_lines() const;

  const PictureBox* surface_ = nullptr;
  /// What the visible overlay lines covered when they were painted last.
  QRect lines_;
  bool outlined_ = false;
};

}  // namespace tarnmill::desktop
