#include "desktop/rtf_export.h"

#include <QTextBlock>
#include <QTextFragment>
#include <algorithm>
#include <cmath>

#include "desktop/qt_text.h"
#include "mathpad/rtf/document_builder.h"

namespace tarnmill::desktop {

namespace {

constexpr double twips_per_pixel = 15;
constexpr double twips_per_half_point = 10;

std::int32_t rounded(double value) { return static_cast<std::int32_t>(std::lround(value)); }

enum class LastParagraph { ended, open };

class Export {
 public:
  Export(const QTextDocument& document, const PictureStore& pictures)
      : document_{document}, pictures_{pictures} {}

  rtf::Document run(int start, int end, LastParagraph last) && {
    QTextBlock block = document_.findBlock(start);
    for (; block.isValid() && block.position() <= end; block = block.next()) {
      add_text(block, start, end);
      const auto format = builder_.paragraph_format(paragraph_format(block.blockFormat()));
      const auto end_format = index_of(block.charFormat());
      const bool is_last = end < block.position() + block.length();
      if (is_last && last == LastParagraph::open) {
        if (builder_.is_unended()) builder_.leave_open(format, end_format);
      } else {
        builder_.end_paragraph(format, end_format);
      }
    }
    return std::move(builder_).finish();
  }

 private:
  void add_text(const QTextBlock& block, int start, int end) {
    for (auto each = block.begin(); !each.atEnd(); ++each) {
      const QTextFragment part = each.fragment();
      const int from = std::max(start, part.position());
      const int to = std::min(end, part.position() + part.length());
      if (from >= to) continue;
      const QTextCharFormat format = part.charFormat();
      if (format.isImageFormat()) {
        for (int i = from; i < to; ++i) add_picture(format.toImageFormat());
      } else {
        const QString text = part.text().mid(from - part.position(), to - from);
        builder_.append(from_qt(text), index_of(format));
      }
    }
  }

  void add_picture(const QTextImageFormat& shown) {
    const auto found = pictures_.find(shown.name());
    if (found != pictures_.end()) builder_.append_picture(found->second, index_of(shown));
  }

  std::uint32_t index_of(const QTextCharFormat& format) {
    const QFont plain = document_.defaultFont();
    const double size = size_of(format, plain);
    rtf::CharacterFormat to;
    to.font = builder_.font(from_qt(family_of(format, plain)));
    to.half_points = rounded(size * 2);
    to.rise = rounded(char_offset_of(format) / twips_per_half_point);
    to.bold = format.fontWeight() > QFont::Medium;
    to.italic = format.fontItalic();
    to.underline = format.fontUnderline();
    to.strike = format.fontStrikeOut();
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
      const QColor color = format.foreground().color();
      to.color = rtf::Rgb{static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                          static_cast<std::uint8_t>(color.blue())};
    }
    return builder_.format(to);
  }

  static rtf::TabKind tab_kind(QTextOption::TabType type) {
    switch (type) {
      case QTextOption::RightTab:
        return rtf::TabKind::right;
      case QTextOption::CenterTab:
        return rtf::TabKind::center;
      case QTextOption::DelimiterTab:
        return rtf::TabKind::decimal;
      default:
        return rtf::TabKind::left;
    }
  }

  static rtf::ParagraphFormat paragraph_format(const QTextBlockFormat& format) {
    rtf::ParagraphFormat to;
    to.alignment = (format.alignment() & Qt::AlignJustify) != 0
                       ? rtf::Alignment::justified
                       : static_cast<rtf::Alignment>(alignment_of(format));
    to.left_indent = rounded(format.leftMargin() * twips_per_pixel);
    to.right_indent = rounded(format.rightMargin() * twips_per_pixel);
    to.first_indent = rounded(format.textIndent() * twips_per_pixel);
    for (const QTextOption::Tab& each : format.tabPositions()) {
      to.tabs.push_back({rounded(each.position * twips_per_pixel), tab_kind(each.type)});
    }
    return to;
  }

  const QTextDocument& document_;
  const PictureStore& pictures_;
  rtf::DocumentBuilder builder_;
};

}  // namespace

rtf::Document export_rtf(const QTextDocument& document, const PictureStore& pictures) {
  return Export{document, pictures}.run(0, document.characterCount() - 1, LastParagraph::ended);
}

rtf::Document export_rtf(const QTextDocument& document, int start, int end, const PictureStore& pictures) {
  return Export{document, pictures}.run(start, end, LastParagraph::open);
}

}  // namespace tarnmill::desktop
