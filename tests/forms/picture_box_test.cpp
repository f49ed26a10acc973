#include "forms/picture_box.h"

#include <gtest/gtest.h>

#include "forms/files.h"
#include "forms/sample_window.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

class PictureBoxTest : public ::testing::Test {
 protected:
  TestProgram program;
  SampleWindow window{program.bench};
  PictureBox& surface = window.surface;
  static constexpr Color red = rgb(255, 0, 0);
  static constexpr Color back = rgb(10, 20, 30);
};

TEST_F(PictureBoxTest, StartsInItsBackColour) {
  EXPECT_EQ(surface.ScaleWidth(), 40);
  EXPECT_EQ(surface.ScaleHeight(), 30);
  EXPECT_EQ(surface.Point(0, 0), back);
  EXPECT_EQ(surface.Point(40, 0), -1);
}

TEST_F(PictureBoxTest, ALineLeavesTheCurrentPointAtItsEnd) {
  surface.Line(1, 2, 5, 2, red);
  EXPECT_EQ(surface.CurrentX, 5);
  EXPECT_EQ(surface.CurrentY, 2);
  surface.LineTo(5, 6, red);
  for (const auto& [x, y] : {std::pair{1, 2}, {3, 2}, {5, 2}, {5, 4}, {5, 6}}) {
    EXPECT_EQ(surface.Point(x, y), red) << x << "," << y;
  }
  EXPECT_EQ(surface.Point(4, 4), back);
}

TEST_F(PictureBoxTest, MovingTheCurrentPointDrawsNothing) {
  surface.CurrentX = 7;
  surface.CurrentY = 8;
  EXPECT_EQ(surface.Point(7, 8), back);
}

TEST_F(PictureBoxTest, ClsErasesToTheBackColourAndReturnsToTheOrigin) {
  surface.Line(0, 0, 39, 29, red);
  surface.Cls();
  EXPECT_EQ(surface.Point(0, 0), back);
  EXPECT_EQ(surface.CurrentX, 0);
  EXPECT_EQ(surface.CurrentY, 0);
}

TEST_F(PictureBoxTest, ANewBackColourErases) {
  surface.Line(0, 0, 39, 29, red);
  surface.BackColor = rgb(1, 2, 3);
  EXPECT_EQ(surface.Point(0, 0), rgb(1, 2, 3));
}

TEST_F(PictureBoxTest, AFrozenPictureSurvivesClsUntilItIsRemoved) {
  surface.Line(0, 0, 5, 0, red);
  surface.FreezePicture();
  surface.Line(0, 9, 5, 9, red);
  surface.Cls();
  EXPECT_EQ(surface.Point(3, 0), red);
  EXPECT_EQ(surface.Point(3, 9), back);
  surface.RemovePicture();
  EXPECT_EQ(surface.Point(3, 0), back);
}

TEST_F(PictureBoxTest, ANewBackColourRemovesAFrozenPicture) {
  surface.Line(0, 0, 5, 0, red);
  surface.FreezePicture();
  surface.BackColor = rgb(1, 2, 3);
  surface.Cls();
  EXPECT_EQ(surface.Point(3, 0), rgb(1, 2, 3));
}

TEST_F(PictureBoxTest, OverlayLinesFloatAboveTheRasterUntilTheyAreTakenIn) {
  window.line.X1 = 0;
  window.line.Y1 = 4;
  window.line.X2 = 9;
  window.line.Y2 = 4;
  window.line.BorderColor = red;
  surface.TakeInOverlayLines();
  EXPECT_EQ(surface.Point(4, 4), back);
  window.line.Visible = true;
  EXPECT_EQ(surface.Point(4, 4), back);
  surface.TakeInOverlayLines();
  EXPECT_EQ(surface.Point(4, 4), red);
}

TEST_F(PictureBoxTest, ASystemColourIsDrawnResolvedAndRecordedAsGiven) {
  surface.Record(true);
  surface.Line(0, 0, 3, 0, active_border);
  surface.Record(false);
  surface.Line(0, 1, 3, 1, red);
  EXPECT_EQ(surface.Point(1, 0), rgb(212, 208, 200));
  ASSERT_EQ(surface.Ops().size(), 1U);
  EXPECT_EQ(std::get<PictureBox::LineDrawn>(surface.Ops()[0]).color, active_border);
}

TEST_F(PictureBoxTest, ARecordingHoldsEachOperationInOrderAndStartsEmpty) {
  surface.Record(true);
  surface.Cls();
  surface.BackColor = 5;
  surface.Print(u"a");
  EXPECT_EQ(surface.Ops().size(), 3U);
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(surface.Ops()[0]));
  EXPECT_EQ(std::get<PictureBox::BackColorSet>(surface.Ops()[1]).color, 5);
  EXPECT_EQ(std::get<PictureBox::Printed>(surface.Ops()[2]).text, u"a");
  surface.Record(true);
  EXPECT_TRUE(surface.Ops().empty());
}

TEST_F(PictureBoxTest, PrintedTextLeavesTheCurrentPointAtTheNextLine) {
  surface.CurrentX = 4;
  surface.CurrentY = 5;
  surface.Print(u"a");
  EXPECT_EQ(surface.CurrentX, 0);
  EXPECT_EQ(surface.CurrentY, 5 + surface.TextHeight(u"a"));
}

TEST_F(PictureBoxTest, TheSameBackColourErasesAsWell) {
  surface.Line(0, 0, 39, 29, red);
  surface.Record(true);
  surface.BackColor = back;
  EXPECT_EQ(surface.Point(0, 0), back);
  EXPECT_EQ(surface.Ops().size(), 1U);
}

TEST_F(PictureBoxTest, ASurfaceInTwipsCountsFifteenToThePixel) {
  PictureBox box{window, "box", 40, 30, back, SurfaceUnit::twip};
  EXPECT_EQ(box.ScaleWidth(), 600);
  EXPECT_EQ(box.ScaleHeight(), 450);
  EXPECT_EQ(box.TextWidth(u"Eg"), 15 * surface.TextWidth(u"Eg"));
  EXPECT_EQ(box.TextHeight(u"Eg"), 15 * surface.TextHeight(u"Eg"));
  box.Line(75, 30, 150, 30, red);
  EXPECT_EQ(box.Point(5, 2), red);
  EXPECT_EQ(box.Point(10, 2), red);
  EXPECT_EQ(box.Point(11, 2), back);
  EXPECT_EQ(box.CurrentX, 150);
}

TEST_F(PictureBoxTest, ANewSizeMakesAnEmptyRasterOfThatSize) {
  surface.Line(0, 0, 39, 29, red);
  surface.Width = 900;
  EXPECT_EQ(surface.ScaleWidth(), 60);
  surface.Height = 307;
  EXPECT_EQ(surface.ScaleHeight(), 20);
  EXPECT_EQ(surface.Point(0, 0), back);
  EXPECT_EQ(surface.Point(59, 19), back);
}

TEST_F(PictureBoxTest, ABitmapIsWrittenUnderAnyName) {
  const auto path = program.folder() / "picture.png";
  ASSERT_TRUE(surface.raster().save_bitmap(path));
  EXPECT_TRUE(read_file(path).starts_with("BM"));
}

}  // namespace
}  // namespace tarnmill
