#pragma once

#include <QComboBox>
#include <QString>

namespace tarnmill::desktop {

/// What a combo box stands on.
enum class ComboKind { green, dark, paper };

/// A painted combo box. While nothing is chosen it shows `placeholderText`.
class Combo : public QComboBox {
  Q_OBJECT
  Q_PROPERTY(tarnmill::desktop::ComboKind kind READ kind WRITE setKind)

 public:
  explicit Combo(QWidget* parent = nullptr);

  ComboKind kind() const { return kind_; }
  void setKind(ComboKind kind);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paint_box(QPainter& painter) const;

  ComboKind kind_ = ComboKind::paper;
};

}  // namespace tarnmill::desktop
