#include "desktop/binder/rich_text_binding.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QKeyEvent>

namespace tarnmill::desktop {

namespace {

/// Not every platform counts it among its own.
bool is_redo_of_many_programs(const QKeyEvent& key) {
  return key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier;
}

}  // namespace

RichTextBinding::RichTextBinding(RichTextBox& box, QTextEdit& edit, WindowView& view)
    : Binding{box, edit, view}, edit_{edit}, rich_{dynamic_cast<QtRichText&>(box.document())} {}

RichTextBinding::~RichTextBinding() { let_go(); }

void RichTextBinding::start() {
  edit_.setDocument(&rich_.document());
  edit_.setContextMenuPolicy(Qt::NoContextMenu);
  // Marked-up text of other programs could name files to be read.
  edit_.setAcceptRichText(false);
  Binding::start();
  watch(*edit_.viewport());
  rich_.on_document = [this] { change_widget([this] { edit_.setDocument(&rich_.document()); }); };
  rich_.on_format = [this] { change_widget([this] { show_cursor(); }); };
  // Queued, since no handler of the program may run while the toolkit is within an edit.
  connect(
      &edit_, &QTextEdit::textChanged, this, [this] { take_cursor(); }, Qt::QueuedConnection);
  connect(
      &edit_, &QTextEdit::cursorPositionChanged, this, [this] { take_cursor(); }, Qt::QueuedConnection);
  connect(
      &edit_, &QTextEdit::selectionChanged, this, [this] { take_cursor(); }, Qt::QueuedConnection);
}

void RichTextBinding::release() {
  let_go();
  Binding::release();
}

void RichTextBinding::let_go() {
  if (control() == nullptr) return;
  rich_.on_format = {};
  rich_.on_document = {};
  // The document goes with the control; the editor may stay for a while.
  edit_.setDocument(nullptr);
}

void RichTextBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "Text" || name == "SelStart") show_cursor();
}

void RichTextBinding::show_cursor() {
  const QTextCursor& cursor = rich_.cursor();
  const QTextCursor shown = edit_.textCursor();
  if (shown.position() != cursor.position() || shown.anchor() != cursor.anchor() ||
      shown.charFormat() != cursor.charFormat()) {
    edit_.setTextCursor(cursor);
  }
}

void RichTextBinding::take_cursor() {
  if (control() == nullptr || is_changing_widget()) return;
  const QTextCursor shown = edit_.textCursor();
  const QTextCursor& cursor = rich_.cursor();
  const bool moved = shown.position() != cursor.position() || shown.anchor() != cursor.anchor();
  if (moved || rich_.has_untold_change()) {
    enter([&] { rich_.follow(shown); });
  }
}

bool RichTextBinding::eventFilter(QObject* watched, QEvent* event) {
  if (control() != nullptr && watched == &edit_ && event->type() == QEvent::KeyPress &&
      (leave(dynamic_cast<QKeyEvent&>(*event)) || exchange(dynamic_cast<QKeyEvent&>(*event)))) {
    return true;
  }
  if (control() != nullptr && watched == edit_.viewport() && event->type() == QEvent::Drop &&
      drop(dynamic_cast<QDropEvent&>(*event))) {
    return true;
  }
  return Binding::eventFilter(watched, event);
}

bool RichTextBinding::drop(QDropEvent& event) {
  if (event.source() != edit_.viewport() && event.source() != &edit_) return false;
  const bool copies = event.dropAction() == Qt::CopyAction;
  const int to = edit_.cursorForPosition(event.position().toPoint()).position();
  event.accept();
  enter([&] { rich_.drag_selection(to, copies); });
  if (control() != nullptr) change_widget([this] { show_cursor(); });
  return true;
}

bool RichTextBinding::leave(const QKeyEvent& key) {
  const bool tab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
  if (!tab || !key.modifiers().testFlag(Qt::ControlModifier)) return false;
  QKeyEvent plain{QEvent::KeyPress, key.key(), key.modifiers() & ~Qt::ControlModifier};
  edit_.setTabChangesFocus(true);
  QCoreApplication::sendEvent(&edit_, &plain);
  edit_.setTabChangesFocus(false);
  return true;
}

bool RichTextBinding::exchange(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Copy)) {
    enter([this] { rich_.copy(); });
  } else if (key.matches(QKeySequence::Cut)) {
    enter([this] { rich_.cut(); });
  } else if (key.matches(QKeySequence::Paste)) {
    enter([this] { rich_.paste(); });
  } else if (key.matches(QKeySequence::Undo)) {
    enter([this] { rich_.undo(); });
  } else if (key.matches(QKeySequence::Redo) || is_redo_of_many_programs(key)) {
    enter([this] { rich_.redo(); });
  } else {
    return false;
  }
  if (control() != nullptr) change_widget([this] { show_cursor(); });
  return true;
}

}  // namespace tarnmill::desktop
