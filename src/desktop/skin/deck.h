#pragma once

#include <QWidget>

namespace tarnmill::desktop {

/// A piece of ground under other widgets.
enum class DeckKind {
  keys,     ///< dark panel under groups of keys
  card,     ///< the same, smaller, under an operand
  display,  ///< green screen in a bezel
  plot,     ///< double line around the plotting area, which covers the rest
  bar,      ///< title bar, with a line below
  page      ///< picture of a printed page with its margins
};

/// Draws a piece of ground and lets the mouse through to the window.
class Deck : public QWidget {
  Q_OBJECT
  Q_PROPERTY(tarnmill::desktop::DeckKind kind READ kind WRITE setKind)

 public:
  explicit Deck(QWidget* parent = nullptr);

  DeckKind kind() const { return kind_; }
  void setKind(DeckKind kind);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  DeckKind kind_ = DeckKind::keys;
};

}  // namespace tarnmill::desktop
