#pragma once

#include <map>
#include <utility>

#include "mathpad/rtf/document.h"

namespace tarnmill::rtf {

/// Makes a document from its beginning to its end. Fonts and formats that are equal get the same index; the
/// first one used is 0. Equals are found by order, not by hash, so no input makes the search slow.
class DocumentBuilder {
 public:
  /// The index of a font's name, without what no font table can hold; `none` when nothing is left of it.
  std::uint32_t font(TextView name);
  /// The index of a character format.
  std::uint32_t format(const CharacterFormat& format);
  /// The index of a paragraph format.
  std::uint32_t paragraph_format(const ParagraphFormat& format);

  /// Adds text in a format to the open paragraph. Control characters are left out except the tab, a paragraph
  /// separator becomes a line break, and a code unit that would mean something else in a view (the picture
  /// character, those that are no characters) U+FFFD.
  void append(TextView text, std::uint32_t format);
  /// Adds a picture to the open paragraph.
  void append_picture(Picture picture, std::uint32_t format);
  /// Ends the open paragraph. `end_format` is the character format at its end.
  void end_paragraph(std::uint32_t paragraph_format, std::uint32_t end_format);

  /// Twips between tab stops where a paragraph sets none.
  void set_default_tab(std::int32_t twips) { document_.default_tab = twips; }

  /// Nothing stands in the open paragraph yet.
  [[nodiscard]] bool paragraph_is_empty() const { return open_.length == 0; }
  /// Code units and pictures so far, to tell whether something was added.
  [[nodiscard]] std::size_t length() const { return document_.text.size(); }

  /// Something stands in the open paragraph, or there is no other one.
  [[nodiscard]] bool is_unended() const { return !paragraph_is_empty() || document_.paragraphs.empty(); }
  /// Makes the open paragraph the last one, without a break behind it.
  void leave_open(std::uint32_t paragraph_format, std::uint32_t end_format);

  /// The document. It must not be unended.
  [[nodiscard]] Document finish() && { return std::move(document_); }

 private:
  void append_clean(TextView text, std::uint32_t format);

  Document document_;
  Paragraph open_;
  std::map<Text, std::uint32_t> font_indices_;
  std::map<CharacterFormat, std::uint32_t> format_indices_;
  std::map<ParagraphFormat, std::uint32_t> paragraph_format_indices_;
};

}  // namespace tarnmill::rtf
