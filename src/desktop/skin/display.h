#pragma once

#include <QLabel>
#include <QList>
#include <QString>

namespace tarnmill::desktop {

/// A label of numbers that takes the largest of its sizes that fits. A text too long for the smallest keeps
/// its right end, where the digits of a result are told apart. The ink is the palette's WindowText.
class Display : public QLabel {
  Q_OBJECT
  Q_PROPERTY(QString sizes READ sizes WRITE setSizes)
  Q_PROPERTY(bool mono READ is_mono WRITE setMono)
  Q_PROPERTY(int weight READ weight WRITE setWeight)

 public:
  explicit Display(QWidget* parent = nullptr);

  QString sizes() const;
  /// Heights in pixels, falling, parted by commas; anything else among them is passed over.
  void setSizes(const QString& sizes);

  bool is_mono() const { return mono_; }
  /// Whether the letters are those of numbers or those of captions.
  void setMono(bool mono);

  int weight() const { return weight_; }
  /// A QFont::Weight.
  void setWeight(int weight);

  /// The height in pixels that the present text is drawn at.
  int shown_size() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont font_at(int size) const;

  QList<int> sizes_{12};
  bool mono_ = true;
  int weight_ = QFont::Normal;
};

}  // namespace tarnmill::desktop
