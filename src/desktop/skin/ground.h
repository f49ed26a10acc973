#pragma once

#include <QWidget>

namespace tarnmill::desktop {

class Overlay;

/// What a window stands on.
enum class GroundKind {
  banded_case,  ///< bands from dark red to blue: the calculators and the about box
  body,         ///< dark gradient: the evaluator and the grapher
  bone,         ///< a light bench without a platform's frame, under its own title bar
  framed_bone   ///< a light bench in a platform's frame
};

/// A window's own widget: draws the ground, dresses the standard widgets in it, and lays an overlay over
/// them.
class Ground : public QWidget {
  Q_OBJECT
  Q_PROPERTY(tarnmill::desktop::GroundKind kind READ kind WRITE setKind)

 public:
  explicit Ground(QWidget* parent = nullptr);

  GroundKind kind() const { return kind_; }
  void setKind(GroundKind kind);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  GroundKind kind_ = GroundKind::bone;
  Overlay* overlay_;
};

}  // namespace tarnmill::desktop
