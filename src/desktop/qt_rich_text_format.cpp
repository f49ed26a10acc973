// The formats of a selection of rich text.
#include <QFont>
#include <QTextBlock>
#include <QTextFragment>
#include <algorithm>

#include "desktop/qt_raster.h"
#include "desktop/qt_rich_text.h"
#include "desktop/qt_text.h"
#include "desktop/without_layout.h"

namespace tarnmill::desktop {

namespace {

/// Up to how many characters are looked at one by one. Beyond, the parts of one format are walked, and those
/// of a paragraph only from its start.
constexpr int short_selection = 64;

}  // namespace

void QtRichText::visit_characters(const FormatVisitor& visit) const {
  const WithoutLayout look{*document_};
  QTextCursor probe{document_.get()};
  for (int i = cursor_.selectionStart(); i < cursor_.selectionEnd(); ++i) {
    if (document_->characterAt(i) == QChar::ParagraphSeparator) continue;
    // The format of a position is that of the character before it.
    probe.setPosition(i + 1);
    if (!visit(probe.charFormat())) return;
  }
}

void QtRichText::visit_parts(const FormatVisitor& visit) const {
  const int start = cursor_.selectionStart();
  const int end = cursor_.selectionEnd();
  for (QTextBlock block = document_->findBlock(start); block.isValid() && block.position() < end;
       block = block.next()) {
    for (auto each = block.begin(); !each.atEnd(); ++each) {
      const QTextFragment part = each.fragment();
      const bool selected = part.position() < end && part.position() + part.length() > start;
      if (selected && !visit(part.charFormat())) return;
    }
  }
}

template <class Value>
auto QtRichText::common(Value&& value) const -> std::optional<decltype(value(QTextCharFormat{}))> {
  std::optional<decltype(value(QTextCharFormat{}))> all;
  bool mixed = false;
  const auto take = [&](const QTextCharFormat& format) {
    const auto here = value(format);
    mixed = all && *all != here;
    all = here;
    return !mixed;
  };
  if (sel_length() <= short_selection) {
    visit_characters(take);
  } else {
    visit_parts(take);
  }
  if (mixed) return std::nullopt;
  if (all) return all;
  // A line break has the format of the paragraph that it begins.
  if (cursor_.hasSelection()) return value(document_->findBlock(cursor_.selectionEnd()).charFormat());
  return value(cursor_.charFormat());
}

void QtRichText::merge(const QTextCharFormat& format) {
  cursor_.mergeCharFormat(format);
  // The toolkit counts a new format as a change of the contents; the text is the same.
  text_changed_ = false;
  if (on_format) on_format();
}

std::optional<Text> QtRichText::sel_font_name() const {
  return common(
      [this](const QTextCharFormat& format) { return from_qt(family_of(format, document_->defaultFont())); });
}

void QtRichText::set_sel_font_name(const Text& name) {
  if (name.empty()) return;
  QTextCharFormat format;
  format.setFontFamilies({to_qt(name)});
  merge(format);
}

std::optional<double> QtRichText::sel_font_size() const {
  return common([this](const QTextCharFormat& format) { return size_of(format, document_->defaultFont()); });
}

void QtRichText::set_sel_font_size(double points) {
  if (points <= 0) return;
  QTextCharFormat format;
  format.setFontPointSize(points);
  merge(format);
  // The toolkit counts an offset in percent of the size, so it moves with it unless it is set again.
  const std::optional<double> offset = sel_char_offset();
  if (offset.value_or(0) != 0) set_sel_char_offset(*offset);
}

std::optional<bool> QtRichText::sel_bold() const {
  return common([](const QTextCharFormat& format) { return format.fontWeight() > QFont::Medium; });
}

void QtRichText::set_sel_bold(bool on) {
  QTextCharFormat format;
  format.setFontWeight(on ? QFont::Bold : QFont::Normal);
  merge(format);
}

std::optional<bool> QtRichText::sel_italic() const {
  return common([](const QTextCharFormat& format) { return format.fontItalic(); });
}

void QtRichText::set_sel_italic(bool on) {
  QTextCharFormat format;
  format.setFontItalic(on);
  merge(format);
}

std::optional<bool> QtRichText::sel_underline() const {
  return common([](const QTextCharFormat& format) { return format.fontUnderline(); });
}

void QtRichText::set_sel_underline(bool on) {
  QTextCharFormat format;
  format.setFontUnderline(on);
  merge(format);
}

std::optional<bool> QtRichText::sel_strike_through() const {
  return common([](const QTextCharFormat& format) { return format.fontStrikeOut(); });
}

void QtRichText::set_sel_strike_through(bool on) {
  QTextCharFormat format;
  format.setFontStrikeOut(on);
  merge(format);
}

std::optional<Color> QtRichText::sel_color() const {
  return common([](const QTextCharFormat& format) { return from_qt(format.foreground().color().rgb()); });
}

void QtRichText::set_sel_color(Color color) {
  QTextCharFormat format;
  format.setForeground(QColor{to_qt(resolve(color))});
  merge(format);
}

std::optional<int> QtRichText::sel_alignment() const {
  const QTextBlock last = document_->findBlock(cursor_.selectionEnd());
  QTextBlock block = document_->findBlock(cursor_.selectionStart());
  const int first = alignment_of(block.blockFormat());
  while (block != last) {
    block = block.next();
    if (alignment_of(block.blockFormat()) != first) return std::nullopt;
  }
  return first;
}

void QtRichText::set_sel_alignment(int alignment) {
  if (sel_alignment() == alignment) return;
  QTextBlockFormat format;
  set_alignment(format, alignment);
  cursor_.mergeBlockFormat(format);
  text_changed_ = false;
}

std::optional<double> QtRichText::sel_char_offset() const { return common(char_offset_of); }

void QtRichText::set_sel_char_offset(double twips) {
  QTextCharFormat format;
  set_char_offset(format, twips, sel_font_size().value_or(document_->defaultFont().pointSizeF()));
  merge(format);
}

}  // namespace tarnmill::desktop
