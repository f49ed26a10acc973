#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/text.h"

namespace tarnmill {
namespace {

struct Encoding {
  Text text;
  std::string bytes;
};

const std::vector<Encoding> encodings{
    {.text = u"", .bytes = ""},
    {.text = u"K^2", .bytes = "K^2"},
    {.text = u"\u00FC\u0416", .bytes = "\xC3\xBC\xD0\x96"},
    {.text = u"\u20AC\uFFFF", .bytes = "\xE2\x82\xAC\xEF\xBF\xBF"},
    {.text = u"\U0001F600", .bytes = "\xF0\x9F\x98\x80"},
    {.text = u"\U0010FFFF", .bytes = "\xF4\x8F\xBF\xBF"},
    {.text = Text{u'a', char16_t{0xD83D}}, .bytes = "a\xED\xA0\xBD"},
    {.text = Text{char16_t{0xDE00}, u'b'},
     .bytes = "\xED\xB8\x80"
              "b"},
    {.text = Text{u'a', u'\0', u'b'}, .bytes = std::string{'a', '\0', 'b'}},
};

TEST(Utf8, EveryTextIsWrittenAndReadBack) {
  for (const Encoding& row : encodings) {
    EXPECT_EQ(to_utf8(row.text), row.bytes);
    EXPECT_EQ(from_utf8(row.bytes), row.text) << row.bytes;
  }
}

TEST(Utf8, EachMalformedByteReadsAsTheReplacementCharacter) {
  EXPECT_EQ(from_utf8("a\x80z"), u"a\uFFFDz");
  EXPECT_EQ(from_utf8("\xFF"), u"\uFFFD");
  EXPECT_EQ(from_utf8("\xC3"), u"\uFFFD");
  EXPECT_EQ(from_utf8("\xC3("), u"\uFFFD(");
  EXPECT_EQ(from_utf8("\xE2\x82"), u"\uFFFD\uFFFD");
}

TEST(Utf8, OverlongFormsAndValuesBeyondUnicodeAreMalformed) {
  EXPECT_EQ(from_utf8("\xC0\xAF"), u"\uFFFD\uFFFD");
  EXPECT_EQ(from_utf8("\xE0\x80\xAF"), u"\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(from_utf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
}

}  // namespace
}  // namespace tarnmill
