#include "desktop/qt_rich_text.h"

#include <QFont>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/without_layout.h"

namespace tarnmill::desktop {

QtRichText::QtRichText() : document_{std::make_unique<QTextDocument>()} {
  document_ = make_document();
  cursor_ = QTextCursor{document_.get()};
  watch_document();
}

std::unique_ptr<QTextDocument> QtRichText::make_document() const {
  // Half an inch, as the files say that it is.
  constexpr double tab_pixels = 48;
  auto made = std::make_unique<QTextDocument>();
  made->setDefaultFont(document_->defaultFont());
  QTextOption option = made->defaultTextOption();
  option.setTabStopDistance(tab_pixels);
  made->setDefaultTextOption(option);
  return made;
}

void QtRichText::watch_document() {
  document_->setUndoRedoEnabled(true);
  QObject::connect(document_.get(), &QTextDocument::contentsChanged, &context_,
                   [this] { text_changed_ = true; });
}

void QtRichText::replace_document(std::unique_ptr<QTextDocument> fresh, PictureStore pictures, bool changes) {
  const QTextCharFormat characters = cursor_.charFormat();
  const Qt::Alignment alignment = cursor_.blockFormat().alignment();
  edit([&] {
    // The one before goes when no editor shows it any longer.
    document_.swap(fresh);
    pictures_ = std::move(pictures);
    cursor_ = QTextCursor{document_.get()};
    watch_document();
    kinds_.clear();
    if (on_document) on_document();
    text_changed_ = changes;
    format_changed_ = cursor_.charFormat() != characters || cursor_.blockFormat().alignment() != alignment;
  });
}

QtRichText::~QtRichText() = default;

void QtRichText::note_kind(int kind) {
  if (kind == of_history) return;
  const auto steps = static_cast<std::size_t>(document_->availableUndoSteps());
  // The toolkit leaves the next one out.
  const auto undone =
      static_cast<std::size_t>(document_->isRedoAvailable() ? document_->availableRedoSteps() + 1 : 0);
  if (text_changed_ && undone == 0 && steps > 0) kinds_.resize(steps - 1);
  kinds_.resize(steps + undone, kind);
}

int QtRichText::undo_kind() const {
  const auto steps = static_cast<std::size_t>(document_->availableUndoSteps());
  return steps == 0 || steps > kinds_.size() ? any_edit : kinds_[steps - 1];
}

int QtRichText::redo_kind() const {
  const auto steps = static_cast<std::size_t>(document_->availableUndoSteps());
  return steps >= kinds_.size() ? any_edit : kinds_[steps];
}

void QtRichText::raise_changes(int start, int length) {
  const bool changed = std::exchange(text_changed_, false);
  const bool moved = std::exchange(format_changed_, false) || start != sel_start() || length != sel_length();
  if (changed && on_change) on_change();
  if (moved && on_selection) on_selection();
}

void QtRichText::follow(const QTextCursor& cursor) {
  edit([&] { cursor_ = cursor; }, text_removed_only_ ? deleting : typing);
}

Text QtRichText::text() const { return lines_from_qt(document_->toRawText()); }

void QtRichText::set_text(const Text& text) {
  std::unique_ptr<QTextDocument> fresh = make_document();
  fresh->setUndoRedoEnabled(false);
  fresh->setPlainText(lines_to_qt(text));
  const bool changes =
      fresh->characterCount() != document_->characterCount() || fresh->toRawText() != document_->toRawText();
  replace_document(std::move(fresh), {}, changes);
}

int QtRichText::length() const { return document_->characterCount() - 1; }

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
  if (text.empty() && !cursor_.hasSelection()) return;
  edit([&] {
    // A block of its own, or the toolkit would make one step of this edit and the one before.
    cursor_.beginEditBlock();
    cursor_.insertText(lines_to_qt(text));
    cursor_.endEditBlock();
  });
}

void QtRichText::undo() {
  edit([&] { document_->undo(&cursor_); }, of_history);
}

void QtRichText::redo() {
  edit([&] { document_->redo(&cursor_); }, of_history);
}

bool QtRichText::can_undo() const { return document_->isUndoAvailable(); }

bool QtRichText::can_redo() const { return document_->isRedoAvailable(); }

int QtRichText::line_of(int position) const {
  const QTextBlock block = document_->findBlock(std::clamp(position, 0, length()));
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
  QTextCursor found;
  {
    const WithoutLayout look{*document_};
    found = document_->find(lines_to_qt(text), std::clamp(start, 0, length()), flags);
  }
  if (found.isNull()) return -1;
  edit([&] { cursor_ = found; });
  return sel_start();
}

}  // namespace tarnmill::desktop
