#include "desktop/picture_sheet.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "script/temporary_folder.h"

namespace tarnmill::desktop {
namespace {

constexpr int gap = 16;
constexpr int caption_height = 24;

class PictureSheet : public ::testing::Test {
 protected:
  SheetPicture picture(const char* name, Qt::GlobalColor color, const Text& caption, QSize size = {40, 40}) {
    const std::filesystem::path file = folder.path() / name;
    QImage image{size, QImage::Format_RGB32};
    image.fill(color);
    EXPECT_TRUE(image.save(QFile::decodeName(file.c_str())));
    return {file, caption};
  }
  QImage sheet(const std::vector<SheetPicture>& pictures, const SheetLayout& layout) {
    EXPECT_TRUE(save_picture_sheet(path, pictures, layout));
    return QImage{QFile::decodeName(path.c_str()), "PNG"};
  }
  /// The middle of the square in this column and row.
  static QPoint middle(int column, int row, int side) {
    return {gap + column * (side + gap) + side / 2, gap + row * (side + caption_height + gap) + side / 2};
  }
  /// Whether anything is written under a square.
  static bool has_caption(const QImage& image, int column, int row, int side) {
    const QPoint below = middle(column, row, side) + QPoint{-side / 2, side / 2 + 2};
    const QImage strip = image.copy({below, QSize{side, caption_height - 4}});
    for (int y = 0; y < strip.height(); ++y) {
      for (int x = 0; x < strip.width(); ++x) {
        if (strip.pixel(x, y) != image.pixel(2, 2)) return true;
      }
    }
    return false;
  }

  TemporaryFolder folder;
  std::filesystem::path path = folder.path() / "sheet.png";
};

TEST_F(PictureSheet, StandsInRowsWithACaptionEach) {
  const QImage image = sheet({picture("a.png", Qt::red, u"one"), picture("b.bmp", Qt::green, u"two"),
                              picture("c.png", Qt::blue, u"")},
                             {2, 40});
  EXPECT_EQ(image.size(), QSize(gap + 2 * (40 + gap), gap + 2 * (40 + caption_height + gap)));
  EXPECT_EQ(image.pixelColor(middle(0, 0, 40)), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(middle(1, 0, 40)), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(middle(0, 1, 40)), QColor(Qt::blue));
  EXPECT_EQ(image.pixel(middle(1, 1, 40)), image.pixel(2, 2));
  EXPECT_TRUE(has_caption(image, 0, 0, 40));
  EXPECT_TRUE(has_caption(image, 1, 0, 40));
  EXPECT_FALSE(has_caption(image, 0, 1, 40));
}

TEST_F(PictureSheet, FitsEachPictureIntoItsSquare) {
  const QImage image = sheet({picture("wide.png", Qt::red, u"", {200, 100})}, {1, 50});
  EXPECT_EQ(image.pixelColor(gap + 2, gap + 2), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(gap + 47, gap + 22), QColor(Qt::red));
  EXPECT_EQ(image.pixel(gap + 25, gap + 40), image.pixel(2, 2)) << "half as high as wide";
}

TEST_F(PictureSheet, LeavesTheSquareOfAMissingPictureEmpty) {
  const QImage image = sheet({{folder.path() / "none.png", u"gone"}}, {1, 50});
  EXPECT_EQ(image.pixel(middle(0, 0, 50)), image.pixel(2, 2));
  EXPECT_TRUE(has_caption(image, 0, 0, 50));
}

TEST_F(PictureSheet, CutsALongCaptionToItsSquare) {
  const QImage image =
      sheet({picture("a.png", Qt::red, Text(200, u'w')), picture("b.png", Qt::red, u"")}, {2, 60});
  EXPECT_TRUE(has_caption(image, 0, 0, 60));
  EXPECT_FALSE(has_caption(image, 1, 0, 60));
}

TEST_F(PictureSheet, OfNothingIsABareGround) { EXPECT_EQ(sheet({}, {3, 40}).height(), gap); }

TEST_F(PictureSheet, SaysWhenItCantBeWritten) {
  EXPECT_FALSE(save_picture_sheet(folder.path() / "no folder" / "sheet.png", {}, {1, 40}));
}

}  // namespace
}  // namespace tarnmill::desktop
