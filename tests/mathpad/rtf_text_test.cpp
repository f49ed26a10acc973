#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

struct Row {
  const char* name;
  std::string_view body;
  std::string_view text;
};

class RtfText : public testing::TestWithParam<Row> {};

TEST_P(RtfText, ReadsAs) { EXPECT_EQ(text_of(read_body(GetParam().body)), GetParam().text); }

constexpr auto name_of = [](const auto& row) { return row.param.name; };

INSTANTIATE_TEST_SUITE_P(
    Breaks, RtfText,
    testing::Values(Row{"paragraphs", "a\\par b\\par", "a|b"}, Row{"an_open_last_one", "a\\par b", "a|b"},
                    Row{"empty_paragraphs", "\\par\\par a\\par\\par", "||a|"},
                    Row{"a_backslash_before_a_line_break", "a\\\nb\\\r\nc", "a|b|c"},
                    Row{"line", "a\\line b\\softline c", "a/b/c"}, Row{"tab", "a\\tab b\tc", "a\tb\tc"},
                    Row{"page", "a\\page b\\par\\page c", "a|b|c"},
                    Row{"column_and_section", "a\\column b\\sect c", "a|b|c"},
                    Row{"line_breaks_of_the_file", "a\r\nb", "ab"},
                    Row{"table", "\\trowd\\intbl a\\cell b\\cell\\row c\\cell d\\cell\\row", "a\tb\t|c\td\t"},
                    Row{"nested_table", "a\\nestcell b\\nestcell{\\nonesttables\\par}c", "a\tb\t|c"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Characters, RtfText,
    testing::Values(Row{"signs", "\\{a\\}\\\\", "{a}\\"}, Row{"no_break_space", "a\\~b", "a\u00A0b"},
                    Row{"soft_hyphen", "a\\-b", "a\u00ADb"}, Row{"hard_hyphen", "a\\_b", "a\u2011b"},
                    Row{"bullet", "\\bullet", "•"}, Row{"dashes", "\\emdash\\endash", "—–"},
                    Row{"spaces", "\\emspace\\enspace\\qmspace", "\u2003\u2002\u2005"},
                    Row{"quotes", "\\lquote\\rquote\\ldblquote\\rdblquote", "‘’“”"},
                    Row{"direction_marks", "\\ltrmark\\rtlmark", "\u200E\u200F"},
                    Row{"widths_of_zero", "\\zwj\\zwnj\\zwbo\\zwnbo", "\u200D\u200C\u200B\u2060"},
                    Row{"hex", "\\'e4\\'80", "ä€"}, Row{"raw_bytes", "\xE4\x80", "ä€"},
                    Row{"a_line_break_in_hex_is_nothing", "a\\'0d\\'0ab", "ab"},
                    Row{"a_tab_in_hex", "a\\'09b", "a\tb"},
                    Row{"zero_bytes_are_nothing", std::string_view{"a\0b", 3}, "ab"}),
    name_of);

INSTANTIATE_TEST_SUITE_P(
    Unicode, RtfText,
    testing::Values(Row{"with_a_fallback", "\\u960?x", "πx"},
                    Row{"with_a_fallback_in_hex", "\\u960\\'70x", "πx"},
                    Row{"with_a_blank_first", "\\u960 ?x", "πx"}, Row{"negative", "\\u-3913?", "\uF0B7"},
                    Row{"a_pair", "\\u-10179?\\u-8704?", "😀"}, Row{"beyond_16_bits", "\\u128512?", "😀"},
                    Row{"beyond_all_characters", "\\u9999999?x", "\uFFFDx"},
                    Row{"no_fallback", "\\uc0\\u960x", "πx"}, Row{"two_fallbacks", "\\uc2\\u960ab x", "π x"},
                    Row{"fallbacks_of_mixed_kinds", "\\uc3\\u960 a\\'70\\emdash x", "πx"},
                    Row{"fallback_of_a_sign", "\\u160\\~x", "\u00A0x"},
                    Row{"fallback_over_a_line_break", "\\uc2\\u960 a\r\nbx", "πx"},
                    Row{"a_group_ends_the_fallback", "{\\uc3\\u960 a}bx", "πbx"},
                    Row{"an_opened_group_ends_the_fallback", "\\uc3\\u960 a{b}x", "πbx"},
                    Row{"a_missing_fallback_costs_no_character", "\\u960\\u961 ?x", "πρx"},
                    Row{"lengths_are_those_of_their_group",
                        "{\\uc2\\u960 ab{\\uc0\\u960}\\u960 ab}\\u960 abc", "ππππbc"},
                    Row{"a_negative_length_is_none", "\\uc-5\\u960x", "πx"},
                    Row{"binary_data_is_one_fallback", std::string_view{"\\u960\\bin3 }}}x"}, "πx"},
                    Row{"a_paragraph_separator_is_a_line_break", "a\\u8233?b", "a/b"},
                    Row{"what_is_no_character_is_replaced", "\\u-1?\\u-560?\\u-4?", "\uFFFD\uFFFD\uFFFD"}),
    name_of);

TEST(RtfText, UnicodeIsReadInUtf8PagesAcrossTokens) {
  EXPECT_EQ(text_of(read("{\\rtf1\\ansi\\ansicpg65001 \\'cf\\'80\xCF\r\n\x81}")), "πρ");
}

TEST(RtfText, TheFontsCharacterSetDecidesWhatBytesMean) {
  const Document document = read(
      "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset161 "
      "Arial;}{\\f2\\fcharset1 "
      "Arial;}{\\f3\\fcharset0\\cpg1251 Arial;}{\\f4\\fcharset2 Symbol;}{\\f5\\fcharset2 Wingdings;}}"
      "\\f0\\'e1\\f1\\'e1\\f2\\'e1\\f3\\'e1\\f4 a\\u-3999?\\f5\\'fc}");
  EXPECT_EQ(text_of(document), "áαáбαα\uF0FC");
  EXPECT_EQ(document.fonts, (std::vector<Text>{u"Arial", u"Symbol", u"Wingdings"}));
}

struct PageRow {
  std::string_view declaration;
  std::string_view text;
};

TEST(RtfText, TheDocumentNamesItsCodePage) {
  for (const auto& [declaration, text] :
       {PageRow{"\\ansi", "ä"}, PageRow{"\\mac", "‰"}, PageRow{"\\pc", "Σ"}, PageRow{"\\pca", "õ"},
        PageRow{"\\ansi\\ansicpg1251", "д"}, PageRow{"", "ä"}}) {
    EXPECT_EQ(text_of(read("{\\rtf1" + std::string{declaration} + " \\'e4}")), text) << declaration;
  }
}

TEST(RtfText, HiddenTextIsLeftOut) {
  EXPECT_EQ(text_of(read_body("a{\\v b\\u960?\\tab}c\\v d\\v0 e\\v\\plain f")), "acef");
}

TEST(RtfText, NothingBehindTheDocumentsGroupCounts) { EXPECT_EQ(text_of(read(file_of("a") + "b{c}")), "a"); }

TEST(RtfText, AnEmptyDocumentIsOneEmptyParagraph) {
  for (const std::string_view bytes : {"", "{\\rtf1}", "{\\rtf1", "{\\rtf1\\par}", "}"}) {
    EXPECT_EQ(read(bytes).paragraphs.size(), 1U) << bytes;
    EXPECT_TRUE(read(bytes).text.empty()) << bytes;
  }
}

TEST(RtfText, TellsWhetherTheLastParagraphWasEnded) {
  EXPECT_TRUE(read_body("a").open_end);
  EXPECT_TRUE(read_body("").open_end);
  EXPECT_TRUE(read_body("a\\par b").open_end);
  EXPECT_FALSE(read_body("a\\par").open_end);
}

TEST(RtfText, KnowsAnRtfFileByItsBeginning) {
  EXPECT_TRUE(is_rtf("{\\rtf1 x}"));
  EXPECT_TRUE(is_rtf("{\\rtf"));
  EXPECT_FALSE(is_rtf("{\\rt"));
  EXPECT_FALSE(is_rtf(" text"));
  EXPECT_FALSE(is_rtf(""));
}

}  // namespace
}  // namespace tarnmill::rtf
