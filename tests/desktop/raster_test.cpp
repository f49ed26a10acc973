#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

#include "desktop/line_walk.h"
#include "desktop/qt_raster.h"
#include "script/temporary_folder.h"

namespace tarnmill::desktop {
namespace {

constexpr Color paper = rgb(157, 188, 148);
constexpr Color blue = rgb(0, 0, 255);
using Pixels = std::set<std::pair<int, int>>;

/// The pixels of a raster that are not `paper`.
Pixels drawn_on(const Raster& raster) {
  Pixels pixels;
  for (int y = 0; y < raster.height(); ++y) {
    for (int x = 0; x < raster.width(); ++x) {
      if (raster.point(x, y) != paper) pixels.insert({x, y});
    }
  }
  return pixels;
}

struct Line {
  float x1, y1, x2, y2;
};

Pixels drawn(const Line& line, int size = 20) {
  QtRaster raster{size, size};
  raster.clear(paper);
  raster.line(line.x1, line.y1, line.x2, line.y2, blue);
  return drawn_on(raster);
}

Pixels row(int from, int to, int y) {
  Pixels pixels;
  for (int x = from; x <= to; ++x) pixels.insert({x, y});
  return pixels;
}

TEST(Raster, ALineHoldsBothOfItsEnds) {
  EXPECT_EQ(drawn({2, 5, 8, 5}), row(2, 8, 5));
  EXPECT_EQ(drawn({3, 1, 3, 3}), (Pixels{{3, 1}, {3, 2}, {3, 3}}));
  EXPECT_EQ(drawn({1, 1, 4, 4}), (Pixels{{1, 1}, {2, 2}, {3, 3}, {4, 4}}));
}

TEST(Raster, ALineFromAPointToItselfIsThatPixel) { EXPECT_EQ(drawn({7, 9, 7, 9}), (Pixels{{7, 9}})); }

TEST(Raster, ALineHasOnePixelForEachStepAlongItsLongerSide) {
  EXPECT_EQ(drawn({0, 0, 6, 2}), (Pixels{{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 1}, {5, 2}, {6, 2}}));
  EXPECT_EQ(drawn({0, 0, 2, 6}), (Pixels{{0, 0}, {0, 1}, {1, 2}, {1, 3}, {1, 4}, {2, 5}, {2, 6}}));
}

TEST(Raster, ALineCoversTheSamePixelsInBothDirections) {
  for (int x = 0; x < 20; x += 3) {
    for (int y = 0; y < 20; ++y) {
      const auto to_x = static_cast<float>(x);
      const auto to_y = static_cast<float>(y);
      EXPECT_EQ(drawn({9, 11, to_x, to_y}), drawn({to_x, to_y, 9, 11})) << x << ", " << y;
    }
  }
}

TEST(Raster, CoordinatesGoToTheNearestPixelHalvesUpwards) {
  EXPECT_EQ(drawn({1.4F, 2.5F, 1.4F, 2.5F}), (Pixels{{1, 3}}));
  EXPECT_EQ(drawn({-0.4F, 0, -0.4F, 0}), (Pixels{{0, 0}}));
  EXPECT_EQ(drawn({-0.6F, 0, -0.6F, 0}), Pixels{});
}

TEST(Raster, WhatLiesOutsideIsCutOff) {
  EXPECT_EQ(drawn({-50, 5, 8, 5}), row(0, 8, 5));
  EXPECT_EQ(drawn({15, 5, 400, 5}), row(15, 19, 5));
  EXPECT_EQ(drawn({-5, -1, 25, -1}), Pixels{});
  EXPECT_EQ(drawn({0, 20, 20, 20}), Pixels{});
  EXPECT_EQ(drawn({20, 0, 20, 20}), Pixels{});
}

TEST(Raster, ACutLineKeepsThePixelsThatItsEndsGiveIt) {
  const Line line{-13, -7, 33, 22};
  Pixels whole;
  walk_line({-13 + 40, -7 + 40, 33 + 40, 22 + 40}, 200, 200, [&whole](int x, int y) {
    if (x >= 40 && x < 60 && y >= 40 && y < 60) whole.insert({x - 40, y - 40});
  });
  EXPECT_FALSE(whole.empty());
  EXPECT_EQ(drawn(line), whole);
}

TEST(Raster, HugeCoordinatesAreCutBeforeTheyAreRounded) {
  const float huge = std::numeric_limits<float>::max();
  EXPECT_EQ(drawn({-huge, 5, huge, 5}), row(0, 19, 5));
  EXPECT_EQ(drawn({4, 3, 4, huge}).size(), 17U);
  EXPECT_EQ(drawn({0, huge, 10, huge}), Pixels{});
  EXPECT_EQ(drawn({huge, huge, huge, -huge}), Pixels{});
  // Steep and far: the part on the surface is a column.
  EXPECT_EQ(drawn({10, -1e30F, 10, 1e30F}).size(), 20U);
}

TEST(Raster, ASteepLineFromFarAwayArrivesWhereItEnds) {
  const Pixels pixels = drawn({0, -1e9F, 10, 10});
  EXPECT_TRUE(pixels.contains({10, 10}));
  EXPECT_EQ(pixels.size(), 11U);
}

TEST(Raster, ALineHasItsColourExactly) {
  QtRaster raster{10, 10};
  raster.clear(paper);
  raster.line(0, 0, 9, 6, rgb(241, 82, 35));
  for (const auto& [x, y] : drawn_on(raster)) EXPECT_EQ(raster.point(x, y), rgb(241, 82, 35));
}

TEST(Raster, APointOutsideIsNone) {
  const QtRaster raster{10, 8};
  EXPECT_EQ(raster.point(0, 0), 0);
  EXPECT_EQ(raster.point(-1, 0), -1);
  EXPECT_EQ(raster.point(10, 0), -1);
  EXPECT_EQ(raster.point(0, 8), -1);
}

TEST(Raster, ACopyKeepsItsPixelsAndGivesThemBack) {
  QtRaster raster{10, 10};
  raster.clear(paper);
  raster.line(0, 3, 9, 3, blue);
  const std::unique_ptr<Raster> kept = raster.copy();
  raster.clear(blue);
  EXPECT_EQ(drawn_on(*kept), row(0, 9, 3));
  raster.paste(*kept);
  EXPECT_EQ(drawn_on(raster), row(0, 9, 3));
  raster.line(0, 5, 9, 5, blue);
  EXPECT_EQ(drawn_on(*kept), row(0, 9, 3));
}

TEST(Raster, WhatHasChangedIsToldOnce) {
  QtRaster raster{50, 50};
  EXPECT_EQ(raster.take_changed(), QRect(0, 0, 50, 50));
  EXPECT_TRUE(raster.take_changed().isEmpty());
  raster.line(10, 20, 14, 20, blue);
  const QRect changed = raster.take_changed();
  EXPECT_TRUE(changed.contains(QRect(10, 20, 5, 1)));
  EXPECT_LT(changed.width(), 10);
  EXPECT_LT(changed.height(), 6);
}

class RasterFile : public ::testing::Test {
 protected:
  RasterFile() {
    raster.clear(paper);
    raster.line(0, 0, 29, 19, blue);
  }

