#include <array>

#include "graph_fixture.h"

namespace tarnmill {
namespace {

using Printed = PictureBox::Printed;
using Cleared = PictureBox::Cleared;
using BackColorSet = PictureBox::BackColorSet;

class LabelTest : public GraphTest {
 protected:
  LabelTest() { form().cmdClear.press(); }

  /// Asks for a label with this text and puts it on its box.
  void place(const Text& text) {
    form().Command3.press();
    form().Text2.Text = text;
    form().cmdLabel.press();
  }
  /// What was printed on the plot.
  std::vector<Printed> printed(const std::function<void()>& action) {
    std::vector<Printed> found;
    for (const auto& each : operations(action)) {
      if (const auto* text = std::get_if<Printed>(&each)) found.push_back(*text);
    }
    return found;
  }
  /// The smallest rectangle around what the plot shows on its bare ground: left, top, right, bottom.
  std::array<int, 4> bounds() {
    std::array<int, 4> bounds{400, 400, -1, -1};
    for (int y = 0; y < 400; ++y) {
      for (int x = 0; x < 400; ++x) {
        if (form().pDraw.Point(x, y) == form().pDraw.BackColor) continue;
        bounds = {std::min(bounds[0], x), std::min(bounds[1], y), std::max(bounds[2], x),
                  std::max(bounds[3], y)};
      }
    }
    return bounds;
  }
};

TEST_F(LabelTest, TheFrameStartsHiddenWithItsWords) {
  EXPECT_FALSE(form().frmText.Visible);
  EXPECT_FALSE(form().picMCRBox.Visible);
  EXPECT_EQ(form().frmText.Caption.get(), u" Enter Label Text ");
  EXPECT_EQ(form().Label2.Caption.get(), u"Rotate text (Deg)");
  EXPECT_EQ(form().txtAngle.Text.get(), u"0");
  EXPECT_EQ(form().cmdFont.Caption.get(), u"&Font");
  EXPECT_EQ(form().cmdBoja.Caption.get(), u"Font &Color");
  EXPECT_EQ(form().Check1.Caption.get(), u"&Transparent");
  EXPECT_EQ(form().cmdLabel.Caption.get(), u"OK");
  EXPECT_EQ(form().cmdTextCancel.Caption.get(), u"Cancel");
  EXPECT_EQ(form().Command3.ToolTipText.get(), u" Insert Label ");
  EXPECT_EQ(form().TextSW, 0);
  EXPECT_EQ(form().LabelColor, 0);
}

struct Proposal {
  const char16_t* y;
  const char16_t* x;
  const char16_t* text;
};

class ProposalTest : public LabelTest, public testing::WithParamInterface<Proposal> {};

TEST_P(ProposalTest, NamesTheFunction) {
  set_fields(GetParam().y, GetParam().x);
  form().Text2.Text = u"of another time";
  form().Command3.press();
  EXPECT_EQ(form().Text2.Text.get(), GetParam().text);
  EXPECT_EQ(form().TextSW, -1);
  EXPECT_TRUE(form().frmText.Visible);
}

INSTANTIATE_TEST_SUITE_P(Fields, ProposalTest,
                         testing::Values(Proposal{u"K^2-K", u"K", u"Y = X^2-X"},
                                         Proposal{u"3*sinK", u"3*cosK", u"Y = 3*sinK for X = 3*cosK"},
                                         Proposal{u"K", u"k", u"Y = K for X = k"},
                                         Proposal{u"K", u"", u"Y = K for X = "}, Proposal{u"", u"K", u""},
                                         Proposal{u"", u"Y", u""}));

TEST_F(LabelTest, TheMenuAndTheProcedureAskAsTheKeyDoes) {
  menus().mnuinsl.press();
  EXPECT_TRUE(form().frmText.Visible);
  form().cmdTextCancel.press();
  form().begin_label();
  EXPECT_TRUE(form().frmText.Visible);
}

TEST_F(LabelTest, ALabelWithoutTextIsRefused) {
  form().Command3.press();
  form().cmdLabel.press();
  expect_message(u"Enter Graph Label text.", MessageIcon::information);
  EXPECT_TRUE(form().frmText.Visible);
  EXPECT_FALSE(form().picMCRBox.Visible);
}

TEST_F(LabelTest, CancelEndsThePreparation) {
  form().Command3.press();
  program.bench.MousePointer(11);
  form().cmdTextCancel.press();
  EXPECT_FALSE(form().frmText.Visible);
  EXPECT_EQ(form().TextSW, 0);
  EXPECT_EQ(program.bench.MousePointer(), 0);
}

TEST_F(LabelTest, OkShowsTheTextOnABoxThatFitsIt) {
  program.bench.MousePointer(11);
  form().pDraw.BackColor = rgb(1, 2, 3);
  form().LabelColor = rgb(4, 5, 6);
  form().Command3.press();
  form().Text2.Text = u"a label";
  PictureBox& box = form().picMCRBox;
  box.Record(true);
  form().cmdLabel.press();
  EXPECT_FALSE(form().frmText.Visible);
  EXPECT_TRUE(box.Visible);
  EXPECT_EQ(box.Left, 2560);
  EXPECT_EQ(box.Top, 1060);
  EXPECT_EQ(box.Width, static_cast<double>(box.TextWidth(u"a label")) + 40);
  EXPECT_EQ(box.Height, static_cast<double>(box.TextHeight(u"Eg")) + 40);
  EXPECT_EQ(box.BackColor, rgb(1, 2, 3));
  EXPECT_EQ(box.ForeColor, rgb(4, 5, 6));
  ASSERT_EQ(box.Ops().size(), 3U);
  EXPECT_TRUE(std::holds_alternative<Cleared>(box.Ops()[0]));
  EXPECT_EQ(std::get<BackColorSet>(box.Ops()[1]).color, rgb(1, 2, 3));
  EXPECT_EQ(std::get<Printed>(box.Ops()[2]).text, u"a label");
  EXPECT_EQ(std::get<Printed>(box.Ops()[2]).x, 0);
  EXPECT_EQ(program.bench.MousePointer(), 0);
}

TEST_F(LabelTest, OkWithoutAPreparationOnlyHidesTheFrame) {
  form().frmText.Visible = true;
  form().Text2.Text = u"a";
  form().cmdLabel.press();
  EXPECT_FALSE(form().frmText.Visible);
  EXPECT_FALSE(form().picMCRBox.Visible);
}

TEST_F(LabelTest, ASecondLabelWaitsForTheFirst) {
  place(u"a");
  form().Command3.press();
  expect_message(
      u"Click with the right mouse on current label and\r\ninsert it or delete before you proceed.",
      MessageIcon::information);
  EXPECT_FALSE(form().frmText.Visible);
  EXPECT_EQ(form().Text2.Text.get(), u"a");
}

TEST_F(LabelTest, EachChangeOfTheTextIsPrintedInTheBox) {
  form().Check1.Value = 0;
  form().picMCRBox.Record(true);
  form().Text2.Text = u"ab";
  EXPECT_FALSE(form().picMCRBox.FontTransparent);
  ASSERT_EQ(form().picMCRBox.Ops().size(), 1U);
  EXPECT_EQ(std::get<Printed>(form().picMCRBox.Ops()[0]).text, u"ab");
  form().Check1.Value = 1;
  form().Text2.Text = u"abc";
  EXPECT_TRUE(form().picMCRBox.FontTransparent);
}

TEST_F(LabelTest, TheTickMakesThePlotsTextTransparent) {
  form().Check1.Value = 0;
  EXPECT_FALSE(form().pDraw.FontTransparent);
  form().Check1.press();
  EXPECT_TRUE(form().pDraw.FontTransparent);
}

TEST_F(LabelTest, TheArrowsSetTheAngle) {
  form().VsbPtrnNo.step(-1);
  EXPECT_EQ(form().txtAngle.Text.get(), u"-1");
  form().VsbPtrnNo.Value = 180;
  form().VsbPtrnNo.step(1);
  EXPECT_EQ(form().txtAngle.Text.get(), u"180");
  form().VsbPtrnNo.Value = -180;
  EXPECT_EQ(form().txtAngle.Text.get(), u"-180");
  EXPECT_TRUE(program.desk.dialogs().empty());
}

class AngleTest : public LabelTest, public testing::WithParamInterface<const char16_t*> {};

TEST_P(AngleTest, BeyondAHalfTurnIsRefused) {
  form().txtAngle.Text = GetParam();
  expect_message(u"Set value for rotating angle in range (-180 to 180) Deg.", MessageIcon::information);
  EXPECT_EQ(form().txtAngle.Text.get(), u"0");
}

INSTANTIATE_TEST_SUITE_P(Angles, AngleTest, testing::Values(u"181", u"-181", u"180.1", u"-180.01", u"999 x"));

TEST_F(LabelTest, AnAngleWithinAHalfTurnAndAnyTextIsTaken) {
  for (const char16_t* each : {u"180", u"-180", u"12.5", u"abc", u""}) {
    form().txtAngle.Text = each;
    EXPECT_EQ(form().txtAngle.Text.get(), each);
  }
  EXPECT_TRUE(program.desk.dialogs().empty());
}

TEST_F(LabelTest, AStampedLabelLandsByThreeHundredNinetySevenPixels) {
  place(u"a label");
  form().picMCRBox.Left = 5460;
  form().picMCRBox.Top = 2460;
  form().LabelColor = rgb(9, 0, 0);
  form().pDraw.FontTransparent = false;
  form().picMCRBox.Record(true);
  program.bench.MousePointer(11);
  const auto texts = printed([&] { menus().mnudalabel.press(); });
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].text, u"a label");
  EXPECT_EQ(texts[0].x, 198.5F);
  EXPECT_EQ(texts[0].y, 99.25F);
  EXPECT_EQ(form().pDraw.ForeColor, rgb(9, 0, 0));
  EXPECT_FALSE(form().pDraw.FontTransparent) << "as it was before";
  EXPECT_EQ(form().TextSW, 0);
  EXPECT_FALSE(form().picMCRBox.Visible);
  ASSERT_EQ(form().picMCRBox.Ops().size(), 1U);
  EXPECT_TRUE(std::holds_alternative<Cleared>(form().picMCRBox.Ops()[0]));
  EXPECT_EQ(program.bench.MousePointer(), 0);
}

