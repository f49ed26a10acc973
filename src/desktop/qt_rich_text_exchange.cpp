// What rich text exchanges with files and the clipboard, and edits that keep its formats.
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTextBlock>
#include <QTextFragment>
#include <algorithm>
#include <memory>

#include "desktop/pair_decoder.h"
#include "desktop/picture_data.h"
#include "desktop/qt_rich_text.h"
#include "desktop/qt_text.h"
#include "desktop/rtf_export.h"
#include "desktop/rtf_import.h"
#include "mathpad/rtf/reader.h"
#include "mathpad/rtf/writer.h"

namespace tarnmill::desktop {

namespace {

constexpr char rtf_type[] = "text/rtf";

QByteArray bytes_of(const std::string& text) { return {text.data(), static_cast<qsizetype>(text.size())}; }

const QMimeData* clipboard_content() { return QGuiApplication::clipboard()->mimeData(); }

}  // namespace

void QtRichText::set_default_font(const Text& name, double size) {
  QFont font = document_->defaultFont();
  font.setFamily(to_qt(name));
  if (size > 0) font.setPointSizeF(size);
  document_->setDefaultFont(font);
  text_changed_ = false;
}

std::string QtRichText::rtf() const { return rtf::write(export_rtf(*document_, pictures_)); }

std::string QtRichText::sel_rtf() const {
  return rtf::write(export_rtf(*document_, cursor_.selectionStart(), cursor_.selectionEnd(), pictures_));
}

void QtRichText::set_rtf(std::string_view bytes) {
  const rtf::Document source = rtf::read(bytes, decode_pairs);
  std::unique_ptr<QTextDocument> fresh = make_document();
  fresh->setUndoRedoEnabled(false);
  PictureStore pictures;
  QTextCursor filling{fresh.get()};
  RtfImport{source, *fresh, pictures}.insert(filling, true);
  replace_document(std::move(fresh), std::move(pictures), true);
}

void QtRichText::replace_selection_rtf(std::string_view bytes) { insert_rtf(bytes, any_edit); }

void QtRichText::insert_rtf(std::string_view bytes, int kind) {
  const rtf::Document source = rtf::read(bytes, decode_pairs);
  edit(
      [&] {
        cursor_.beginEditBlock();
        cursor_.removeSelectedText();
        RtfImport{source, *document_, pictures_}.insert(cursor_, false);
        cursor_.endEditBlock();
      },
      kind);
}

std::vector<std::pair<int, int>> QtRichText::selected_parts() const {
  std::vector<std::pair<int, int>> parts;
  const int start = cursor_.selectionStart();
  const int end = cursor_.selectionEnd();
  for (QTextBlock block = document_->findBlock(start); block.isValid() && block.position() < end;
       block = block.next()) {
    for (auto each = block.begin(); !each.atEnd(); ++each) {
      const int from = std::max(start, each.fragment().position());
      const int to = std::min(end, each.fragment().position() + each.fragment().length());
      if (from < to) parts.emplace_back(from, to - from);
    }
  }
  return parts;
}

void QtRichText::change_selection(const std::function<Text(TextView)>& change) {
  if (!cursor_.hasSelection()) return;
  edit([&] {
    const int start = cursor_.selectionStart();
    const int end = cursor_.selectionEnd();
    QTextCursor part{document_.get()};
    part.beginEditBlock();
    for (const auto& [from, length] : selected_parts()) {
      part.setPosition(from);
      part.setPosition(from + length, QTextCursor::KeepAnchor);
      const QTextCharFormat format = part.charFormat();
      if (!format.isImageFormat()) part.insertText(to_qt(change(from_qt(part.selectedText()))), format);
    }
    part.endEditBlock();
    cursor_.setPosition(start);
    cursor_.setPosition(end, QTextCursor::KeepAnchor);
  });
}

void QtRichText::cut() {
  if (!cursor_.hasSelection()) return;
  copy();
  edit([&] { cursor_.removeSelectedText(); }, cutting);
}

void QtRichText::copy() {
  if (!cursor_.hasSelection()) return;
  auto content = std::make_unique<QMimeData>();
  content->setText(to_qt(sel_text()));
  content->setData(rtf_type, bytes_of(sel_rtf()));
  QGuiApplication::clipboard()->setMimeData(content.release());
}

void QtRichText::paste() {
  if (!can_paste()) return;
  const QMimeData* content = clipboard_content();
  if (content->hasFormat(rtf_type)) {
    insert_rtf(content->data(rtf_type).toStdString(), pasting);
  } else if (content->hasImage()) {
    const auto image = qvariant_cast<QImage>(content->imageData());
    edit(
        [&] {
          QTextImageFormat shown;
          shown.setName(keep_picture(*document_, pictures_, picture_of(image), image));
          shown.setWidth(image.width());
          shown.setHeight(image.height());
          cursor_.insertImage(shown);
        },
        pasting);
  } else {
    edit([&] { cursor_.insertText(lines_to_qt(from_qt(content->text()))); }, pasting);
  }
}

void QtRichText::drag_selection(int to, bool copies) {
  const int start = cursor_.selectionStart();
  const int end = cursor_.selectionEnd();
  if (start == end || (to >= start && to <= end)) return;
  const rtf::Document dragged = export_rtf(*document_, start, end, pictures_);
  edit(
      [&] {
        cursor_.beginEditBlock();
        if (!copies) cursor_.removeSelectedText();
        const int from = !copies && to > end ? to - (end - start) : to;
        cursor_.setPosition(from);
        RtfImport{dragged, *document_, pictures_}.insert(cursor_, false);
        cursor_.endEditBlock();
        const int behind = cursor_.position();
        cursor_.setPosition(from);
        cursor_.setPosition(behind, QTextCursor::KeepAnchor);
      },
      dragging);
}

bool QtRichText::can_paste() const {
  const QMimeData* content = clipboard_content();
  return content != nullptr &&
         (content->hasFormat(rtf_type) || content->hasImage() || !content->text().isEmpty());
}

}  // namespace tarnmill::desktop
