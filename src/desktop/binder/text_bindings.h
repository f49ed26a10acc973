#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/binder/binding.h"
#include "desktop/binder/control_look.h"
#include "forms/text_box.h"

namespace tarnmill::desktop {

/// What the two kinds of text widget have in common: text and selection go both ways. A person's typing in a
/// locked box is taken back.
class TextBinding : public Binding {
 public:
  TextBinding(TextBox& box, QWidget& widget, WindowView& view)
      : Binding{box, widget, view}, box_{box}, look_{widget, &box} {}

 protected:
  struct Selection {
    int start;
    int length;
    bool operator==(const Selection&) const = default;
  };

  void show_property(std::string_view name) override;
  /// The widget's text has changed under a person's hands.
  void take_text();
  /// The widget's caret or selection has.
  void take_selection();
  /// Gives the widget the program's text and selection.
  void show_all();

  /// \name The widget's text and selection, in the program's text and positions
  ///@{
  [[nodiscard]] virtual Text shown_text() const = 0;
  virtual void show_text(const Text& text) = 0;
  [[nodiscard]] virtual Selection shown_selection() const = 0;
  virtual void show_selection(Selection selection) = 0;
  [[nodiscard]] virtual int shown_caret() const = 0;
  ///@}

 private:
  TextBox& box_;
  ControlLook look_;
};

/// A text box on a line edit.
class LineBinding final : public TextBinding {
 public:
  LineBinding(TextBox& box, QLineEdit& line, WindowView& view);
  void start() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] Text shown_text() const override;
  void show_text(const Text& text) override;
  [[nodiscard]] Selection shown_selection() const override;
  void show_selection(Selection selection) override;
  [[nodiscard]] int shown_caret() const override;

  QLineEdit& line_;
  /// Whether the focus is on its way to another widget.
  bool loses_focus_ = false;
};

/// A text box of several lines. The program counts the CR LF of a line break as two positions, the widget as
/// one.
class LinesBinding final : public TextBinding {
 public:
  LinesBinding(TextBox& box, QPlainTextEdit& edit, WindowView& view)
      : TextBinding{box, edit, view}, edit_{edit} {}
  void start() override;

 private:
  [[nodiscard]] Text shown_text() const override;
  void show_text(const Text& text) override;
  [[nodiscard]] Selection shown_selection() const override;
  void show_selection(Selection selection) override;
  [[nodiscard]] int shown_caret() const override;
  /// The program's position of one of the widget's, and back.
  [[nodiscard]] int position_outside(int inside) const;
  [[nodiscard]] int position_inside(int outside) const;

  QPlainTextEdit& edit_;
};

}  // namespace tarnmill::desktop
