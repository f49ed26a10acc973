#include "desktop/binder/text_bindings.h"

#include <QEvent>
#include <QTextCursor>

#include "desktop/qt_text.h"

namespace tarnmill::desktop {

void TextBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "Text" || name == "SelStart") {
    show_all();
  } else if (name == "Locked") {
    // The toolkit's menu would offer to paste.
    widget().setContextMenuPolicy(box_.Locked ? Qt::NoContextMenu : Qt::DefaultContextMenu);
  } else if (name == "ForeColor" || name == "BackColor") {
    const auto color = static_cast<Color>(number_property(name));
    if (!is_starting() || color != 0) look_.show(name, color);
  } else {
    look_.show_font(name, is_starting());
  }
}

void TextBinding::show_all() {
  if (shown_text() != box_.Text.get()) show_text(box_.Text);
  const Selection selection{box_.sel_start(), box_.sel_length()};
  if (shown_selection() != selection) show_selection(selection);
}

void TextBinding::take_text() {
  if (is_changing_widget() || control() == nullptr) return;
  if (!box_.Locked) {
    const Text typed = shown_text();
    const int caret = shown_caret();
    enter([&] { box_.type(typed, caret); });
  }
  if (control() != nullptr) change_widget([this] { show_all(); });
}

void TextBinding::take_selection() {
  // While the text itself is on its way, the selection comes with it.
  if (is_changing_widget() || control() == nullptr || shown_text() != box_.Text.get()) return;
  const Selection selection = shown_selection();
  enter([&] { box_.select(selection.start, selection.length); });
}

LineBinding::LineBinding(TextBox& box, QLineEdit& line, WindowView& view)
    : TextBinding{box, line, view}, line_{line} {}

void LineBinding::start() {
  // The toolkit's read-only line has no caret.
  if (line_.isReadOnly() && line_.height() > 1) line_.setReadOnly(false);
  TextBinding::start();
  connect(&line_, &QLineEdit::textEdited, this, [this] { take_text(); });
  connect(&line_, &QLineEdit::selectionChanged, this, [this] {
    if (!loses_focus_) take_selection();
  });
  connect(&line_, &QLineEdit::cursorPositionChanged, this, [this] { take_selection(); });
}

bool LineBinding::eventFilter(QObject* watched, QEvent* event) {
  const bool taken = Binding::eventFilter(watched, event);
  if (event->type() == QEvent::FocusOut && control() != nullptr) {
    // A line of the toolkit drops its selection with the focus. That of the program stays, for the key that
    // takes the focus may be about to work with it.
    loses_focus_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          loses_focus_ = false;
          if (control() != nullptr) change_widget([this] { show_all(); });
        },
        Qt::QueuedConnection);
  }
  return taken;
}

Text LineBinding::shown_text() const { return from_qt(line_.text()); }

void LineBinding::show_text(const Text& text) { line_.setText(to_qt(text)); }

TextBinding::Selection LineBinding::shown_selection() const {
  if (!line_.hasSelectedText()) return {line_.cursorPosition(), 0};
  return {line_.selectionStart(), line_.selectionLength()};
}

void LineBinding::show_selection(Selection selection) {
  if (selection.length == 0) {
    line_.deselect();
    line_.setCursorPosition(selection.start);
  } else {
    line_.setSelection(selection.start, selection.length);
  }
}

int LineBinding::shown_caret() const { return line_.cursorPosition(); }

void LinesBinding::start() {
  TextBinding::start();
  watch(*edit_.viewport());
  connect(&edit_, &QPlainTextEdit::textChanged, this, [this] { take_text(); });
  connect(&edit_, &QPlainTextEdit::selectionChanged, this, [this] { take_selection(); });
  connect(&edit_, &QPlainTextEdit::cursorPositionChanged, this, [this] { take_selection(); });
}

Text LinesBinding::shown_text() const { return lines_from_qt(edit_.toPlainText()); }

void LinesBinding::show_text(const Text& text) { edit_.setPlainText(lines_to_qt(text)); }

TextBinding::Selection LinesBinding::shown_selection() const {
  const QTextCursor cursor = edit_.textCursor();
  const int start = position_outside(cursor.selectionStart());
  return {start, position_outside(cursor.selectionEnd()) - start};
}

void LinesBinding::show_selection(Selection selection) {
  QTextCursor cursor = edit_.textCursor();
  cursor.setPosition(position_inside(selection.start));
  cursor.setPosition(position_inside(selection.start + selection.length), QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
}

int LinesBinding::shown_caret() const { return position_outside(edit_.textCursor().position()); }

int LinesBinding::position_outside(int inside) const {
  return inside + static_cast<int>(edit_.toPlainText().left(inside).count('\n'));
}

int LinesBinding::position_inside(int outside) const {
  const Text before = lines_from_qt(edit_.toPlainText()).substr(0, static_cast<std::size_t>(outside));
  return static_cast<int>(lines_to_qt(before).size());
}

}  // namespace tarnmill::desktop
