// What other word processors write. How each file of data/ was made is told in data/README.md.

#include "mathpad/rtf/writer.h"
#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

CharacterFormat without_font(CharacterFormat format) {
  format.font = none;
  return format;
}

TEST(RtfOfLibreOffice, FormatsAreKept) {
  const Document document = read(data_file("formats.rtf"));
  EXPECT_EQ(
      text_of(document),
      "plain bold italic underlined wavy struck red small Courier|x2 + an + raised|to the right|justified|"
      "one\ttwo\tthree/next line||braces {} and \\ backslash|last");
  EXPECT_EQ(font_of(document, u"plain"), "Tahoma");
  EXPECT_EQ(font_of(document, u"small"), "Courier New");
  struct Row {
    TextView text;
    CharacterFormat format;
  };
  for (const auto& [text, format] : {
           Row{u"plain", {.half_points = 20}},
           Row{u"bold", {.half_points = 20, .bold = true}},
           Row{u"italic", {.half_points = 20, .italic = true}},
           Row{u"underlined", {.half_points = 20, .underline = true}},
           Row{u"wavy", {.half_points = 20, .underline = true}},
           Row{u"struck", {.half_points = 20, .strike = true}},
           Row{u"red", {.half_points = 20, .color = Rgb{192, 0, 16}}},
           Row{u"small", {.half_points = 17}},
           Row{u"2", {.half_points = 14, .rise = 6}},
           Row{u"n + r", {.half_points = 14, .rise = -4}},
           Row{u"raised", {.half_points = 20, .rise = 6}},
       }) {
    EXPECT_EQ(without_font(format_of(document, text)), format) << to_utf8(text);
  }
}

TEST(RtfOfLibreOffice, ParagraphsLieAsTheyDidThere) {
  const Document document = read(data_file("formats.rtf"));
  constexpr Alignment alignments[]{Alignment::left, Alignment::center, Alignment::right,
                                   Alignment::justified};
  for (std::size_t i = 0; i < std::size(alignments); ++i) {
    EXPECT_EQ(paragraph_format_of(document, i).alignment, alignments[i]) << i;
  }
  EXPECT_EQ(
      paragraph_format_of(document, 4),
      (ParagraphFormat{
          .left_indent = 1440,
          .right_indent = 360,
          .first_indent = -720,
          .tabs = {{2880}, {4320, TabKind::right}, {5760, TabKind::center}, {7200, TabKind::decimal}}}));
}

TEST(RtfOfLibreOffice, AllLettersAreRead) {
  EXPECT_EQ(text_of(read(data_file("languages.rtf"))),
            "Grüße — “naïve” €5|Δεδομένα|Привет, šćđž|∫ √ ≤ ∞ ℝ|𝔸 😀|日本語|α≥∞|\uF0FC|"
            "no\u00A0break soft\u00ADhyphen hard\u2011hyphen");
}

TEST(RtfOfLibreOffice, PicturesStandWhereTheyWere) {
  const Document document = read(data_file("pictures.rtf"));
  EXPECT_EQ(text_of(document), "before \uFFFC after|\uFFFCanchored|end");
  ASSERT_EQ(document.pictures.size(), 2U);
  for (const Picture& picture : document.pictures) {
    EXPECT_EQ(picture.kind, PictureKind::png);
    EXPECT_TRUE(picture.bytes.starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_TRUE(picture.bytes.ends_with("IEND\xAE\x42\x60\x82"));
  }
  EXPECT_EQ(scaled(document.pictures[0].width, document.pictures[0].scale_x), 1440);
  EXPECT_EQ(scaled(document.pictures[0].height, document.pictures[0].scale_y), 720);
  EXPECT_EQ(scaled(document.pictures[1].width, document.pictures[1].scale_x), 2880);
  EXPECT_EQ(scaled(document.pictures[1].height, document.pictures[1].scale_y), 1440);
}

TEST(RtfOfLibreOffice, ListsTablesFieldsAndFramesBecomeText) {
  EXPECT_EQ(text_of(read(data_file("structure.rtf"))),
            "Before the list| 1.\tfirst| 2.\tsecond| •\tdot|a1\tb1\t|a2\tb2\t|a link and page 1|"
            "frame: in the frame| done|end");
}

TEST(RtfOfLibreOffice, FilesStayTheSameOnceWritten) {
  for (const char* name : {"formats.rtf", "languages.rtf", "pictures.rtf", "structure.rtf"}) {
    const Document document = read(data_file(name));
    EXPECT_EQ(read(write(document)), document) << name;
  }
}

// The idioms of the large word processor's own files: style sheets, associated fonts, revision marks.
TEST(RtfOfWordProcessors, AssociatedFontsDoNotDisturb) {
  const Document document = read(
      "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc1\\adeff0\\deff0\\stshfdbch0\\deflang1033"
      "{\\fonttbl{\\f0\\fbidi \\froman\\fcharset0\\fprq2{\\*\\panose 02020603050405020304}Times New Roman;}"
      "{\\flomajor\\f31500\\fbidi \\froman\\fcharset0\\fprq2 Cambria;}}{\\colortbl;\\red0\\green0\\blue0;}"
      "{\\*\\defchp \\f31500\\fs22 }{\\stylesheet{\\ql \\f0\\fs24 \\snext0 Normal;}{\\*\\cs10 Default;}}"
      "{\\*\\rsidtbl \\rsid1}{\\info{\\author A}{\\creatim\\yr2020}}\\sectd"
      "\\pard\\plain \\ltrpar\\ql \\rtlch\\fcs1 \\af0\\afs24\\ab\\ai \\ltrch\\fcs0 \\fs24\\lang1033 "
      "{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 \\b\\insrsid1 Bold}{\\rtlch \\ltrch\\fcs0 \\insrsid1 \\rquote "
      "s\\par }}");
  EXPECT_EQ(text_of(document), "Bold’s");
  EXPECT_TRUE(format_of(document, u"Bold").bold);
  EXPECT_FALSE(format_of(document, u"s").bold);
  EXPECT_EQ(font_of(document, u"Bold"), "Times New Roman");
}

TEST(RtfOfWordProcessors, TheSimpleEditorsFilesAreRead) {
  const Document document = read(
      "{\\rtf1\\ansi\\ansicpg1250\\deff0\\deflang1050{\\fonttbl{\\f0\\fnil\\fcharset238{\\*\\fname "
      "Arial;}Arial "
      "CE;}{\\f1\\fnil\\fcharset2 Symbol;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n\\viewkind4\\uc1"
      "\\pard\\cf1\\f0\\fs20 \\'9aljiva\\cf0\\par\r\n\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1"
      "\\pnindent0{\\pntxtb\\'B7}}\\fi-200\\li200 to\\'e8ka\\par\r\n}\r\n\0");
  EXPECT_EQ(text_of(document), "šljiva|•\ttočka");
  EXPECT_EQ(format_of(document, u"š").color, (Rgb{255, 0, 0}));
  EXPECT_EQ(paragraph_format_of(document, 1).left_indent, 200);
}

}  // namespace
}  // namespace tarnmill::rtf