TEST_F(LabelTest, WhereTheBoxStartsTheLabelLandsAtALittleMoreThanSixPixels) {
  place(u"a");
  const auto texts = printed([&] { form().stamp_label(); });
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].x, static_cast<float>(100.0 * 397 / 6000));
  EXPECT_EQ(texts[0].y, texts[0].x);
}

TEST_F(LabelTest, AStampKeepsTransparentTextTransparent) {
  form().Check1.Value = 0;
  form().pDraw.FontTransparent = true;
  place(u"a");
  form().stamp_label();
  EXPECT_TRUE(form().pDraw.FontTransparent);
}

TEST_F(LabelTest, WithoutTheTickTheGroundOfTheLabelCoversTheCurve) {
  form().pDraw.FontSize = 40;
  form().LabelColor = rgb(9, 0, 0);
  for (const bool transparent : {true, false}) {
    form().cmdClear.press();
    form().Check1.Value = transparent ? 1 : 0;
    place(u"l l");
    form().picMCRBox.Left = 2860;
    form().picMCRBox.Top = 1110;
    form().stamp_label();
    EXPECT_EQ(form().pDraw.Point(40, 40) == resolve(form().GridColor), transparent);
  }
}

TEST_F(LabelTest, WithoutAPreparedLabelNothingIsStamped) {
  place(u"a");
  form().TextSW = 0;
  EXPECT_TRUE(printed([&] { form().stamp_label(); }).empty());
  EXPECT_FALSE(form().picMCRBox.Visible);
}

