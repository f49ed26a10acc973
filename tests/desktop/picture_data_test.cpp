#include "desktop/picture_data.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "desktop/metafile.h"

namespace tarnmill::desktop {
namespace {

QByteArray words(std::initializer_list<int> values) {
  QByteArray bytes;
  for (const int each : values) {
    bytes += static_cast<char>(each & 0xFF);
    bytes += static_cast<char>(each >> 8 & 0xFF);
  }
  return bytes;
}

/// Two inches by one, white, its left half filled with the red of a brush.
QByteArray plain_metafile() {
  const QByteArray records = words({5, 0, 0x020B, 0, 0}) +                  // window origin
                             words({5, 0, 0x020C, 100, 200}) +              // window extent
                             words({8, 0, 0x02FA, 5, 0, 0, 0, 0}) +         // a pen that draws nothing
                             words({4, 0, 0x012D, 0}) +                     // selected
                             words({7, 0, 0x02FC, 0, 0x00FF, 0x0000, 0}) +  // a brush of red
                             words({4, 0, 0x012D, 1}) +                     // selected
                             words({7, 0, 0x041B, 100, 100, 0, 0}) +        // a rectangle, from its right end
                             words({3, 0, 0x0000});
  const int size = 9 + static_cast<int>(records.size()) / 2;
  return words({1, 9, 0x0300, size, 0, 2, 8, 0, 0}) + records;
}

/// The same as files have it: 100 units to the inch in front.
QByteArray placeable_metafile() {
  const QByteArray header = words({0xCDD7, 0x9AC6, 0, 0, 0, 200, 100, 100, 0, 0});
  int sum = 0;
  for (qsizetype i = 0; i < header.size(); i += 2) {
    sum ^= static_cast<unsigned char>(header[i]) | static_cast<unsigned char>(header[i + 1]) << 8;
  }
  return header + words({sum}) + plain_metafile();
}

/// One pixel, green.
const QByteArray gif = QByteArray::fromHex(
    "47494638396101000100800000008000ffffff2c000000000100010000020244010"
    "03b");

class PictureFile : public ::testing::Test {
 protected:
  QImage load(const QByteArray& bytes, const char* name) {
    const QString path = folder.filePath(name);
    QFile file{path};
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return load_image(path.toStdString());
  }
  static QByteArray encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
  }
  static QImage sample() {
    QImage image{3, 2, QImage::Format_RGB32};
    image.fill(qRgb(10, 200, 30));
    return image;
  }

  QTemporaryDir folder;
};

TEST_F(PictureFile, ABitmapIsRead) {
  const QImage image = load(encoded(sample(), "BMP"), "a.bmp");
  ASSERT_EQ(image.size(), QSize(3, 2));
  EXPECT_EQ(image.pixel(2, 1), qRgb(10, 200, 30));
}

TEST_F(PictureFile, AJpegIsRead) {
  const QImage image = load(encoded(sample(), "JPG"), "a.jpg");
  ASSERT_EQ(image.size(), QSize(3, 2));
  EXPECT_NEAR(qGreen(image.pixel(1, 1)), 200, 4);
}

TEST_F(PictureFile, AGifIsRead) {
  const QImage image = load(gif, "a.gif");
  ASSERT_EQ(image.size(), QSize(1, 1));
  EXPECT_EQ(image.pixel(0, 0), qRgb(0, 128, 0));
}

TEST_F(PictureFile, AMetafileIsPlayedInItsOwnSize) {
  const QImage image = load(placeable_metafile(), "a.wmf");
  ASSERT_EQ(image.size(), QSize(192, 96));
  EXPECT_EQ(image.pixel(20, 50), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(170, 50), qRgb(255, 255, 255));
}

TEST_F(PictureFile, TheContentCountsNotTheName) {
  EXPECT_EQ(load(encoded(sample(), "BMP"), "a.wmf").size(), QSize(3, 2));
  EXPECT_EQ(load(placeable_metafile(), "a.bmp").size(), QSize(192, 96));
}

TEST_F(PictureFile, WhatIsNoPictureIsNone) {
  EXPECT_TRUE(load("no picture at all, but long enough for any header", "a.bmp").isNull());
  EXPECT_TRUE(load("", "b.bmp").isNull());
  EXPECT_TRUE(load_image("/nowhere/c.bmp").isNull());
}

TEST(Metafile, OfADocumentTakesTheSizeThatTheDocumentTells) {
  const rtf::Picture picture{.kind = rtf::PictureKind::wmf,
                             .bytes = plain_metafile().toStdString(),
                             .width = 100 * 15,
                             .height = 50 * 15};
  const QImage image = image_of(picture);
  ASSERT_EQ(image.size(), QSize(100, 50));
  EXPECT_EQ(image.pixel(10, 25), qRgb(255, 0, 0));
}

TEST(Metafile, ThatLiesAboutItsSizeIsCutDown) {
  QByteArray bytes = placeable_metafile();
  // One unit to the inch: 200 by 100 inches.
  bytes[14] = 1;
  bytes[15] = 0;
  EXPECT_LE(play_metafile(bytes).width(), 2000);
  EXPECT_LE(play_metafile(plain_metafile(), {1 << 20, 1 << 20}).width(), 2000);
}

TEST(Metafile, ThatIsCutShortOrDamagedIsPlayedOrLeft) {
  const QByteArray whole = placeable_metafile();
  for (qsizetype i = 0; i < whole.size(); ++i) EXPECT_LE(play_metafile(whole.left(i)).width(), 2000);
  std::mt19937 random{7};
  for (int round = 0; round < 300; ++round) {
    QByteArray damaged = whole;
    for (int i = 0; i < 3; ++i) damaged[static_cast<qsizetype>(random() % 80)] = static_cast<char>(random());
    EXPECT_LE(play_metafile(damaged).width(), 2000);
  }
}

}  // namespace
}  // namespace tarnmill::desktop
