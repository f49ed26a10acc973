#include "desktop/qt_rich_text.h"

#include <QFont>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "desktop/qt_text.h"

namespace tarnmill::desktop {

QtRichText::QtRichText() : cursor_{&document_} {
  document_.setUndoRedoEnabled(true);
  QObject::connect(&document_, &QTextDocument::contentsChanged, &context_, [this] { text_changed_ = true; });
}

QtRichText::~QtRichText() = default;

void QtRichText::note_kind(int kind) {
  const auto steps = static_cast<std::size_t>(document_.availableUndoSteps());
  const auto undone = static_cast<std::size_t>(document_.availableRedoSteps());
  if (text_changed_ && undone == 0 && steps > 0) kinds_.resize(steps - 1);
  kinds_.resize(steps + undone, kind);
}

int QtRichText::undo_kind() const {
  const auto steps = static_cast<std::size_t>(document_.availableUndoSteps());
  return steps == 0 || steps > kinds_.size() ? any_edit : kinds_[steps - 1];
}

int QtRichText::redo_kind() const {
  const auto steps = static_cast<std::size_t>(document_.availableUndoSteps());
  return steps >= kinds_.size() ? any_edit : kinds_[steps];
}

void QtRichText::raise_changes(int start, int length) {
  const bool changed = std::exchange(text_changed_, false);
  const bool moved = start != sel_start() || length != sel_length();
  if (changed && on_change) on_change();
  if (moved && on_selection) on_selection();
}

void QtRichText::follow(const QTextCursor& cursor) {
  edit([&] { cursor_ = cursor; }, text_removed_only_ ? deleting : typing);
}

Text QtRichText::text() const { return lines_from_qt(document_.toPlainText()); }

void QtRichText::set_text(const Text& text) {
  refill([&] { document_.setPlainText(lines_to_qt(text)); });
}

int QtRichText::length() const { return document_.characterCount() - 1; }

int QtRichText::sel_start() const { return cursor_.selectionStart(); }

int QtRichText::sel_length() const { return cursor_.selectionEnd() - cursor_.selectionStart(); }

void QtRichText::select(int start, int length) {
  edit([&] {
    const int from = std::clamp(start, 0, this->length());
    const int to = from + std::clamp(length, 0, this->length() - from);
    cursor_.setPosition(from);
    cursor_.setPosition(to, QTextCursor::KeepAnchor);
  });
}

Text QtRichText::sel_text() const { return lines_from_qt(cursor_.selectedText()); }

void QtRichText::replace_selection(const Text& text) {
  edit([&] { cursor_.insertText(lines_to_qt(text)); });
}

void QtRichText::undo() {
  edit([&] { document_.undo(&cursor_); });
}

void QtRichText::redo() {
  edit([&] { document_.redo(&cursor_); });
}

bool QtRichText::can_undo() const { return document_.isUndoAvailable(); }

bool QtRichText::can_redo() const { return document_.isRedoAvailable(); }

int QtRichText::line_of(int position) const {
  const QTextBlock block = document_.findBlock(std::clamp(position, 0, length()));
  const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
  return block.firstLineNumber() + (line.isValid() ? line.lineNumber() : 0);
}

void QtRichText::select_line() {
  edit([&] {
    cursor_.movePosition(QTextCursor::StartOfLine);
    cursor_.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
  });
}

int QtRichText::find(const Text& text, int start, bool whole_word, bool match_case) {
  QTextDocument::FindFlags flags;
  if (whole_word) flags |= QTextDocument::FindWholeWords;
  if (match_case) flags |= QTextDocument::FindCaseSensitively;
  const QTextCursor found = document_.find(lines_to_qt(text), std::clamp(start, 0, length()), flags);
  if (found.isNull()) return -1;
  edit([&] { cursor_ = found; });
  return sel_start();
}

}  // namespace tarnmill::desktop
