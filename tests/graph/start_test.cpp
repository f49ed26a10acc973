#include <fstream>

#include "forms/desk.h"
#include "forms/settings_store.h"
#include "graph/function_names.h"
#include "graph_fixture.h"
#include "shell/registry.h"

namespace tarnmill {
namespace {

class StartTest : public GraphTest {
 protected:
  void store_color(TextView name, TextView value) {
    SaveRegistrySetting(program.desk.settings(), u"Software", u"Tarnmill", u"Boje", name, value);
  }
};

TEST_F(StartTest, TheStateIsThatOfAFreshWindow) {
  const frmFunc& fresh = form();
  EXPECT_EQ(fresh.PixelsPerUnit.read().to_text({}), u"20");
  EXPECT_EQ(fresh.OriginX, 200);
  EXPECT_EQ(fresh.OriginY, 200);
  EXPECT_EQ(fresh.GridColor, static_cast<Color>(0x8000000A));
  EXPECT_EQ(fresh.AxisColor, 0);
  EXPECT_EQ(fresh.CurveColor, 0xFF0000);
  EXPECT_FALSE(fresh.Drawing);
  EXPECT_FALSE(fresh.GraphDrawn);
  EXPECT_EQ(fresh.ExpressionY.get(), u"");
  EXPECT_EQ(fresh.ExpressionX.get(), u"");
  EXPECT_TRUE(fresh.TangentX->is_empty());
  EXPECT_EQ(fresh.TextSW, 0);
  EXPECT_EQ(fresh.Caption.get(), u"Graph Mode ");
  EXPECT_EQ(fresh.lblcap.Caption.get(), u"Graph Mode");
  EXPECT_EQ(fresh.Width, 8595);
  EXPECT_EQ(fresh.Height, 7425);
  EXPECT_FALSE(fresh.lblPerCent.Visible);
}

TEST_F(StartTest, TheFieldsAreLockedAndReadAsInTheLayout) {
  const frmFunc& fresh = form();
  EXPECT_TRUE(fresh.txtY.Locked);
  EXPECT_TRUE(fresh.txtX.Locked);
  EXPECT_EQ(fresh.txtY.Text.get(), u"");
  EXPECT_EQ(fresh.txtX.Text.get(), u"K");
  EXPECT_EQ(fresh.txtYs.Text.get(), u"");
  EXPECT_EQ(fresh.txtY2.Text.get(), u"");
  EXPECT_EQ(fresh.txtY3.Text.get(), u"1");
  EXPECT_EQ(fresh.txtImenilac.Text.get(), u"1");
  EXPECT_EQ(fresh.lblxy.Caption.get(), u"Y");
  EXPECT_EQ(fresh.lblstepen.Caption.get(), u"");
  EXPECT_EQ(fresh.lblZagrada.Caption.get(), u"");
  EXPECT_EQ(fresh.lblImenilac.Caption.get(), u"");
  EXPECT_EQ(fresh.lblY3.Caption.get(), u"OK");
  EXPECT_EQ(fresh.lblzm.Caption.get(), u"20");
  EXPECT_TRUE(fresh.optAlign(0).Value);
  EXPECT_FALSE(fresh.optAlign(1).Value);
}

TEST_F(StartTest, TheFieldsAndTheReadoutAreAsGreenAsThePlot) {
  const Color green = rgb(157, 188, 148);
  EXPECT_EQ(form().pDraw.BackColor, green);
  EXPECT_EQ(form().txtY.BackColor, green);
  EXPECT_EQ(form().txtX.BackColor, green);
  EXPECT_EQ(form().LblChart.BackColor, green);
}

TEST_F(StartTest, TheSwatchesHoldTheDefaultColours) {
  EXPECT_EQ(form().lblBoja.BackColor, 0xFF0000);
  EXPECT_EQ(form().lblBoja2.BackColor, rgb(241, 82, 35));
  EXPECT_EQ(form().lblgrid.BackColor, static_cast<Color>(0x8000000A));
  EXPECT_EQ(form().lblosa.BackColor, 0);
}

TEST_F(StartTest, StoredColoursGoIntoTheStateAndNotIntoTheSwatches) {
  store_color(u"Pozadina", u"1");
  store_color(u"Grafik", u"2");
  store_color(u"Grid", u"-2147483647");
  store_color(u"Ose", u"4");
  EXPECT_EQ(form().pDraw.BackColor, 1);
  EXPECT_EQ(form().CurveColor, 2);
  EXPECT_EQ(form().GridColor, -2147483647);
  EXPECT_EQ(form().AxisColor, 4);
  EXPECT_EQ(form().lblBoja.BackColor, 0xFF0000);
  EXPECT_EQ(form().lblgrid.BackColor, static_cast<Color>(0x8000000A));
  EXPECT_EQ(form().lblosa.BackColor, 0);
}

TEST_F(StartTest, AStoredTextThatIsNoColourCountsAsAbsent) {
  store_color(u"Pozadina", u"green");
  store_color(u"Grafik", u"99999999999");
  store_color(u"Grid", u"");
  EXPECT_EQ(form().pDraw.BackColor, 9747613);
  EXPECT_EQ(form().CurveColor, 0xFF0000);
  EXPECT_EQ(form().GridColor, static_cast<Color>(0x8000000A));
}

TEST_F(StartTest, AColourStoredAsANumberIsRead) {
  program.desk.settings().write(u"Software\\Tarnmill\\Boje", u"Ose", std::int32_t{255});
  EXPECT_EQ(form().AxisColor, 255);
}

TEST_F(StartTest, TheFunctionListOffersItsNamesInOrder) {
  const std::vector<Text> expected{
      u"Stef",      u"Exp",       u"Ln",       u"Log",      u"Sqr",     u"Cbr",     u"Qvr",     u"Pbr",
      u"Cub",       u"Bin",       u"Qvd",      u"Pnt",      u"Nil",     u"Sin",     u"Cos",     u"Tan",
      u"Cotan",     u"Atn",       u"Abs",      u"Fix",      u"Rnd",     u"Sgn",     u"Int",     u"Arcsin",
      u"Arccos",    u"Arcsec",    u"Arccosec", u"Arccotan", u"Sec",     u"Cosec",   u"HSin",    u"HCos",
      u"HTan",      u"HSec",      u"HCosec",   u"HCotan",   u"HArcsin", u"HArccos", u"HArctan", u"HArcsec",
      u"HArccosec", u"HArccotan", u"Pi(1)",    u"e(1)"};
  EXPECT_EQ(form().C1.items(), expected);
  EXPECT_EQ(form().C1.Text.get(), u"Functions");
}

struct Words {
  const char* name;
  int index;
  const char16_t* caption;
  const char16_t* tooltip;
};

class WordsTest : public GraphTest, public testing::WithParamInterface<Words> {};

TEST_P(WordsTest, ControlsCarryTheirCaptionAndTooltip) {
  const Control* control = form().find_control(GetParam().name, GetParam().index);
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(control->find_property("Caption")->read().to_text({}), GetParam().caption);
  EXPECT_EQ(control->ToolTipText.get(), GetParam().tooltip);
}

INSTANTIATE_TEST_SUITE_P(Keypad, WordsTest,
                         testing::Values(Words{"cmdSymbol", 0, u"0", u""}, Words{"cmdSymbol", 1, u"1", u""},
                                         Words{"cmdSymbol", 2, u"2", u""}, Words{"cmdSymbol", 3, u"3", u""},
                                         Words{"cmdSymbol", 4, u"4", u""}, Words{"cmdSymbol", 5, u"5", u""},
                                         Words{"cmdSymbol", 6, u"6", u""}, Words{"cmdSymbol", 7, u"7", u""},
                                         Words{"cmdSymbol", 8, u"8", u""}, Words{"cmdSymbol", 9, u"9", u""},
                                         Words{"cmdSymbol", 10, u"K", u" Insert K  (Key K) "},
                                         Words{"cmdSymbol", 11, u"+", u""}, Words{"cmdSymbol", 12, u"-", u""},
                                         Words{"cmdSymbol", 13, u"*", u""}, Words{"cmdSymbol", 14, u"/", u""},
                                         Words{"cmdSymbol", 15, u"(", u" Key J "},
                                         Words{"cmdSymbol", 16, u".", u""},
                                         Words{"cmdSymbol", 17, u")", u" Key L "}));

INSTANTIATE_TEST_SUITE_P(
    Commands, WordsTest,
    testing::Values(
        Words{"optAlign", 0, u" Enter Y ", u""}, Words{"optAlign", 1, u" Enter X  ", u""},
        Words{"cmdStepen", -1, u"^", u" Power (Key P) "},
        Words{"cmdbrisi", -1, u"", u" Clear current field (Delete) "},
        Words{"cmdDraw", -1, u"Draw", u" Draw Graph (Enter) "},
        Words{"cmdtangenta", -1, u"", u" Draw Tangent (Key T) "},
        Words{"cmdClear", -1, u"", u" Clear/Grid Plotting Area "},
        Words{"cmdZoom", -1, u"", u" Zoom Plotting Area "}, Words{"Command1", -1, u"", u" Function Analyze "},
        Words{"Command2", -1, u"", u" Function Analize "}, Words{"Command3", -1, u"", u" Insert Label "},
        Words{"Command4", -1, u"", u" Change Colors "}, Words{"Command5", -1, u"", u" Print "},
        Words{"Command6", -1, u"", u" Save Graph As "}, Words{"cmdDrawCage", -1, u"&Grid", u" Show Grid "},
        Words{"cmdEval", -1, u"", u" Evaluate function Y(x) "},
        Words{"cmdrad", -1, u"", u" Convert Deg to Rad "}, Words{"Label1", -1, u"File", u""},
        Words{"Label4", -1, u"Edit", u""}, Words{"Label5", -1, u"Examples", u""},
        Words{"Label6", -1, u"Help", u""}));

TEST_F(StartTest, AMissingHistoryIsMadeEmpty) {
  form();
  EXPECT_EQ(history(), u"");
  EXPECT_EQ(form().rtb.Text.read().to_text({}), u"");
}

TEST_F(StartTest, TheHistoryOfEarlierRunsIsLoaded) {
  write_text_file(program.folder() / "GraphLog.txt", u"\r\n Y = K\r\n");
  EXPECT_EQ(form().rtb.Text.read().to_text({}), u"\r\n Y = K\r\n");
}

TEST_F(StartTest, AHistoryThatCantBeReadLoadsEmpty) {
  std::filesystem::create_directory(program.folder() / "GraphLog.txt");
  EXPECT_TRUE(program.bench.enter([&] { form().Show(); }));
  EXPECT_EQ(form().rtb.Text.read().to_text({}), u"");
}

}  // namespace
}  // namespace tarnmill
