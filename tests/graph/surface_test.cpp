#include "graph_fixture.h"

namespace tarnmill {
namespace {

using SurfaceTest = GraphTest;

void show_overlay(frmFunc& form) {
  for (OverlayLine* line : {&form.Line1, &form.Line3, &form.Line4, &form.Line5, &form.Line6}) {
    line->Visible = true;
  }
}

bool overlay_is_hidden(const frmFunc& form) {
  return !form.Line1.Visible && !form.Line3.Visible && !form.Line4.Visible && !form.Line5.Visible &&
         !form.Line6.Visible;
}

TEST_F(SurfaceTest, ClearErasesDrawsTheGridAndNamesTheWindow) {
  show_overlay(form());
  form().lblxy.Caption = u"X";
  const auto drawn = operations([&] { form().cmdClear.press(); });
  ASSERT_EQ(drawn.size(), 47U);
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
  EXPECT_TRUE(overlay_is_hidden(form()));
  EXPECT_EQ(form().Caption.get(), u"Graph Mode");
  EXPECT_EQ(form().lblcap.Caption.get(), u"Graph Mode");
  EXPECT_EQ(program.bench.focus(), &form().txtX);
}

TEST_F(SurfaceTest, ClearWithoutGridLeavesABareSurfaceAndTheCaption) {
  show_overlay(form());
  plot(u"K");
  const auto drawn = operations([&] { menus().mnucwg.press(); });
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(drawn.front()));
  EXPECT_TRUE(overlay_is_hidden(form()));
  EXPECT_EQ(form().Caption.get(), u"Graph Mode  Y = K for X = K");
}

TEST_F(SurfaceTest, ClearingRestsWhileDrawing) {
  show_overlay(form());
  form().Drawing = true;
  EXPECT_TRUE(operations([&] { form().cmdClear.press(); }).empty());
  EXPECT_TRUE(operations([&] { form().clear_without_grid(); }).empty());
  EXPECT_TRUE(form().Line1.Visible);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode ");
}

TEST_F(SurfaceTest, ClearingRemovesAFrozenPicture) {
  form().draw_lines();
  form().pDraw.FreezePicture();
  form().clear_without_grid();
  EXPECT_EQ(form().pDraw.Point(200, 100), 9747613);
}

TEST_F(SurfaceTest, APlotAfterClearingWithoutGridStandsOnABareBackground) {
  form().draw_lines();
  form().clear_without_grid();
  plot(u"0*K+5");
  int curve = 0;
  int background = 0;
  for (int x = 0; x < 400; ++x) {
    for (int y = 0; y < 400; ++y) {
      const Color color = form().pDraw.Point(x, y);
      if (color == 0xFF0000) ++curve;
      if (color == 9747613) ++background;
    }
  }
  EXPECT_EQ(curve, 400);
  EXPECT_EQ(curve + background, 160000);
}

TEST_F(SurfaceTest, SettingTheBackColourErasesCurvesAndGrid) {
  form().draw_lines();
  plot(u"K");
  form().pDraw.BackColor = rgb(10, 20, 30);
  for (const int at : {0, 100, 200, 399}) EXPECT_EQ(form().pDraw.Point(at, at), rgb(10, 20, 30));
}

struct Readout {
  const char16_t* zoom;
  float x;
  float y;
  const char16_t* text;
};

class ReadoutTest : public GraphTest, public testing::WithParamInterface<Readout> {};

TEST_P(ReadoutTest, TellsThePointUnderTheMouse) {
  form().lblzm.Caption = GetParam().zoom;
  form().pDraw.MouseMove.raise(0, 0, GetParam().x, GetParam().y);
  EXPECT_EQ(form().LblChart.Caption.get(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Points, ReadoutTest,
                         testing::Values(Readout{u"20", 200, 200, u"   x = 0, y = 0"},
                                         Readout{u"20", 230, 170, u"   x = 1.5, y = 1.5"},
                                         Readout{u"20", 0, 399, u"   x = -10, y = -9.95"},
                                         Readout{u"7", 201, 199, u"   x = 0.143, y = 0.143"},
                                         Readout{u"7.5 or so", 215, 215, u"   x = 2, y = -2"},
                                         Readout{u"  30", 230, 200, u"   x = 1, y = 0"}));

TEST_F(SurfaceTest, TheReadoutFollowsTheZoomTextNotTheZoom) {
  form().PixelsPerUnit = 200;
  form().pDraw.MouseMove.raise(0, 0, 220, 200);
  EXPECT_EQ(form().LblChart.Caption.get(), u"   x = 1, y = 0");
}

TEST_F(SurfaceTest, TheReadoutRestsWhileDrawing) {
  form().Drawing = true;
  form().pDraw.MouseMove.raise(0, 0, 220, 200);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
}

TEST_F(SurfaceTest, AZoomTextThatReadsAsNothingLeavesTheReadoutAlone) {
  form().pDraw.MouseMove.raise(0, 0, 220, 200);
  form().lblzm.Caption = u"abc";
  EXPECT_TRUE(program.bench.enter([&] { form().pDraw.MouseMove.raise(0, 0, 300, 200); }));
  EXPECT_EQ(form().LblChart.Caption.get(), u"   x = 1, y = 0");
}

TEST_F(SurfaceTest, TheMouseOffTheSurfaceEmptiesTheReadout) {
  form().pDraw.MouseMove.raise(0, 0, 220, 200);
  form().MouseMove.raise(0, 0, 10, 10);
  EXPECT_EQ(form().LblChart.Caption.get(), u"");
}

TEST_F(SurfaceTest, CtrlCPutsThePictureOnTheClipboard) {
  int code = 67;
  form().KeyDown.raise(code, 2);
  EXPECT_TRUE(program.desk.clipboard_has_picture());
}

TEST_F(SurfaceTest, CtrlCLeavesTheClipboardToASelectedText) {
  program.desk.set_clipboard_text(u"before");
  form().Show();
  form().txtY.Text = u"K^2";
  form().txtY.select(0, 2);
  int code = 67;
  form().KeyDown.raise(code, 2);
  EXPECT_FALSE(program.desk.clipboard_has_picture());
  EXPECT_EQ(program.desk.clipboard_text(), u"before");
}

TEST_F(SurfaceTest, OtherKeysLeaveTheClipboardAlone) {
  program.desk.set_clipboard_text(u"before");
  for (const auto& [key, shift] : {std::pair{67, 0}, {67, 3}, {86, 2}}) {
    int code = key;
    form().KeyDown.raise(code, shift);
    EXPECT_EQ(program.desk.clipboard_text(), u"before") << key << " " << shift;
  }
}

}  // namespace
}  // namespace tarnmill
