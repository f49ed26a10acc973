#include "mathpad/rtf/document_builder.h"
#include "mathpad/rtf/writer.h"
#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

// One paragraph of one format.
Document document_of(TextView text, const CharacterFormat& format = {},
                     const ParagraphFormat& paragraph = {}) {
  DocumentBuilder builder;
  const std::uint32_t index = builder.format(format);
  builder.append(text, index);
  builder.end_paragraph(builder.paragraph_format(paragraph), index);
  return std::move(builder).finish();
}

// What the writer makes of the body, without head and tail.
std::string body_of(const Document& document) {
  const std::string bytes = write(document);
  const std::string head_end = ";}\r\n";
  const std::size_t start = bytes.find(head_end) + head_end.size();
  return bytes.substr(start, bytes.size() - start - std::string{"}\r\n"}.size());
}

TEST(RtfWriter, WritesAFile) {
  DocumentBuilder builder;
  const std::uint32_t format = builder.format({.font = builder.font(u"Tahoma"), .half_points = 20});
  const std::uint32_t red = builder.format(
      {.font = builder.font(u"Caf\u00E9;"), .half_points = 20, .color = Rgb{255, 0, 1}, .bold = true});
  builder.append(u"a ", format);
  builder.append(u"b", red);
  builder.end_paragraph(builder.paragraph_format({.alignment = Alignment::center}), red);
  EXPECT_EQ(write(std::move(builder).finish()),
            "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deftab720{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}"
            "{\\f1\\fnil\\fcharset0 Caf\\'e9;}}\r\n{\\colortbl ;\\red255\\green0\\blue1;}\r\n"
            "\\pard\\qc \\plain\\f0\\fs20 a \\plain\\f1\\fs20\\cf1\\b b\\par\r\n}\r\n");
}

struct TextRow {
  TextView text;
  std::string_view written;
};

TEST(RtfWriter, EscapesText) {
  for (const auto& [text, written] : {
           TextRow{u"{\\}", R"(\{\\\})"},
           TextRow{u"a\tb\u2028c", "a\\tab b\\line c"},
           TextRow{u"\u00A0\u00AD\u2011", R"(\~\-\_)"},
           TextRow{u"äÿ€“", R"(\'e4\'ff\'80\'93)"},
           TextRow{u"π√", "\\u960?\\u8730?"},
           TextRow{u"\uF0B7", "\\u-3913?"},
           TextRow{u"😀", "\\u-10179?\\u-8704?"},
           TextRow{u"\u0081", "\\u129?"},
           TextRow{u"~", "~"},
       }) {
    EXPECT_EQ(body_of(document_of(text)), "\\pard\\ql \\plain\\fs24 " + std::string{written} + "\\par\r\n");
  }
}

struct FormatRow {
  CharacterFormat format;
  std::string_view words;
};

TEST(RtfWriter, WritesCharacterFormats) {
  for (const auto& [format, words] : {
           FormatRow{{.bold = true}, "\\fs24\\b"},
           FormatRow{{.italic = true}, "\\fs24\\i"},
           FormatRow{{.underline = true}, "\\fs24\\ul"},
           FormatRow{{.strike = true}, "\\fs24\\strike"},
           FormatRow{{.half_points = 17, .rise = 7}, "\\fs17\\up7"},
           FormatRow{{.half_points = 17, .rise = -5}, "\\fs17\\dn5"},
           FormatRow{{.color = Rgb{}}, "\\fs24\\cf1"},
       }) {
    EXPECT_EQ(body_of(document_of(u"x", format)), "\\pard\\ql \\plain" + std::string{words} + " x\\par\r\n");
  }
}

struct ParagraphRow {
  ParagraphFormat format;
  std::string_view words;
};

TEST(RtfWriter, WritesParagraphFormats) {
  for (const auto& [format, words] : {
           ParagraphRow{{.alignment = Alignment::right}, "\\qr"},
           ParagraphRow{{.alignment = Alignment::justified}, "\\qj"},
           ParagraphRow{{.left_indent = 1, .right_indent = 2, .first_indent = -3}, R"(\ql\li1\ri2\fi-3)"},
           ParagraphRow{{.tabs = {{1}, {2, TabKind::right}, {3, TabKind::center}, {4, TabKind::decimal}}},
                        R"(\ql\tx1\tqr\tx2\tqc\tx3\tqdec\tx4)"},
       }) {
    EXPECT_EQ(body_of(document_of(u"x", {}, format)),
              "\\pard" + std::string{words} + " \\plain\\fs24 x\\par\r\n");
  }
}

Document document_with(Picture picture) {
  DocumentBuilder builder;
  const std::uint32_t format = builder.format({});
  builder.append_picture(std::move(picture), format);
  builder.end_paragraph(builder.paragraph_format({}), format);
  return std::move(builder).finish();
}

struct PictureRow {
  Picture picture;
  std::string_view words;
};

TEST(RtfWriter, WritesPictures) {
  const std::vector<PictureRow> rows{
      {{PictureKind::png, "\x89P"}, "\\pngblip\r\n8950\r\n"},
      {{PictureKind::jpeg, "\x01", 1500, 750},
       "\\jpegblip\\picw100\\picwgoal1500\\pich50\\pichgoal750\r\n01\r\n"},
      {{PictureKind::dib, "\x01", 15, 15, 200, 50},
       "\\dibitmap0\\picw1\\picwgoal15\\pich1\\pichgoal15\\picscalex200\\picscaley50\r\n01\r\n"},
      {{PictureKind::wmf, "\x01", 1440, 720},
       "\\wmetafile8\\picw2540\\picwgoal1440\\pich1270\\pichgoal720\r\n01\r\n"},
      {{PictureKind::emf, "\x01"}, "\\emfblip\r\n01\r\n"},
  };
  for (const auto& [picture, words] : rows) {
    EXPECT_EQ(body_of(document_with(picture)),
              "\\pard\\ql \\plain\\fs24 {\\pict" + std::string{words} + "}\\par\r\n");
  }
}

TEST(RtfWriter, BreaksThePicturesDigitsIntoLines) {
  const std::string bytes = write(document_with({PictureKind::png, std::string(65, 'A')}));
  const std::string line = [] {
    std::string digits;
    for (int i = 0; i < 64; ++i) digits += "41";
    return digits;
  }();
  EXPECT_NE(bytes.find("\\pngblip\r\n" + line + "\r\n41\r\n}"), std::string::npos);
}

TEST(RtfWriter, KeepsTheSizeOfAnEmptyLine) {
  EXPECT_EQ(body_of(document_of(u"", {.half_points = 60})), "\\pard\\ql \\plain\\fs60 \\par\r\n");
}

TEST(RtfWriter, DoesNotEndAParagraphThatIsOpen) {
  DocumentBuilder builder;
  builder.append(u"x", builder.format({}));
  builder.leave_open(builder.paragraph_format({}), 0);
  EXPECT_EQ(body_of(std::move(builder).finish()), "\\pard\\ql \\plain\\fs24 x\r\n");
}

TEST(RtfWriter, WritesAsciiOnly) {
  for (const char byte : write(document_of(u"äπ😀\u2028\t\uFFFF\u0081"))) {
    EXPECT_TRUE((byte >= ' ' && byte < 0x7F) || byte == '\r' || byte == '\n');
  }
}

}  // namespace
}  // namespace tarnmill::rtf
