#include "desktop/raster_text.h"

#include <gtest/gtest.h>

#include <QRect>

#include "desktop/qt_raster.h"

namespace tarnmill::desktop {
namespace {

constexpr Color paper = rgb(255, 255, 255);
constexpr Color ink = rgb(0, 0, 0);
const Font arial{u"Arial", 12};

/// The bounds of all that isn't of the colour `ground`.
QRect inked(const Raster& raster, Color ground = paper) {
  QRect bounds;
  for (int y = 0; y < raster.height(); ++y) {
    for (int x = 0; x < raster.width(); ++x) {
      if (raster.point(x, y) != ground) bounds |= QRect{x, y, 1, 1};
    }
  }
  return bounds;
}

QRect printed(const TextStyle& style, const Text& text = u"HHHH", float x = 100, float y = 100) {
  QtRaster raster{200, 200};
  raster.clear(paper);
  raster.print(x, y, text, style);
  return inked(raster);
}

TextStyle plain() {
  TextStyle style;
  style.font = arial;
  style.color = ink;
  return style;
}

TEST(RasterText, StartsAtItsUpperLeftCorner) {
  const QRect bounds = printed(plain());
  ASSERT_FALSE(bounds.isEmpty());
  EXPECT_GE(bounds.left(), 99);
  EXPECT_LT(bounds.left(), 105);
  EXPECT_GE(bounds.top(), 100);
  EXPECT_LE(bounds.right(), 100 + printed_width(u"HHHH", arial));
  EXPECT_LE(bounds.bottom(), 100 + printed_height(u"HHHH", arial));
}

TEST(RasterText, IsPrintedInItsColour) {
  QtRaster raster{60, 40};
  raster.clear(paper);
  TextStyle style = plain();
  style.font.size = 24;
  style.color = rgb(200, 0, 0);
  raster.print(5, 0, u"I", style);
  bool full = false;
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 60; ++x) full = full || raster.point(x, y) == rgb(200, 0, 0);
  }
  EXPECT_TRUE(full);
}

TEST(RasterText, AnOpaqueTextFillsItsCell) {
  QtRaster raster{200, 60};
  raster.clear(paper);
  TextStyle style = plain();
  style.transparent = false;
  style.background = rgb(1, 2, 3);
  style.color = rgb(1, 2, 3);
  raster.print(10, 20, u"cell", style);
  const QRect cell = inked(raster);
  EXPECT_EQ(cell.topLeft(), QPoint(10, 20));
  EXPECT_NEAR(cell.width(), printed_width(u"cell", arial), 1.5);
  EXPECT_NEAR(cell.height(), printed_height(u"cell", arial), 1.5);
}

TEST(RasterText, ATransparentTextLeavesWhatLiesBetweenTheGlyphs) {
  QtRaster raster{200, 60};
  raster.clear(paper);
  TextStyle style = plain();
  style.background = rgb(1, 2, 3);
  raster.print(10, 20, u"ll", style);
  EXPECT_EQ(raster.point(10, 20), paper);
}

struct Turn {
  int escapement;
  bool right, below;
};

class TurnedText : public ::testing::TestWithParam<Turn> {};

// The text runs the way of the hand that turns against the clock.
TEST_P(TurnedText, RunsAnticlockwiseFromItsStart) {
  TextStyle style = plain();
  style.escapement = GetParam().escapement;
  const QRect bounds = printed(style);
  ASSERT_FALSE(bounds.isEmpty());
  EXPECT_EQ(bounds.center().x() > 100, GetParam().right);
  EXPECT_EQ(bounds.center().y() > 100, GetParam().below);
}

INSTANTIATE_TEST_SUITE_P(Angles, TurnedText,
                         ::testing::Values(Turn{0, true, true}, Turn{900, true, false},
                                           Turn{1800, false, false}, Turn{2700, false, true},
                                           Turn{3600, true, true}));

TEST(RasterText, AQuarterTurnSwapsWidthAndHeight) {
  TextStyle style = plain();
  const QRect level = printed(style);
  style.escapement = 900;
  const QRect upright = printed(style);
  EXPECT_NEAR(upright.width(), level.height(), 2);
  EXPECT_NEAR(upright.height(), level.width(), 2);
}

TEST(RasterText, AHeightOfItsOwnIsThatOfTheCell) {
  TextStyle style = plain();
  style.transparent = false;
  style.background = rgb(9, 9, 9);
  style.height = 40;
  EXPECT_NEAR(printed(style).height(), 40, 2);
}

TEST(RasterText, AWeightOfItsOwnMakesItHeavier) {
  const auto dark = [](int weight) {
    QtRaster raster{200, 200};
    raster.clear(paper);
    TextStyle style = plain();
    style.weight = weight;
    raster.print(10, 10, u"Weight", style);
    int sum = 0;
    for (int y = 0; y < 200; ++y) {
      for (int x = 0; x < 200; ++x) sum += 255 - green_of(raster.point(x, y));
    }
    return sum;
  };
  EXPECT_GT(dark(700), dark(400));
}

TEST(RasterText, MeasuresGrowWithTheText) {
  EXPECT_EQ(printed_width(u"", arial), 0);
  EXPECT_GT(printed_width(u"ab", arial), printed_width(u"a", arial));
  EXPECT_GT(printed_height(u"a", {u"Arial", 24}), printed_height(u"a", arial));
}

TEST(RasterText, EachLineOfATextTakesItsHeight) {
  const float one = printed_height(u"a", arial);
  EXPECT_FLOAT_EQ(printed_height(u"a\r\nb", arial), 2 * one);
  EXPECT_FLOAT_EQ(printed_width(u"wide\r\nw", arial), printed_width(u"wide", arial));
  EXPECT_GT(printed(plain(), u"H\r\nH").height(), one);
}

TEST(RasterText, AFontThatIsNotThereGivesWayToThatOfCaptions) {
  EXPECT_FLOAT_EQ(printed_width(u"wide", {u"No Such Font", 12}), printed_width(u"wide", {u"Inter", 12}));
}

TEST(RasterText, HasNoColouredFringes) {
  QtRaster raster{100, 40};
  raster.clear(paper);
  raster.print(5, 5, u"fringe", plain());
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 100; ++x) {
      const Color pixel = raster.point(x, y);
      ASSERT_EQ(red_of(pixel), green_of(pixel));
      ASSERT_EQ(green_of(pixel), blue_of(pixel));
    }
  }
}

}  // namespace
}  // namespace tarnmill::desktop
