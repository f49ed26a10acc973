#include "forms/desk.h"
#include "graph_fixture.h"
#include "shell/registry.h"

namespace tarnmill {
namespace {

using BackColorSet = PictureBox::BackColorSet;

constexpr Color chosen = rgb(1, 2, 3);
constexpr int grid = 0;
constexpr int axes = 1;
constexpr int curve = 2;
constexpr int background = 3;

class ColorsTest : public GraphTest {
 protected:
  ColorsTest() { form().cmdClear.press(); }

  Text stored(TextView name) {
    return GetRegistrySetting(program.desk.settings(), u"Software", u"Tarnmill", u"Boje", name, u"none")
        .to_text({});
  }
};

TEST_F(ColorsTest, TheGridTakesTheColourChosenAndIsDrawnAgain) {
  program.desk.answer(chosen);
  const auto drawn = lines([&] { form().choose_color(grid); });
  ASSERT_EQ(drawn.size(), 46U);
  EXPECT_EQ(drawn.front().color, chosen);
  EXPECT_EQ(form().GridColor, chosen);
  EXPECT_EQ(form().lblgrid.BackColor, chosen);
  EXPECT_FALSE(form().Drawing);
  const DialogShown dialog = only_dialog();
  EXPECT_EQ(dialog.kind, DialogShown::Kind::color);
  EXPECT_EQ(dialog.title, u"Choose Color");
  EXPECT_EQ(dialog.flags, 0);
}

TEST_F(ColorsTest, TheAxesTakeTheColourChosenAndAreDrawnAgain) {
  program.desk.answer(chosen);
  const auto drawn = lines([&] { form().choose_color(axes); });
  ASSERT_EQ(drawn.size(), 46U);
  EXPECT_EQ(drawn.back().color, chosen);
  EXPECT_EQ(form().AxisColor, chosen);
  EXPECT_EQ(form().lblosa.BackColor, chosen);
}

TEST_F(ColorsTest, TheNextCurveTakesTheColourChosenAndNothingIsDrawn) {
  program.desk.answer(chosen);
  EXPECT_TRUE(operations([&] { form().choose_color(curve); }).empty());
  EXPECT_EQ(form().CurveColor, chosen);
  EXPECT_EQ(form().lblBoja.BackColor, chosen);
  EXPECT_EQ(plot(u"K").front().color, chosen);
}

TEST_F(ColorsTest, ANewBackgroundErasesThePlotAndBringsTheGridBack) {
  plot(u"K");
  program.desk.answer(chosen);
  const auto drawn = operations([&] { form().choose_color(background); });
  ASSERT_EQ(drawn.size(), 47U);
  EXPECT_EQ(std::get<BackColorSet>(drawn.front()).color, chosen);
  EXPECT_EQ(form().pDraw.BackColor, chosen);
}

TEST_F(ColorsTest, AnyOtherTargetChangesNothing) {
  program.desk.answer(chosen);
  EXPECT_TRUE(operations([&] { form().choose_color(4); }).empty());
}

TEST_F(ColorsTest, NothingIsAskedWhileAPlotRuns) {
  form().Drawing = true;
  for (const int target : {grid, axes, curve, background}) form().choose_color(target);
  EXPECT_TRUE(program.desk.dialogs().empty());
}

TEST_F(ColorsTest, ACancelTakesTheDialogsLastColour) {
  program.desk.answer(chosen);
  form().choose_color(curve);
  form().choose_color(axes);
  EXPECT_EQ(form().AxisColor, chosen);
}

TEST_F(ColorsTest, AfterALabelsDialogACancelChangesNothing) {
  form().cmdBoja.press();
  for (const int target : {grid, axes, curve, background}) form().choose_color(target);
  EXPECT_EQ(form().GridColor, active_border);
  EXPECT_EQ(form().AxisColor, 0);
  EXPECT_EQ(form().CurveColor, 0xFF0000);
  EXPECT_EQ(form().pDraw.BackColor, 9747613);
}

TEST_F(ColorsTest, DefaultSetsAllColoursBackAndErases) {
  program.desk.answer(chosen);
  form().choose_color(grid);
  program.desk.answer(chosen);
  form().choose_color(axes);
  program.desk.answer(chosen);
  form().choose_color(curve);
  const auto drawn = operations([&] { form().take_default_colors(); });
  ASSERT_EQ(drawn.size(), 47U);
  EXPECT_EQ(std::get<BackColorSet>(drawn.front()).color, 9747613) << "erased although it had that colour";
  EXPECT_EQ(form().CurveColor, 0xFF0000);
  EXPECT_EQ(form().lblBoja.BackColor, 0xFF0000);
  EXPECT_EQ(form().GridColor, active_border);
  EXPECT_EQ(form().lblgrid.BackColor, active_border);
  EXPECT_EQ(form().AxisColor, 0);
  EXPECT_EQ(form().lblosa.BackColor, 0);
}

TEST_F(ColorsTest, TheMenusTargetsAreGridAxesAndCurve) {
  for (MenuItem* each : {&menus().colour1, &menus().colour2, &menus().colour3}) {
    form().Caption = u"Graph Mode ";
    form().Line1.Visible = true;
    program.desk.answer(chosen);
    each->press();
    EXPECT_FALSE(form().Line1.Visible);
    EXPECT_EQ(program.desk.dialogs().back().kind, DialogShown::Kind::color) << "it never asks about erasing";
  }
  EXPECT_EQ(form().GridColor, chosen);
  EXPECT_EQ(form().AxisColor, chosen);
  EXPECT_EQ(form().CurveColor, chosen);
}

class ErasingTest : public ColorsTest, public testing::WithParamInterface<MenuItem frmZoom::*> {
 protected:
  MenuItem& item() { return menus().*GetParam(); }
};

TEST_P(ErasingTest, AsksOnAnyCaptionButThatOfAClearedPlot) {
  for (const char16_t* caption : {u"Graph Mode ", u"Graph Mode  Y = K for X = K", u"graph mode"}) {
    form().Caption = caption;
    form().pDraw.BackColor = chosen;
    form().Line1.Visible = true;
    item().press();
    expect_message(u"Your current graph(s) will be erased.\r\nContinue?", MessageIcon::none,
                   u"Changing Colors", MessageButtons::ok_cancel);
    EXPECT_EQ(form().pDraw.BackColor, chosen) << "cancelled";
    EXPECT_FALSE(form().Line1.Visible);
  }
}

TEST_P(ErasingTest, DoesItsWorkAfterOk) {
  form().Caption = u"Graph Mode ";
  form().pDraw.BackColor = chosen;
  program.desk.answer(MessageResult::ok);
  program.desk.answer(Color{9747613});
  item().press();
  EXPECT_EQ(form().pDraw.BackColor, 9747613);
}

TEST_P(ErasingTest, AsksNothingOnAClearedPlot) {
  form().pDraw.BackColor = chosen;
  program.desk.answer(Color{9747613});
  item().press();
  EXPECT_EQ(form().pDraw.BackColor, 9747613);
  for (const DialogShown& each : program.desk.dialogs()) EXPECT_NE(each.kind, DialogShown::Kind::message);
}

INSTANTIATE_TEST_SUITE_P(Items, ErasingTest, testing::Values(&frmZoom::mnuback, &frmZoom::mnuglavno));

TEST_F(ColorsTest, AFreshWindowAsksAsWell) {
  program.restart();
  menus().mnuback.press();
  EXPECT_EQ(only_dialog().title, u"Changing Colors");
}

TEST_F(ColorsTest, TheKeyOpensTheMenuAndKeepsTheColours) {
  EXPECT_EQ(form().Command4.ToolTipText.get(), u" Change Colors ");
  program.desk.answer(chosen);
  menus().colour1.press();
  EXPECT_EQ(stored(u"Grid"), u"none") << "the Edit menu keeps nothing";
  form().Command4.MouseDown.raise(1, 0, 0, 0);
  EXPECT_EQ(form().popup_shown(), &menus().ChCol);
  EXPECT_EQ(stored(u"Pozadina"), u"9747613");
  EXPECT_EQ(stored(u"Grafik"), u"16711680");
  EXPECT_EQ(stored(u"Grid"), NumberToText(chosen, {}));
  EXPECT_EQ(stored(u"Ose"), u"0");
}

TEST_F(ColorsTest, ASystemColourIsKeptAsASignedNumber) {
  form().Command4.MouseDown.raise(1, 0, 0, 0);
  EXPECT_EQ(stored(u"Grid"), u"-2147483638");
}

TEST_F(ColorsTest, AfterARestartTheColoursAreThereButASaveForgetsThoseNotPickedAgain) {
  program.desk.answer(chosen);
  menus().colour1.press();
  program.desk.answer(chosen);
  menus().colour3.press();
  program.desk.answer(chosen);
  menus().mnuback.press();
  form().Command4.MouseDown.raise(1, 0, 0, 0);
  program.restart();
  EXPECT_EQ(form().GridColor, chosen);
  EXPECT_EQ(form().CurveColor, chosen);
  EXPECT_EQ(form().pDraw.BackColor, chosen);
  EXPECT_EQ(form().lblgrid.BackColor, active_border);
  EXPECT_EQ(form().lblBoja.BackColor, 0xFF0000);
  form().Command4.MouseDown.raise(1, 0, 0, 0);
  EXPECT_EQ(stored(u"Pozadina"), NumberToText(chosen, {}));
  EXPECT_EQ(stored(u"Grid"), u"-2147483638");
  EXPECT_EQ(stored(u"Grafik"), u"16711680");
}

TEST_F(ColorsTest, AGridThatCantBeDrawnLeavesTheWindowAtWork) {
  form().PixelsPerUnit = Variant{u"abc"};
  program.desk.answer(chosen);
  EXPECT_TRUE(program.bench.enter([&] { form().choose_color(grid); }));
  EXPECT_FALSE(form().Drawing);
  EXPECT_EQ(form().GridColor, chosen);
}

}  // namespace
}  // namespace tarnmill
