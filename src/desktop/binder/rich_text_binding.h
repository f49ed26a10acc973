#pragma once

#include <QTextEdit>

#include "desktop/binder/binding.h"
#include "desktop/qt_rich_text.h"
#include "forms/rich_text_box.h"

namespace tarnmill::desktop {

/// An editor of rich text. It shows the control's own document; caret and selection go both ways.
class RichTextBinding final : public Binding {
 public:
  RichTextBinding(RichTextBox& box, QTextEdit& edit, WindowView& view);
  ~RichTextBinding() override;
  void start() override;
  void release() override;

 protected:
  void show_property(std::string_view name) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Shows the program's caret, with the format of what is typed next.
  void show_cursor();
  /// A person has moved the caret or changed the text.
  void take_cursor();
  /// The selection dropped elsewhere in the editor keeps its formats; what comes from other programs is left
  /// to the toolkit, which takes it as plain text.
  bool drop(QDropEvent& event);
  /// Ctrl+Tab and Ctrl+Shift+Tab lead out of the editor, which takes the Tab key as text.
  bool leave(const QKeyEvent& key);
  /// Cut, copy and paste go by the program's way, which keeps pictures and formats; so do undo and redo,
  /// which thus know what kind of edit they take back.
  bool exchange(const QKeyEvent& key);
  void let_go();

  QTextEdit& edit_;
  QtRichText& rich_;
};

}  // namespace tarnmill::desktop
