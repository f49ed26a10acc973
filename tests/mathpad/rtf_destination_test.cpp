#include "mathpad/rtf/field_symbol.h"
#include "mathpad/rtf/writer.h"
#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

TEST(RtfDestinations, GroupsThatAreNoTextArePassedOver) {
  for (const std::string word : {"annotation", "atnauthor",
                                 "atnid",      "colorschememapping",
                                 "filetbl",    "footer",
                                 "footerf",    "footerl",
                                 "footerr",    "footnote",
                                 "ftncn",      "ftnsep",
                                 "ftnsepc",    "generator",
                                 "header",     "headerf",
                                 "headerl",    "headerr",
                                 "info",       "listtable",
                                 "objclass",   "listoverridetable",
                                 "objdata",    "objname",
                                 "pntxta",     "pntxtb",
                                 "private",    "revtbl",
                                 "rxe",        "shprslt",
                                 "stylesheet", "tc",
                                 "template",   "themedata",
                                 "txe",        "xe",
                                 "nonshppict"}) {
    const Document document =
        read_body("a{\\" + word + R"( no{\b no\par\u960?\'e4}\bin2 }}{\pict\pngblip 00}}b)");
    EXPECT_EQ(text_of(document), "ab") << word;
    EXPECT_TRUE(document.pictures.empty()) << word;
  }
}

struct Row {
  const char* name;
  std::string_view body;
  std::string_view text;
};

class RtfDestination : public testing::TestWithParam<Row> {};

TEST_P(RtfDestination, ReadsAs) { EXPECT_EQ(text_of(read_body(GetParam().body)), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Rows, RtfDestination,
    testing::Values(
        Row{"an_ignorable_group_that_is_not_known", "a{\\*\\unheard of{\\b x}}b", "ab"},
        Row{"an_ignorable_group_of_a_word_that_is_no_group", "a{\\*\\b x}b", "ab"},
        Row{"an_ignorable_group_that_is_known", "a{\\*\\generator x}b", "ab"},
        Row{"an_unknown_word", "a\\unheard17 b", "ab"}, Row{"an_unknown_sign", "a\\:\\|b", "ab"},
        Row{"an_unknown_word_in_its_group", "a{\\unheard b}c", "abc"}, Row{"a_star_alone", "a\\*{b}c", "abc"},
        Row{"a_field", "a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt b}}c", "abc"},
        Row{"a_field_of_plain_words", "a{\\field{\\fldinst PAGE}{\\fldrslt {\\b 7}}}c", "a7c"},
        Row{"a_field_without_a_result", "a{\\field{\\*\\fldinst PAGE}}c", "ac"},
        Row{"a_field_in_a_fields_instruction",
            "a{\\field{\\*\\fldinst IF {\\field{\\*\\fldinst PAGE}{\\fldrslt 9}}}{\\fldrslt b}}c", "abc"},
        Row{"a_field_in_a_fields_result",
            "a{\\field{\\*\\fldinst X}{\\fldrslt b{\\field{\\*\\fldinst Y}{\\fldrslt c}}d}}e", "abcde"},
        Row{"an_object", "a{\\object\\objemb\\objw10{\\*\\objclass X}{\\*\\objdata 00ff}{\\result b}}c",
            "abc"},
        Row{"an_objects_data_without_a_star", "a{\\object{\\objdata 00ff}{\\result b}}c", "abc"},
        Row{"a_number_of_a_list", "{\\listtext\\pard\\plain\\f1 1.\\tab}one\\par", "1.\tone"},
        Row{"a_bullet_of_a_list", "{\\pntext\\f1\\'95\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'95}}one\\par",
            "•\tone"},
        Row{"a_text_frame",
            "a{\\shp{\\*\\shpinst\\shpleft1{\\sp{\\sn x}{\\sv y}}{\\shptxt b}}{\\shprslt no}}c", "abc"},
        Row{"a_bookmark", "a{\\*\\bkmkstart m}b{\\*\\bkmkend m}c", "abc"},
        Row{"a_color_table_in_the_text", "a{\\colortbl;\\red1;}b", "ab"}),
    [](const auto& row) { return row.param.name; });

TEST(RtfListText, KeepsItsOwnFormat) {
  const Document document = read_body(R"(\b{\listtext\plain\fs40 1.\tab}one\par)");
  EXPECT_EQ(format_of(document, u"1").half_points, 40);
  EXPECT_FALSE(format_of(document, u"1").bold);
  EXPECT_TRUE(format_of(document, u"one").bold);
}

TEST(RtfSymbolField, WithAnEmptyResultIsItsSymbol) {
  const Document document =
      read_body(R"(a{\field{\*\fldinst SYMBOL 97 \\f "Symbol" \\s 12}{\fldrslt\f1\fs40}}b)");
  EXPECT_EQ(text_of(document), "aαb");
  EXPECT_EQ(font_of(document, u"α"), "Symbol");
  EXPECT_EQ(format_of(document, u"α").half_points, 40);
  EXPECT_EQ(format_of(document, u"b").half_points, 24);
}

TEST(RtfSymbolField, WithAResultIsItsResult) {
  EXPECT_EQ(text_of(read_body("{\\field{\\*\\fldinst SYMBOL 97 \\\\f \"Symbol\"}{\\fldrslt x}}")), "x");
}

TEST(RtfSymbolField, IsOneOfItsOwnInstructionOnly) {
  EXPECT_EQ(text_of(read_body("{\\field{\\*\\fldinst SYMBOL 97}{\\fldrslt x}}{\\field{\\fldrslt}}")), "x");
}

struct FieldRow {
  TextView instruction;
  int glyph;
  TextView font;
};

TEST(RtfSymbolField, ReadsItsInstruction) {
  for (const auto& [instruction, glyph, font] : {
           FieldRow{u"SYMBOL 97 \\f \"Symbol\" \\s 12", 97, u"Symbol"},
           FieldRow{u"  symbol  0xB7  \\* MERGEFORMAT \\f \"MS Gothic\"", 0xB7, u"MS Gothic"},
           FieldRow{u"SYMBOL 61623 \\f Wingdings", 0xB7, u"Wingdings"},
           FieldRow{u"SYMBOL 97", 97, u""},
           FieldRow{u"SYMBOL 97 \\f \"Symbol", 97, u"Symbol"},
       }) {
    const auto symbol = parse_field_symbol(instruction);
    ASSERT_TRUE(symbol) << to_utf8(instruction);
    EXPECT_EQ(symbol->glyph, glyph) << to_utf8(instruction);
    EXPECT_EQ(symbol->font, font) << to_utf8(instruction);
  }
}

TEST(RtfSymbolField, WithoutANameForItsFontTakesTheOneAroundIt) {
  for (const std::string_view font : {";", "\"  \"", "\\'03"}) {
    const Document document =
        read_body(R"(\f1{\field{\*\fldinst SYMBOL 97 \\f )" + std::string{font} + "}{\\fldrslt}}");
    EXPECT_EQ(font_of(document, u"\uF061"), "Courier") << font;
    EXPECT_EQ(read(write(document)), document) << font;
  }
}

TEST(RtfSymbolField, IsNoOtherField) {
  for (const TextView instruction : {u"", u"PAGE", u"SYMBOL", u"SYMBOL x", u"SYMBOL 300", u"SYMBOL 97x",
                                     u"SYMBOL -1", u"SYMBOLS 97", u"SYMBOL 99999999999999999999"}) {
    EXPECT_FALSE(parse_field_symbol(instruction)) << to_utf8(instruction);
  }
}

}  // namespace
}  // namespace tarnmill::rtf