TEST_F(LabelTest, ADeletedLabelLeavesThePlotAndTheNextOneIsPossible) {
  place(u"a");
  EXPECT_TRUE(printed([&] { menus().mnunelabel.press(); }).empty());
  EXPECT_FALSE(form().picMCRBox.Visible);
  EXPECT_EQ(form().TextSW, -1);
  form().Command3.press();
  EXPECT_TRUE(form().frmText.Visible);
}

TEST_F(LabelTest, ClearingErasesAStampedLabel) {
  form().clear_without_grid();
  place(u"a label");
  form().stamp_label();
  EXPECT_GT(bounds()[2], 0);
  form().clear_without_grid();
  EXPECT_EQ(bounds()[2], -1);
}

struct Turn {
  double angle;
  bool upright;
  int side;  // of the start on which the text lies: 1 right of or below it, -1 left of or above it
};

class TurnTest : public LabelTest, public testing::WithParamInterface<Turn> {};

TEST_P(TurnTest, TurnsClockwiseAboutTheStart) {
  form().clear_without_grid();
  form().pDraw.CurrentX = 200;
  form().pDraw.CurrentY = 200;
  form().print_rotated(GetParam().angle, u"llllllllllllllllllll");
  const auto [left, top, right, bottom] = bounds();
  ASSERT_GT(right, 0);
  EXPECT_EQ(bottom - top > right - left, GetParam().upright);
  const int middle = GetParam().upright ? (top + bottom) / 2 : (left + right) / 2;
  EXPECT_GT((middle - 200) * GetParam().side, 20);
}

INSTANTIATE_TEST_SUITE_P(Angles, TurnTest,
                         testing::Values(Turn{0, false, 1}, Turn{90, true, 1}, Turn{-90, true, -1},
                                         Turn{180, false, -1}, Turn{-180, false, -1}));

TEST_F(LabelTest, EachRotatedTextFillsTheFontRecord) {
  form().pDraw.FontName = u"A name of more than thirty-one characters";
  form().pDraw.FontSize = 20;
  form().pDraw.FontBold = true;
  form().pDraw.FontUnderline = true;
  form().print_rotated(45, u"a");
  EXPECT_EQ(form().LabelFont.lfHeight, 32);
  EXPECT_EQ(form().LabelFont.lfEscapement, -450);
  EXPECT_EQ(form().LabelFont.lfWeight, 600);
  EXPECT_EQ(form().LabelFont.lfItalic, 0);
  EXPECT_EQ(form().LabelFont.lfUnderline, 1);
  EXPECT_EQ(form().LabelFont.lfStrikeOut, 0);
  EXPECT_EQ(form().LabelFont.lfCharSet, 0);
  EXPECT_EQ(form().LabelFont.lfFaceName.get(), (Text{u"A name of more than thirty-one \0", 32}));
}

TEST_F(LabelTest, AnAngleBeyondTheRangeEndsTheProgram) {
  EXPECT_FALSE(program.bench.enter([&] { form().print_rotated(1e300, u"a"); }));
  EXPECT_EQ(program.bench.fault(), 6);
}

}  // namespace
}  // namespace tarnmill
