#pragma once

#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextDocument>

namespace tarnmill::desktop {

/// While it lives, cursors move through a document without the toolkit laying out the paragraph that each of
/// them comes to, as it does outside of edits. Nothing may be changed meanwhile.
class WithoutLayout {
 public:
  explicit WithoutLayout(QTextDocument& document) : silence_{&document}, edit_{&document} {
    edit_.beginEditBlock();
  }
  ~WithoutLayout() { edit_.endEditBlock(); }
  WithoutLayout(const WithoutLayout&) = delete;
  WithoutLayout& operator=(const WithoutLayout&) = delete;

 private:
  // The end of an edit tells of a change even where there was none.
  QSignalBlocker silence_;
  QTextCursor edit_;
};

}  // namespace tarnmill::desktop
