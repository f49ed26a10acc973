#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

using namespace std::string_literals;

Picture picture_of(std::string_view group) {
  const Document document = read_body("a{" + std::string{group} + "}b");
  EXPECT_EQ(text_of(document), "a\uFFFCb") << group;
  if (document.pictures.size() != 1) {
    ADD_FAILURE() << group << " gives " << document.pictures.size() << " pictures";
    return {};
  }
  return document.pictures.front();
}

struct Row {
  std::string_view group;
  Picture picture;
};

TEST(RtfPicture, IsReadWithItsKindAndSizes) {
  const std::vector<Row> rows{
      {R"(\pict\pngblip\picwgoal300\pichgoal150 0aFf)", {PictureKind::png, "\x0A\xFF"s, 300, 150}},
      {"\\pict\\jpegblip 00", {PictureKind::jpeg, "\0"s}},
      {R"(\pict\dibitmap0\picw10\pich20 28)", {PictureKind::dib, "("s, 150, 300}},
      {R"(\pict\wmetafile8\picw2540\pich1270 01)", {PictureKind::wmf, "\x01"s, 1440, 720}},
      {"\\pict\\emfblip 01", {PictureKind::emf, "\x01"s}},
      {R"(\pict\picscalex50\picscaley200\pngblip 01)", {PictureKind::png, "\x01"s, 0, 0, 50, 200}},
      {"\\pict\\pngblip 0\r\n1 0 2", {PictureKind::png, "\x01\x02"s}},
      {R"(\pict\pngblip 0{\*\picprop x}1)", {PictureKind::png, "\x01"s}},
      {"\\pict\\pngblip 01 2", {PictureKind::png, "\x01"s}},
      {R"(\pict\pngblip\bin4 }{\x)", {PictureKind::png, "}{\\x"s}},
      {R"(\pict\pngblip 01\bin1 })", {PictureKind::png, "\x01}"s}},
      {R"(\*\shppict{\pict\pngblip 01})", {PictureKind::png, "\x01"s}},
      {R"(\object{\*\objdata 00}{\result{\pict\wmetafile8 01}})", {PictureKind::wmf, "\x01"s}},
      {R"(\shp{\*\shpinst{\sp{\sn pib}{\sv{\pict\pngblip 01}}}}{\shprslt{\pict\wmetafile8 02}})",
       {PictureKind::png, "\x01"s}},
  };
  for (const auto& [group, picture] : rows) EXPECT_EQ(picture_of(group), picture) << group;
}

TEST(RtfPicture, ThatLiesAboutItsSizeIsCut) {
  const std::vector<Row> rows{
      {R"(\pict\pngblip\picwgoal2147483647\pichgoal-5 01)", {PictureKind::png, "\x01"s, longest_length, 0}},
      {R"(\pict\pngblip\picw2147483647\pich-2147483647 01)", {PictureKind::png, "\x01"s, longest_length, 0}},
      {R"(\pict\wmetafile8\picw2147483647 01)", {PictureKind::wmf, "\x01"s, longest_length, 0}},
      {R"(\pict\pngblip\picscalex0\picscaley-9 01)", {PictureKind::png, "\x01"s, 0, 0, 100, 100}},
      {R"(\pict\pngblip\picscalex2147483647 01)", {PictureKind::png, "\x01"s, 0, 0, 10000, 100}},
  };
  for (const auto& [group, picture] : rows) EXPECT_EQ(picture_of(group), picture) << group;
}

TEST(RtfPicture, IsShownScaledAndCut) {
  EXPECT_EQ(scaled(120, 1200), 1440);
  EXPECT_EQ(scaled(1000, 50), 500);
  EXPECT_EQ(scaled(longest_length, 10000), longest_length);
  EXPECT_EQ(scaled(0, 100), 0);
}

TEST(RtfPicture, OfAnUnknownKindOrWithoutBytesIsNone) {
  for (const std::string_view group : {"\\pict 0102", "\\pict\\macpict 0102", "\\pict\\wbitmap0 0102",
                                       "\\pict\\pngblip", "\\pict\\pngblip xyz"}) {
    EXPECT_EQ(text_of(read_body("a{" + std::string{group} + "}b")), "ab") << group;
  }
}

TEST(RtfPicture, HasTheFormatOfTheTextAroundIt) {
  const Document document = read_body(R"(\b a{\i\pict\pngblip 01}b)");
  EXPECT_EQ(document.runs, (std::vector<TextRun>{{.length = 1}, {.length = 1, .picture = 0}, {.length = 1}}));
}

TEST(RtfPicture, TheCharacterOfPicturesInTextIsReplaced) {
  EXPECT_EQ(text_of(read_body("\\u-4?")), "\uFFFD");
}

TEST(RtfPicture, BytesThatAreCutOffAreKept) {
  const Document document = read(R"({\rtf1 a{\pict\pngblip 0102)");
  EXPECT_EQ(text_of(document), "a\uFFFC");
  EXPECT_EQ(document.pictures.front().bytes, "\x01\x02");
}

TEST(RtfPicture, MoreBinaryBytesThanThereAreEndTheFile) {
  const Document document = read(R"({\rtf1 a{\pict\pngblip\bin2147483647 xyz}}b)");
  EXPECT_EQ(text_of(document), "a\uFFFC");
  EXPECT_EQ(document.pictures.front().bytes, "xyz}}b");
}

TEST(RtfBinary, IsPassedOverOutsideOfPictures) {
  EXPECT_EQ(text_of(read_body("a\\bin3 }}}b\\bin0 c\\bin-7 d")), "abcd");
}

}  // namespace
}  // namespace tarnmill::rtf