  [[nodiscard]] std::filesystem::path path(const char* name) const { return folder.path() / name; }
  [[nodiscard]] static QImage read(const std::filesystem::path& file) {
    return QImage{QString::fromStdString(file.string())}.convertToFormat(QImage::Format_RGB32);
  }

  TemporaryFolder folder;
  QtRaster raster{30, 20};
};

TEST_F(RasterFile, TheEndingOfTheNameDecidesTheFormat) {
  ASSERT_TRUE(raster.save(path("a.bmp")));
  ASSERT_TRUE(raster.save(path("a.PNG")));
  ASSERT_TRUE(raster.save(path("plain")));
  EXPECT_EQ(QImage(QString::fromStdString(path("a.bmp").string()), "BMP").size(), QSize(30, 20));
  EXPECT_EQ(QImage(QString::fromStdString(path("a.PNG").string()), "PNG").size(), QSize(30, 20));
  EXPECT_EQ(QImage(QString::fromStdString(path("plain").string()), "BMP").size(), QSize(30, 20));
}

TEST_F(RasterFile, AFileHoldsTheSamePixels) {
  ASSERT_TRUE(raster.save(path("a.bmp")));
  ASSERT_TRUE(raster.save(path("a.png")));
  EXPECT_EQ(read(path("a.bmp")), raster.image());
  EXPECT_EQ(read(path("a.png")), raster.image());
}

TEST_F(RasterFile, AFileThatCannotBeWrittenLeavesNothing) {
  EXPECT_FALSE(raster.save(path("no such folder/a.bmp")));
  std::filesystem::create_directory(path("taken.bmp"));
  EXPECT_FALSE(raster.save(path("taken.bmp")));
  EXPECT_TRUE(std::filesystem::is_directory(path("taken.bmp")));
}

}  // namespace
}  // namespace tarnmill::desktop
