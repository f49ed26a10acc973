#pragma once

#include <QString>
#include <QWidget>

namespace tarnmill::desktop {

/// The program's sign with a title and a quieter second word, on dark ground. The mouse goes through it.
class Nameplate : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString title READ title WRITE setTitle)
  Q_PROPERTY(QString subtitle READ subtitle WRITE setSubtitle)
  Q_PROPERTY(bool small READ is_small WRITE setSmall)

 public:
  explicit Nameplate(QWidget* parent = nullptr);

  QString title() const { return title_; }
  void setTitle(const QString& title);
  QString subtitle() const { return subtitle_; }
  void setSubtitle(const QString& subtitle);
  bool is_small() const { return small_; }
  /// As it stands in a title bar.
  void setSmall(bool small);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString title_;
  QString subtitle_;
  bool small_ = false;
};

}  // namespace tarnmill::desktop
