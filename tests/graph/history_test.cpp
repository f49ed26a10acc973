#include "forms/desk.h"
#include "graph_fixture.h"

namespace tarnmill {
namespace {

using HistoryTest = GraphTest;

Text shown(frmFunc& form) { return form.rtb.Text.read().to_text({}); }

TEST_F(HistoryTest, APlotAppendsFourLines) {
  plot(u"K");
  EXPECT_EQ(history(), u"\r\n Y = K\r\n X = K\r\n __________________\r\n");
  EXPECT_EQ(shown(form()), history());
}

TEST_F(HistoryTest, ExpressionsStandAsTheyAreShown) {
  plot(u"K^2", u"3*cosK+3");
  EXPECT_EQ(history(), u"\r\n Y = K^2\r\n X = 3*cosK+3\r\n __________________\r\n");
}

TEST_F(HistoryTest, ItGrowsOverARestart) {
  plot(u"K");
  program.restart();
  EXPECT_EQ(shown(form()), u"\r\n Y = K\r\n X = K\r\n __________________\r\n");
  plot(u"2*K");
  EXPECT_EQ(history(),
            u"\r\n Y = K\r\n X = K\r\n __________________\r\n"
            u"\r\n Y = 2*K\r\n X = K\r\n __________________\r\n");
}

TEST_F(HistoryTest, AFileThatCantBeWrittenCostsTheHistoryAlone) {
  plot(u"K");
  const Text before = shown(form());
  std::filesystem::remove(program.folder() / "GraphLog.txt");
  std::filesystem::create_directory(program.folder() / "GraphLog.txt");
  EXPECT_FALSE(plot(u"2*K").empty());
  EXPECT_TRUE(form().GraphDrawn);
  EXPECT_EQ(form().Caption.get(), u"Graph Mode  Y = 2*K for X = K");
  EXPECT_EQ(menus().mnuRecent(1).Caption.get(), u"2*K");
  EXPECT_EQ(shown(form()), before);
  EXPECT_TRUE(program.desk.dialogs().empty());
}

TEST_F(HistoryTest, ClearingAsksFirst) {
  plot(u"K");
  program.desk.answer(MessageResult::no);
  menus().mnuclhistory.press();
  const DialogShown box = only_dialog();
  EXPECT_EQ(box.text, u"Clear Function History?");
  EXPECT_EQ(box.title, u"Tarnmill");
  EXPECT_EQ(box.icon, MessageIcon::exclamation);
  EXPECT_EQ(box.buttons, MessageButtons::yes_no);
  EXPECT_EQ(box.default_button, 2);
  EXPECT_NE(history(), u"");
  EXPECT_NE(shown(form()), u"");
}

TEST_F(HistoryTest, ClearingEmptiesTheFile) {
  plot(u"K");
  program.desk.answer(MessageResult::yes);
  menus().mnuclhistory.press();
  EXPECT_EQ(history(), u"");
  EXPECT_EQ(shown(form()), u"");
}

TEST_F(HistoryTest, AFileThatCantBeClearedCostsNothingElse) {
  form();
  std::filesystem::remove(program.folder() / "GraphLog.txt");
  std::filesystem::create_directory(program.folder() / "GraphLog.txt");
  program.desk.answer(MessageResult::yes);
  EXPECT_TRUE(program.bench.enter([&] { menus().mnuclhistory.press(); }));
}

TEST_F(HistoryTest, ARecentEntryComesBackWithAllItsFieldsAndIsPlotted) {
  key_in(u"K^(1/3)");
  form().plot();
  plot(u"3*sinK", u"3*cosK");
  ASSERT_EQ(menus().mnuRecent(2).Caption.get(), u"K^(1/3)");
  form().txtY3.Text = u"x";
  form().lblY3.Caption = u"x";
  const auto drawn = lines([&] { menus().mnuRecent(2).press(); });
  EXPECT_FALSE(drawn.empty());
  EXPECT_EQ(form().txtY.Text.get(), u"K^(1/3)");
  EXPECT_EQ(form().txtYs.Text.get(), u"CbrK");
  EXPECT_EQ(form().txtX.Text.get(), u"K");
  EXPECT_EQ(form().txtY2.Text.get(), u"K^(1/3");
  EXPECT_EQ(form().txtY3.Text.get(), u"K^(1/3");
  EXPECT_EQ(form().txtImenilac.Text.get(), u"K^(1");
  EXPECT_EQ(form().lblY3.Caption.get(), u"OK");
  EXPECT_EQ(menus().mnuRecent(1).Caption.get(), u"K^(1/3)") << "plotting put it in front again";
  EXPECT_EQ(menus().mnuRecent(3).Caption.get(), u"K^(1/3)");
}

TEST_F(HistoryTest, RecentEntriesSurviveARestart) {
  plot(u"K");
  plot(u"2*K", u"Y");
  program.restart();
  form();
  EXPECT_EQ(menus().mnuRecent(1).Caption.get(), u"2*K");
  EXPECT_EQ(menus().mnuRecentX(1).Caption.get(), u"Y");
  EXPECT_EQ(menus().mnuRecent(2).Caption.get(), u"K");
  EXPECT_EQ(menus().mnuOK(2).Caption.get(), u"OK");
  EXPECT_TRUE(menus().mnuRecent(2).Visible);
  EXPECT_FALSE(menus().mnuRecent(3).Visible);
  EXPECT_TRUE(menus().mnuSeparator2.Visible);
}

}  // namespace
}  // namespace tarnmill
