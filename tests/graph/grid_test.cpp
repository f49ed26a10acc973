#include "graph/grid.h"

#include <set>

#include "graph_fixture.h"

namespace tarnmill {
namespace {

using GridTest = GraphTest;

std::set<float> columns(const std::vector<PictureBox::LineDrawn>& lines) {
  std::set<float> found;
  for (const auto& line : lines) {
    if (line.x1 == line.x2) found.insert(line.x1);
  }
  return found;
}

std::set<float> rows(const std::vector<PictureBox::LineDrawn>& lines) {
  std::set<float> found;
  for (const auto& line : lines) {
    if (line.y1 == line.y2) found.insert(line.y1);
  }
  return found;
}

TEST_F(GridTest, AtZoom20TwentyOneLinesEachWay) {
  std::set<float> expected;
  for (int i = 0; i <= 400; i += 20) expected.insert(static_cast<float>(i));
  const auto drawn = lines([&] { form().draw_lines(); });
  EXPECT_EQ(drawn.size(), 46U) << "the middle ones twice, and the axes";
  EXPECT_EQ(columns(drawn), expected);
  EXPECT_EQ(rows(drawn), expected);
}

TEST_F(GridTest, AtZoom7LinesRunOutwardFromTheMiddle) {
  form().PixelsPerUnit = 7;
  std::set<float> expected;
  for (int i = 4; i <= 396; i += 7) expected.insert(static_cast<float>(i));
  const auto drawn = lines([&] { form().draw_lines(); });
  EXPECT_EQ(columns(drawn), expected);
  EXPECT_EQ(rows(drawn), expected);
  EXPECT_TRUE(expected.contains(207));
  EXPECT_TRUE(expected.contains(193));
}

TEST_F(GridTest, AFractionOfAPixelStaysInTheCoordinates) {
  form().PixelsPerUnit = 7.5;
  const std::set<float> found = columns(lines([&] { form().draw_lines(); }));
  EXPECT_TRUE(found.contains(207.5F));
  EXPECT_TRUE(found.contains(192.5F));
  EXPECT_EQ(*found.rbegin(), 395.0F);
  EXPECT_EQ(*found.begin(), 5.0F);
}

TEST_F(GridTest, TheOrderIsColumnsRowsAndThenTheAxesInTheirColour) {
  form().GridColor = rgb(1, 2, 3);
  form().AxisColor = rgb(4, 5, 6);
  const auto drawn = lines([&] { form().draw_lines(); });
  ASSERT_EQ(drawn.size(), 46U);
  const auto expect_line = [&](std::size_t i, float x1, float y1, float x2, float y2, Color color) {
    EXPECT_EQ(drawn[i].x1, x1) << i;
    EXPECT_EQ(drawn[i].y1, y1) << i;
    EXPECT_EQ(drawn[i].x2, x2) << i;
    EXPECT_EQ(drawn[i].y2, y2) << i;
    EXPECT_EQ(drawn[i].color, color) << i;
  };
  expect_line(0, 200, 0, 200, 400, rgb(1, 2, 3));
  expect_line(10, 400, 0, 400, 400, rgb(1, 2, 3));
  expect_line(11, 200, 0, 200, 400, rgb(1, 2, 3));
  expect_line(21, 0, 0, 0, 400, rgb(1, 2, 3));
  expect_line(22, 0, 200, 400, 200, rgb(1, 2, 3));
  expect_line(43, 0, 0, 400, 0, rgb(1, 2, 3));
  expect_line(44, 200, 0, 200, 400, rgb(4, 5, 6));
  expect_line(45, 0, 200, 400, 200, rgb(4, 5, 6));
}

TEST_F(GridTest, TheGridKeyDrawsOverWhatIsThere) {
  const auto drawn = operations([&] { form().cmdDrawCage.press(); });
  EXPECT_EQ(drawn.size(), 46U) << "nothing is cleared";
}

TEST_F(GridTest, TheGridKeyAndRedrawRestWhileDrawing) {
  form().Drawing = true;
  EXPECT_TRUE(operations([&] { form().cmdDrawCage.press(); }).empty());
  EXPECT_TRUE(operations([&] { menus().mnuredgrid.press(); }).empty());
  form().Drawing = false;
  EXPECT_EQ(operations([&] { menus().mnuredgrid.press(); }).size(), 46U);
}

TEST_F(GridTest, WithoutAPitchThereAreTheAxesAlone) {
  for (const double zoom : {0.0, -5.0, 1e-15, 1e-300}) {
    form().PixelsPerUnit = zoom;
    const auto drawn = lines([&] { form().draw_lines(); });
    ASSERT_EQ(drawn.size(), 2U) << zoom;
    EXPECT_EQ(drawn[0].x1, 200.0F);
    EXPECT_EQ(drawn[1].y1, 200.0F);
  }
}

TEST_F(GridTest, APitchWiderThanTheSurfaceLeavesTheMiddleLines) {
  form().PixelsPerUnit = 1000;
  EXPECT_EQ(columns(lines([&] { form().draw_lines(); })), std::set<float>{200});
}

TEST(GridCoordinates, GoNoWayPastTheirEnd) {
  EXPECT_TRUE(grid_coordinates(1000, 400, 10, Direction::up).empty());
  EXPECT_TRUE(grid_coordinates(-50, 0, 10, Direction::down).empty());
  EXPECT_EQ(grid_coordinates(-50, 400, 20, Direction::up).size(), 23U);
}

TEST(GridCoordinates, BelowAPixelEachPixelHasOneLine) {
  for (const double pitch : {0.5, 0.25, 1e-3, 1e-9, 1e-13}) {
    const std::vector<double> up = grid_coordinates(200, 400, pitch, Direction::up);
    const std::vector<double> down = grid_coordinates(200, 0, pitch, Direction::down);
    EXPECT_EQ(std::set<double>(up.begin(), up.end()).size(), up.size()) << pitch;
    EXPECT_EQ(up.size(), 201U) << pitch;
    EXPECT_EQ(down.size(), 201U) << pitch;
    EXPECT_EQ(up.back(), 400) << pitch;
    EXPECT_EQ(down.back(), 0) << pitch;
  }
}

/// The picture that drawing every line of the loop gives.
void draw_every_line(PictureBox& surface, double pitch, Color color) {
  const auto both = [&](double at) {
    surface.Line(static_cast<float>(at), 0, static_cast<float>(at), 400, color);
    surface.Line(0, static_cast<float>(at), 400, static_cast<float>(at), color);
  };
  for (double at = 200; at <= 400; at += pitch) both(at);
  for (double at = 200; at >= 0; at -= pitch) both(at);
}

TEST_F(GridTest, BelowAPixelThePictureIsThatOfTheWholeLoop) {
  PictureBox& surface = form().pDraw;
  const Color color = rgb(9, 8, 7);
  form().GridColor = color;
  form().AxisColor = color;
  for (const double pitch : {0.99, 0.87, 0.73, 0.6180339887, 0.31, 0.05}) {
    surface.Cls();
    draw_every_line(surface, pitch, color);
    const auto expected = surface.raster().copy();
    surface.Cls();
    form().PixelsPerUnit = pitch;
    form().draw_lines();
    int differences = 0;
    for (int i = 0; i < 400; ++i) {
      if (surface.Point(i, 3) != expected->point(i, 3)) ++differences;
      if (surface.Point(3, i) != expected->point(3, i)) ++differences;
    }
    EXPECT_EQ(differences, 0) << pitch;
  }
}

TEST_F(GridTest, ActivationDrawsTheGridAgainAndLeadsToTheYField) {
  form().txtX.SetFocus();
  EXPECT_EQ(operations([&] { form().Activate.raise(); }).size(), 46U);
  EXPECT_EQ(program.bench.focus(), &form().txtY);
}

TEST_F(GridTest, ActivationRestsWhileDrawing) {
  form().txtX.SetFocus();
  form().Drawing = true;
  EXPECT_TRUE(operations([&] { form().Activate.raise(); }).empty());
  EXPECT_EQ(program.bench.focus(), &form().txtX);
}

}  // namespace
}  // namespace tarnmill
