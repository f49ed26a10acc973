#pragma once

#include <QLineEdit>
#include <QString>

namespace tarnmill::desktop {

/// A line of text, by default an entry on paper. On display green it may carry a word before the text that
/// is no part of it.
class TextField : public QLineEdit {
  Q_OBJECT
  Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)

 public:
  explicit TextField(QWidget* parent = nullptr);

  QString prefix() const { return prefix_; }
  void setPrefix(const QString& prefix);

 protected:
  void paintEvent(QPaintEvent* event) override;
  /// Keeps the selection, however the focus comes: what is keyed goes to where the program left it.
  void focusInEvent(QFocusEvent* event) override;

 private:
  QString prefix_;
};

}  // namespace tarnmill::desktop
