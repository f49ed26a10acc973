#include "graph_fixture.h"

namespace tarnmill {
namespace {

constexpr int left = 1;
constexpr int right = 2;

class LabelBoxTest : public GraphTest {
 protected:
  LabelBoxTest() {
    form().Command3.press();
    form().Text2.Text = u"a";
    form().cmdLabel.press();
    box().Width = 600;
    box().Height = 300;
  }

  PictureBox& box() { return form().picMCRBox; }
  void put(double x, double y) {
    box().Left = x;
    box().Top = y;
  }
};

TEST_F(LabelBoxTest, APressIsRemembered) {
  box().MouseDown.raise(left, 0, 30, 45);
  EXPECT_EQ(form().LabelDragX, 30);
  EXPECT_EQ(form().LabelDragY, 45);
  EXPECT_EQ(form().popup_shown(), nullptr);
}

TEST_F(LabelBoxTest, TheRightButtonOpensItsMenu) {
  box().MouseDown.raise(right, 0, 15, 60);
  EXPECT_EQ(form().popup_shown(), &menus().mnulabel);
  EXPECT_EQ(form().LabelDragX, 15);
  EXPECT_EQ(form().LabelDragY, 60);
}

TEST_F(LabelBoxTest, TheLeftButtonDragsIt) {
  put(3000, 2000);
  box().MouseDown.raise(left, 0, 30, 45);
  box().MouseMove.raise(left, 0, 130, 15);
  EXPECT_EQ(box().Left, 3100);
  EXPECT_EQ(box().Top, 1970);
}

TEST_F(LabelBoxTest, AMoveWithoutTheLeftButtonTellsWhatToDo) {
  put(3000, 2000);
  box().MouseMove.raise(0, 0, 130, 15);
  EXPECT_EQ(box().ToolTipText.get(), u"Drag the Label and click the right mouse to insert or delete");
  box().MouseMove.raise(right, 0, 130, 15);
  EXPECT_EQ(box().Left, 3000);
  EXPECT_EQ(box().Top, 2000);
}

struct Bound {
  const char* what;
  double x, y;
  double kept_x, kept_y;
};

class BoundTest : public LabelBoxTest, public testing::WithParamInterface<Bound> {};

TEST_P(BoundTest, IsHeldByTheNextMove) {
  put(GetParam().x, GetParam().y);
  box().MouseMove.raise(0, 0, 0, 0);
  EXPECT_EQ(box().Left, GetParam().kept_x);
  EXPECT_EQ(box().Top, GetParam().kept_y);
}

INSTANTIATE_TEST_SUITE_P(
    Box, BoundTest,
    testing::Values(Bound{"Left", 2459, 2000, 2500, 2000}, Bound{"AtLeft", 2460, 2000, 2460, 2000},
                    Bound{"RightJumpsBack", 7861, 2000, 2500, 2000}, Bound{"AtRight", 7860, 2000, 7860, 2000},
                    Bound{"Top", 3000, 959, 3000, 960}, Bound{"AtTop", 3000, 960, 3000, 960},
                    Bound{"Bottom", 3000, 6401, 3000, 6700}, Bound{"AtBottom", 3000, 6400, 3000, 6400},
                    Bound{"Corner", -5, 9000, 2500, 6700}),
    [](const auto& row) { return row.param.what; });

TEST_F(LabelBoxTest, ABoxWiderThanThePlotStaysAtTheLeft) {
  box().Width = 7000;
  put(2470, 2000);
  box().MouseMove.raise(0, 0, 0, 0);
  EXPECT_EQ(box().Left, 2500);
}

TEST_F(LabelBoxTest, TheBoundsComeBeforeTheDrag) {
  put(7900, 2000);
  box().MouseDown.raise(left, 0, 0, 0);
  box().MouseMove.raise(left, 0, -200, 0);
  EXPECT_EQ(box().Left, 2300);
}

}  // namespace
}  // namespace tarnmill
