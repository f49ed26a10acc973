#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

struct Row {
  std::string_view words;
  CharacterFormat format;
};

constexpr Rgb red{255, 0, 0};
constexpr Rgb blue{0, 0, 255};

CharacterFormat tahoma(CharacterFormat format) {
  format.font = 0;
  return format;
}

TEST(RtfCharacterFormat, IsSetByItsWords) {
  for (const auto& [words, format] : {
           Row{"", {}},
           Row{"\\b", {.bold = true}},
           Row{"\\b1", {.bold = true}},
           Row{"\\b\\b0", {}},
           Row{"\\i", {.italic = true}},
           Row{"\\i\\i0", {}},
           Row{"\\strike", {.strike = true}},
           Row{"\\striked1", {.strike = true}},
           Row{"\\strike\\striked0", {}},
           Row{"\\ul", {.underline = true}},
           Row{"\\ul\\ulnone", {}},
           Row{"\\ul\\ul0", {}},
           Row{"\\fs20", {.half_points = 20}},
           Row{"\\fs0", {}},
           Row{"\\fs-20", {}},
           Row{"\\fs", {.half_points = 24}},
           Row{"\\fs99999", {.half_points = 3276}},
           Row{"\\up7", {.rise = 7}},
           Row{"\\up", {.rise = 6}},
           Row{"\\dn5", {.rise = -5}},
           Row{"\\dn", {.rise = -6}},
           Row{"\\up7\\up0", {}},
           Row{"\\up7\\dn0", {}},
           Row{"\\up2147483647", {.rise = 3276}},
           Row{"\\dn-2147483647", {.rise = 3276}},
           Row{"\\cf1", {.color = red}},
           Row{"\\cf2", {.color = blue}},
           Row{"\\cf1\\cf0", {}},
           Row{"\\cf3", {}},
           Row{"\\cf-1", {}},
           Row{R"(\cf1\b\i\ul\strike\fs40\up4\plain)", {}},
       }) {
    const Document document = read_body(std::string{words} + " x");
    EXPECT_EQ(format_of(document, u"x"), tahoma(format)) << words;
  }
}

TEST(RtfCharacterFormat, EveryKindOfUnderliningUnderlines) {
  for (const std::string_view word :
       {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulhwave", "ulldash", "ulth", "ulthd",
        "ulthdash", "ulthdashd", "ulthdashdd", "ulthldash", "ululdbwave", "ulw", "ulwave"}) {
    const Document document = read_body(joined({"\\", word, " x\\", word, "0 y"}));
    EXPECT_TRUE(format_of(document, u"x").underline) << word;
    EXPECT_FALSE(format_of(document, u"y").underline) << word;
  }
}

TEST(RtfCharacterFormat, RaisedAndLoweredTextHasTheEditorsProportions) {
  const Document document = read_body(R"(\fs24 a{\super b}{\sub c}{\super\nosupersub d}{\super\fs40 e})");
  EXPECT_EQ(format_of(document, u"b"), tahoma({.half_points = 17, .rise = 7}));
  EXPECT_EQ(format_of(document, u"c"), tahoma({.half_points = 17, .rise = -5}));
  EXPECT_EQ(format_of(document, u"d"), tahoma({.half_points = 24}));
  EXPECT_EQ(format_of(document, u"e"), tahoma({.half_points = 28, .rise = 11}));
}

TEST(RtfCharacterFormat, AnOffsetThatIsToldWinsOverThatOfRaisedText) {
  EXPECT_EQ(format_of(read_body("\\super\\up3 x"), u"x"), tahoma({.half_points = 17, .rise = 3}));
}

TEST(RtfCharacterFormat, EndsWithItsGroup) {
  const Document document = read_body("{\\b a{\\i b}c}d");
  EXPECT_EQ(format_of(document, u"b"), tahoma({.bold = true, .italic = true}));
  EXPECT_EQ(format_of(document, u"c"), tahoma({.bold = true}));
  EXPECT_EQ(format_of(document, u"d"), tahoma({}));
}

TEST(RtfCharacterFormat, EqualNeighboursAreOneRun) {
  const Document document = read_body(R"(a{b}\b\b0 c\par d)");
  EXPECT_EQ(document.runs, (std::vector<TextRun>{{.length = 3}, {.length = 1}}));
  EXPECT_EQ(document.formats.size(), 1U);
}

TEST(RtfFonts, AreFoundByTheirNumber) {
  const Document document = read_body(R"(a\f1 b\f7 c\plain d)");
  EXPECT_EQ(font_of(document, u"a"), "Tahoma");
  EXPECT_EQ(font_of(document, u"b"), "Courier");
  EXPECT_EQ(font_of(document, u"c"), "none");
  EXPECT_EQ(font_of(document, u"d"), "Tahoma");
}

struct FontRow {
  std::string_view table;
  std::string_view font;
};

