#include "desktop/rtf_import.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

#include "desktop/picture_data.h"
#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

constexpr double twips_per_pixel = 15;
constexpr double twips_per_half_point = 10;

QTextCharFormat char_format(const rtf::CharacterFormat& from, const rtf::Document& source,
                            const QFont& plain) {
  QTextCharFormat to;
  to.setFontFamilies({from.font == rtf::none ? plain.family() : to_qt(source.fonts[from.font])});
  to.setFontPointSize(from.half_points / 2.0);
  if (from.bold) to.setFontWeight(QFont::Bold);
  if (from.italic) to.setFontItalic(true);
  if (from.underline) to.setFontUnderline(true);
  if (from.strike) to.setFontStrikeOut(true);
  if (from.color) to.setForeground(QColor{from.color->red, from.color->green, from.color->blue});
  if (from.rise != 0) set_char_offset(to, from.rise * twips_per_half_point, from.half_points / 2.0);
  return to;
}

QTextOption::TabType tab_type(rtf::TabKind kind) {
  switch (kind) {
    case rtf::TabKind::right:
      return QTextOption::RightTab;
    case rtf::TabKind::center:
      return QTextOption::CenterTab;
    case rtf::TabKind::decimal:
      return QTextOption::DelimiterTab;
    default:
      return QTextOption::LeftTab;
  }
}

QTextBlockFormat block_format(const rtf::ParagraphFormat& from) {
  QTextBlockFormat to;
  if (from.alignment == rtf::Alignment::justified) {
    to.setAlignment(Qt::AlignJustify);
  } else {
    set_alignment(to, static_cast<int>(from.alignment));
  }
  to.setLeftMargin(from.left_indent / twips_per_pixel);
  to.setRightMargin(from.right_indent / twips_per_pixel);
  to.setTextIndent(from.first_indent / twips_per_pixel);
  QList<QTextOption::Tab> tabs;
  for (const rtf::TabStop& each : from.tabs) {
    tabs += QTextOption::Tab{each.position / twips_per_pixel, tab_type(each.kind), u'.'};
  }
  to.setTabPositions(tabs);
  return to;
}

}  // namespace

RtfImport::RtfImport(const rtf::Document& source, const QTextDocument& target, PictureStore& pictures)
    : source_{source}, pictures_{pictures} {
  for (const auto& each : source.formats) {
    formats_.push_back(char_format(each, source, target.defaultFont()));
  }
  for (const auto& each : source.paragraph_formats) paragraph_formats_.push_back(block_format(each));
}

void RtfImport::insert(QTextCursor& cursor, bool whole) const {
  cursor.beginEditBlock();
  for (std::size_t i = 0; i < source_.paragraphs.size(); ++i) {
    const rtf::Paragraph& paragraph = source_.paragraphs[i];
    const bool first = i == 0;
    if (!first) cursor.insertBlock(paragraph_formats_[paragraph.format], formats_[paragraph.end_format]);
    if (first && (whole || cursor.block().length() == 1)) {
      cursor.setBlockFormat(paragraph_formats_[paragraph.format]);
      cursor.setBlockCharFormat(formats_[paragraph.end_format]);
    }
    insert_runs(cursor, paragraph);
  }
  if (!whole && !source_.open_end) cursor.insertBlock();
  cursor.endEditBlock();
}

void RtfImport::insert_runs(QTextCursor& cursor, const rtf::Paragraph& paragraph) const {
  TextView rest = source_.text_of(paragraph);
  for (const rtf::TextRun& run : source_.runs_of(paragraph)) {
    if (run.picture != rtf::none) {
      insert_picture(cursor, source_.pictures[run.picture], formats_[run.format]);
    } else {
      cursor.insertText(to_qt(rest.substr(0, run.length)), formats_[run.format]);
    }
    rest.remove_prefix(run.length);
  }
}

void RtfImport::insert_picture(QTextCursor& cursor, const rtf::Picture& picture,
                               const QTextCharFormat& format) const {
  const QImage image = image_of(picture);
  const QString name = keep_picture(*cursor.document(), pictures_, picture, image);
  QTextImageFormat shown;
  shown.merge(format);
  shown.setName(name);
  const double width = rtf::scaled(picture.width, picture.scale_x) / twips_per_pixel;
  const double height = rtf::scaled(picture.height, picture.scale_y) / twips_per_pixel;
  shown.setWidth(width > 0 ? width : image.width());
  shown.setHeight(height > 0 ? height : image.height());
  cursor.insertImage(shown);
}

}  // namespace tarnmill::desktop
