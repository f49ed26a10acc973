#include <gtest/gtest.h>

#include "mathpad/rtf/encoding.h"

namespace tarnmill::rtf {
namespace {

Text decoded(std::string_view bytes, const Encoding& encoding) {
  Text text;
  decode(bytes, encoding, text);
  return text;
}

struct PageRow {
  std::int32_t page;
  std::string_view bytes;
  TextView text;
};

class RtfCodePage : public testing::TestWithParam<PageRow> {};

TEST_P(RtfCodePage, ReadsItsLetters) {
  EXPECT_EQ(decoded(GetParam().bytes, encoding_of_page(GetParam().page)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RtfCodePage,
    testing::Values(PageRow{437, "a\x84\xE3\xFB", u"aäπ√"}, PageRow{850, "\x84\x9D", u"äØ"},
                    PageRow{852, "\xE6\xE7", u"Šš"}, PageRow{858, "\xD5", u"€"},
                    PageRow{866, "\x80\xAF", u"Ап"}, PageRow{874, "\xA1", u"ก"},
                    PageRow{1250, "\x9A\xE6\xE8\x9E\xF0", u"šćčžđ"}, PageRow{1251, "\xCF\xF0", u"Пр"},
                    PageRow{1252, "\x80\x93\xE4\xFF", u"€“äÿ"}, PageRow{1253, "\xC4\xF9", u"Δω"},
                    PageRow{1254, "\xFD\xDE", u"ıŞ"}, PageRow{1255, "\xE0", u"א"},
                    PageRow{1256, "\xC7", u"ا"}, PageRow{1257, "\xE0", u"ą"}, PageRow{1258, "\xF0", u"đ"},
                    PageRow{10000, "\x8A\xB9", u"äπ"}, PageRow{65001, "\xCF\x80\xE2\x88\x9A", u"π√"},
                    PageRow{42, "a\xB7", u"\uF061\uF0B7"}, PageRow{12345, "\xE4", u"ä"}),
    [](const auto& row) { return "page_" + std::to_string(row.param.page); });

TEST(RtfEncoding, AnUndefinedByteOfWindowsIsAControlCode) {
  EXPECT_EQ(decoded("\x81", encoding_of_page(1252)), u"\u0081");
}

TEST(RtfEncoding, AByteWithoutACharacterIsReplaced) {
  EXPECT_EQ(decoded("\xFF", encoding_of_page(874)), u"\uFFFD");
}

TEST(RtfEncoding, WithoutTablesPagesOfTwoBytesGiveOneReplacementAPair) {
  for (const std::int32_t page : {932, 936, 949, 950, 1361}) {
    EXPECT_EQ(decoded("a\x83\x41z\x83", encoding_of_page(page)), u"a\uFFFDz\uFFFD") << page;
  }
}

struct CharsetRow {
  std::int32_t charset;
  std::string_view byte;
  TextView character;
};

class RtfCharset : public testing::TestWithParam<CharsetRow> {};

TEST_P(RtfCharset, MeansACodePage) {
  const auto encoding = encoding_of_charset(GetParam().charset, u"Arial");
  ASSERT_TRUE(encoding);
  EXPECT_EQ(decoded(GetParam().byte, *encoding), GetParam().character);
}

INSTANTIATE_TEST_SUITE_P(Rows, RtfCharset,
                         testing::Values(CharsetRow{0, "\xE6", u"æ"}, CharsetRow{77, "\x8A", u"ä"},
                                         CharsetRow{128, "\x83\x41", u"\uFFFD"},
                                         CharsetRow{161, "\xE1", u"α"}, CharsetRow{162, "\xFD", u"ı"},
                                         CharsetRow{163, "\xF0", u"đ"}, CharsetRow{177, "\xE0", u"א"},
                                         CharsetRow{178, "\xC7", u"ا"}, CharsetRow{186, "\xE0", u"ą"},
                                         CharsetRow{204, "\xE6", u"ж"}, CharsetRow{222, "\xA1", u"ก"},
                                         CharsetRow{238, "\xE6", u"ć"}, CharsetRow{254, "\xE3", u"π"},
                                         CharsetRow{255, "\x84", u"ä"}),
                         [](const auto& row) { return "charset_" + std::to_string(row.param.charset); });

TEST(RtfCharset, TheDefaultOneAndUnknownOnesLeaveItToTheDocument) {
  EXPECT_FALSE(encoding_of_charset(1, u"Arial"));
  EXPECT_FALSE(encoding_of_charset(999, u"Arial"));
}

TEST(RtfSymbolFont, ItsGlyphsAreKnownCharacters) {
  const auto encoding = encoding_of_charset(2, u"Symbol");
  ASSERT_TRUE(encoding);
  EXPECT_EQ(decoded("abGSW", *encoding), u"αβΓΣΩ");
  EXPECT_EQ(decoded("\xA3\xA5\xB1\xB7\xB9\xC5\xCE\xD6\xE5\xF2", *encoding), u"≤∞±•≠⊕∈√∑∫");
  EXPECT_EQ(decoded("\x90\xF0", *encoding), u"\uFFFD\uFFFD");
}

TEST(RtfSymbolFont, OtherGlyphFontsKeepTheirGlyphsAsPrivateCharacters) {
  const auto encoding = encoding_of_charset(2, u"Wingdings");
  ASSERT_TRUE(encoding);
  EXPECT_EQ(decoded("\xFC", *encoding), u"\uF0FC");
}

TEST(RtfSymbolFont, PrivateCharactersOfItAreKnownCharacters) {
  const auto symbol = encoding_of_charset(2, u"Symbol");
  const auto wingdings = encoding_of_charset(2, u"Wingdings");
  ASSERT_TRUE(symbol && wingdings);
  EXPECT_EQ(public_character(u'\uF061', *symbol), u'α');
  EXPECT_EQ(public_character(u'\uF100', *symbol), u'\uF100');
  EXPECT_EQ(public_character(u'x', *symbol), u'x');
  EXPECT_EQ(public_character(u'\uF061', *wingdings), u'\uF061');
}

TEST(RtfEncoding, TheBytesOfPage1252AreFoundBack) {
  EXPECT_EQ(byte_of_page_1252(u'ä'), 0xE4);
  EXPECT_EQ(byte_of_page_1252(u'€'), 0x80);
  EXPECT_FALSE(byte_of_page_1252(u'π'));
  EXPECT_FALSE(byte_of_page_1252(u'a'));
  EXPECT_FALSE(byte_of_page_1252(u'\u0081'));
}

}  // namespace
}  // namespace tarnmill::rtf