TEST(RtfFonts, AreDeclaredInManyWays) {
  for (const auto& [table, font] : {
           FontRow{R"({\fonttbl{\f3\fswiss Arial Narrow;}})", "Arial Narrow"},
           FontRow{R"({\fonttbl\f1\fnil Times;\f3\fnil Arial;})", "Arial"},
           FontRow{R"({\fonttbl{\f3\fswiss{\*\panose 020b0604}Arial{\*\falt Helvetica};}})", "Arial"},
           FontRow{R"({\fonttbl{\f3{\*\fname Arial;}Arial CE;}})", "Arial CE"},
           FontRow{"{\\fonttbl{\\f3 Arial}}", "Arial"},
           FontRow{"{\\fonttbl{\\f3  Arial ;}}", "Arial"},
           FontRow{R"({\fonttbl{\f3\fcharset204 \'c0\'f0;}})", "Ар"},
           FontRow{R"({\fonttbl{\f3 \u960?\u961?;}})", "πρ"},
           FontRow{R"({\fonttbl{\f3 Times;}{\f3 Arial;}})", "Arial"},
           FontRow{R"({\fonttbl{\f3 Times;}}{\fonttbl{\f3 Arial;}})", "Arial"},
           FontRow{"{\\fonttbl{\\f3 ;}}", "none"},
           FontRow{"{\\fonttbl}", "none"},
           FontRow{"", "none"},
       }) {
    const Document document = read("{\\rtf1\\deff3" + std::string{table} + "x\\plain y}");
    EXPECT_EQ(font_of(document, u"x"), font) << table;
    EXPECT_EQ(text_of(document), "xy") << table;
  }
}

TEST(RtfColors, AreCutToTheirRange) {
  const Document document = read(R"({\rtf1{\colortbl\red300\green-5\blue7;\red1;}\cf0 a\cf1 b})");
  EXPECT_EQ(format_of(document, u"a").color, (Rgb{255, 0, 7}));
  EXPECT_EQ(format_of(document, u"b").color, (Rgb{1, 0, 0}));
}

TEST(RtfFonts, TheNameOfAFontOfGlyphsIsText) {
  const Document document = read(R"({\rtf1{\fonttbl{\f3\fcharset2 Caf\'e9;}}\f3 x})");
  EXPECT_EQ(document.fonts, std::vector<Text>{u"Café"});
  EXPECT_EQ(text_of(document), "\uF078");
}

struct ParagraphRow {
  std::string_view words;
  ParagraphFormat format;
};

TEST(RtfParagraphFormat, IsSetByItsWords) {
  for (const auto& [words, format] : {
           ParagraphRow{"", {}},
           ParagraphRow{"\\qr", {.alignment = Alignment::right}},
           ParagraphRow{"\\qc", {.alignment = Alignment::center}},
           ParagraphRow{"\\qj", {.alignment = Alignment::justified}},
           ParagraphRow{"\\qc\\ql", {}},
           ParagraphRow{R"(\li720\ri360\fi-360)",
                        {.left_indent = 720, .right_indent = 360, .first_indent = -360}},
           ParagraphRow{"\\li99999", {.left_indent = longest_length}},
           ParagraphRow{"\\tx1440\\tx720", {.tabs = {{720}, {1440}}}},
           ParagraphRow{R"(\tqr\tx1\tqc\tx2\tqdec\tx3\tx4)",
                        {.tabs = {{1, TabKind::right}, {2, TabKind::center}, {3, TabKind::decimal}, {4}}}},
           ParagraphRow{R"(\tx720\tqr\tx720)", {.tabs = {{720, TabKind::right}}}},
           ParagraphRow{"\\tx0\\tx-5", {}},
           ParagraphRow{R"(\qc\li720\tx1440\tqr\pard)", {}},
       }) {
    const Document document = read_body(std::string{words} + " x\\par");
    EXPECT_EQ(paragraph_format_of(document, 0), format) << words;
  }
}

TEST(RtfParagraphFormat, IsThatOfTheParagraphsEnd) {
  const Document document = read_body(R"(\qr a\qc\par b\par{\pard\qr c\par}d)");
  EXPECT_EQ(paragraph_format_of(document, 0).alignment, Alignment::center);
  EXPECT_EQ(paragraph_format_of(document, 1).alignment, Alignment::center);
  EXPECT_EQ(paragraph_format_of(document, 2).alignment, Alignment::right);
  EXPECT_EQ(paragraph_format_of(document, 3).alignment, Alignment::center);
}

TEST(RtfParagraphFormat, AnEmptyParagraphKeepsTheSizeOfItsEnd) {
  const Document document = read_body(R"(\fs20 a\par\fs60\par)");
  EXPECT_EQ(document.formats.at(document.paragraphs.at(0).end_format).half_points, 20);
  EXPECT_EQ(document.formats.at(document.paragraphs.at(1).end_format).half_points, 60);
}

TEST(RtfParagraphFormat, HoldsNoMoreTabsThanEditorsDo) {
  std::string words;
  for (int i = 1; i <= 100; ++i) words += "\\tx" + std::to_string(i);
  EXPECT_EQ(paragraph_format_of(read_body(words + " x"), 0).tabs.size(), 32U);
}

TEST(RtfDocument, TellsItsDefaultTab) {
  EXPECT_EQ(read_body("x").default_tab, 720);
  EXPECT_EQ(read_body("\\deftab709 x").default_tab, 709);
  EXPECT_EQ(read_body("\\deftab0 x").default_tab, 720);
  EXPECT_EQ(read_body("\\deftab9999999 x").default_tab, longest_length);
}

}  // namespace
}  // namespace tarnmill::rtf
