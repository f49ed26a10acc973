#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/text.h"

namespace tarnmill::rtf {

/// The index that names nothing.
inline constexpr std::uint32_t none = 0xFFFFFFFF;

/// Stands in a document's text where a picture is.
inline constexpr char16_t picture_character = 0xFFFC;
/// A line break within a paragraph.
inline constexpr char16_t line_break = 0x2028;

/// The largest length that a document holds, in twips: 22 inches. What claims more is cut to it.
inline constexpr std::int32_t longest_length = 31680;

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend auto operator<=>(const Rgb&, const Rgb&) = default;
};

/// How characters look.
struct CharacterFormat {
  /// Index in Document::fonts; `none` leaves the font to whoever shows the document.
  std::uint32_t font = none;
  std::int32_t half_points = 24;
  /// Half points above the base line, negative below.
  std::int32_t rise = 0;
  /// Without one, the colour of text that was given none.
  std::optional<Rgb> color = {};
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  // NOLINTNEXTLINE(readability-implicit-bool-conversion): the check minds that it compares bools.
  friend auto operator<=>(const CharacterFormat&, const CharacterFormat&) = default;
};

/// The first three have the numbers of the rich text box's alignments.
enum class Alignment : std::uint8_t { left, right, center, justified };

enum class TabKind : std::uint8_t { left, right, center, decimal };

struct TabStop {
  /// Twips from the left margin.
  std::int32_t position = 0;
  TabKind kind = TabKind::left;
  friend auto operator<=>(const TabStop&, const TabStop&) = default;
};

/// How a paragraph lies. Lengths are twips, the first line's indent is counted from the left indent.
struct ParagraphFormat {
  Alignment alignment = Alignment::left;
  std::int32_t left_indent = 0;
  std::int32_t right_indent = 0;
  std::int32_t first_indent = 0;
  /// By position, no two at the same one.
  std::vector<TabStop> tabs = {};
  friend auto operator<=>(const ParagraphFormat&, const ParagraphFormat&) = default;
};

enum class PictureKind : std::uint8_t {
  png,
  jpeg,
  /// A bitmap from its information header on, without the file header "BM".
  dib,
  /// A Windows metafile from its own header on, without the placeable header of files.
  wmf,
  /// An enhanced metafile.
  emf
};

/// A picture as a document carries it. The bytes are not looked into, so nothing about them is certain.
struct Picture {
  PictureKind kind = PictureKind::png;
  std::string bytes = {};
  /// Twips before scaling, 0 to longest_length; 0 when not told.
  std::int32_t width = 0;
  std::int32_t height = 0;
  /// Percent, 1 to 10000.
  std::int32_t scale_x = 100;
  std::int32_t scale_y = 100;
  friend bool operator==(const Picture&, const Picture&) = default;
};

/// The size to show for a size before scaling, in twips, cut to longest_length; 0 when not told.
[[nodiscard]] constexpr std::int32_t scaled(std::int32_t twips, std::int32_t percent) {
  const std::int64_t size = std::int64_t{twips} * percent / 100;
  return size > longest_length ? longest_length : static_cast<std::int32_t>(size);
}

/// Characters of one format, or one picture.
struct TextRun {
  /// Code units.
  std::uint32_t length = 0;
  /// Index in Document::formats.
  std::uint32_t format = 0;
  /// Index in Document::pictures of the picture at the one character; `none` for text.
  std::uint32_t picture = none;
  friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// A paragraph: a part of the document's text and of its runs, which cover it without gaps.
struct Paragraph {
  std::uint32_t start = 0;
  std::uint32_t length = 0;
  std::uint32_t first_run = 0;
  std::uint32_t run_count = 0;
  /// Index in Document::paragraph_formats.
  std::uint32_t format = 0;
  /// Index in Document::formats: the format of the paragraph's end, by which an empty line has its height.
  std::uint32_t end_format = 0;
  friend bool operator==(const Paragraph&, const Paragraph&) = default;
};

/// Rich text as plain data. Text and runs lie one after another for the whole document, and formats are told
/// once each, so that a view makes its own objects of them once each. Made by a DocumentBuilder.
struct Document {
  /// The text of all paragraphs, without a mark between them. A line break in a paragraph is `line_break`;
  /// there are no carriage returns, line feeds and zeros, and no code points that are no characters.
  Text text = {};
  std::vector<TextRun> runs;
  /// At least one.
  std::vector<Paragraph> paragraphs;
  /// As `font_name` makes them, so none is empty.
  std::vector<Text> fonts;
  std::vector<CharacterFormat> formats;
  std::vector<ParagraphFormat> paragraph_formats;
  std::vector<Picture> pictures;
  /// Twips between tab stops where a paragraph sets none.
  std::int32_t default_tab = 720;
  /// The last paragraph was not ended: put in somewhere, the document does not break the paragraph behind it.
  bool open_end = false;

  [[nodiscard]] TextView text_of(const Paragraph& paragraph) const {
    return TextView{text}.substr(paragraph.start, paragraph.length);
  }
  [[nodiscard]] std::span<const TextRun> runs_of(const Paragraph& paragraph) const {
    return std::span{runs}.subspan(paragraph.first_run, paragraph.run_count);
  }
  friend bool operator==(const Document&, const Document&) = default;
};

}  // namespace tarnmill::rtf
