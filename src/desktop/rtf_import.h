#pragma once

#include <QTextCursor>
#include <vector>

#include "desktop/rich_text_formats.h"

namespace tarnmill::desktop {

/// Puts a document of plain data into a document of the toolkit.
class RtfImport {
 public:
  /// `source` must outlive the import. Pictures go to `pictures`.
  RtfImport(const rtf::Document& source, const QTextDocument& target, PictureStore& pictures);

  /// Puts it in at the cursor, which ends up behind it. As a whole it fills an empty document: the first
  /// paragraph is its own, and no break follows the last one.
  void insert(QTextCursor& cursor, bool whole) const;

 private:
  void insert_runs(QTextCursor& cursor, const rtf::Paragraph& paragraph) const;
  void insert_picture(QTextCursor& cursor, const rtf::Picture& picture, const QTextCharFormat& format) const;

  const rtf::Document& source_;
  PictureStore& pictures_;
  std::vector<QTextCharFormat> formats_;
  std::vector<QTextBlockFormat> paragraph_formats_;
};

}  // namespace tarnmill::desktop
