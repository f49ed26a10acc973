#include "desktop/pair_decoder.h"

#include <gtest/gtest.h>

namespace tarnmill::desktop {
namespace {

struct PairRow {
  std::int32_t page;
  std::string_view bytes;
  TextView text;
};

class PairDecoder : public testing::TestWithParam<PairRow> {};

TEST_P(PairDecoder, ReadsItsCodePage) {
  EXPECT_EQ(decode_pairs(GetParam().page, GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, PairDecoder,
                         testing::Values(PairRow{932, "a\x82\xA0\x8A\xBF\xB1", u"aあ漢ｱ"},
                                         PairRow{936, "x\xBA\xBA\xD7\xD6", u"x汉字"},
                                         PairRow{949, "\xC7\xD1\xB1\xDB 1", u"한글 1"},
                                         PairRow{950, "\xBA\x7E\xA6\x72", u"漢字"},
                                         PairRow{1361, "a\xD0\x65", u"a\uFFFD"}),
                         [](const auto& row) { return "page_" + std::to_string(row.param.page); });

TEST(PairDecoderOfDamagedText, ReplacesWhatNoCharacterHas) {
  for (const std::int32_t page : {932, 936, 949, 950}) {
    EXPECT_EQ(decode_pairs(page, "a\x95"), u"a\uFFFD") << page;
  }
  EXPECT_EQ(decode_pairs(932, ""), u"");
}

}  // namespace
}  // namespace tarnmill::desktop
