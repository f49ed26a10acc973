#include <algorithm>

#include "graph_fixture.h"
#include "keypad/frm_tast.h"
#include "table/frm_tabela.h"

namespace tarnmill {
namespace {

struct Entry {
  const char* parent;  // empty for a menu of its own
  const char* name;
  const char16_t* caption;
};

class MenusTest : public GraphTest {
 protected:
  [[nodiscard]] MenuItem* item(std::string_view name) {
    return dynamic_cast<MenuItem*>(menus().find_control(name));
  }
};

class EntryTest : public MenusTest, public testing::WithParamInterface<Entry> {};

TEST_P(EntryTest, StandsInItsMenuUnderItsCaption) {
  const MenuItem* entry = item(GetParam().name);
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->Caption.get(), GetParam().caption);
  EXPECT_FALSE(entry->Visible && entry->is_separator());
  const std::string_view parent = GetParam().parent;
  if (parent.empty()) return;
  const auto& children = item(parent)->children();
  EXPECT_EQ(std::count(children.begin(), children.end(), entry), 1);
}

INSTANTIATE_TEST_SUITE_P(
    File, EntryTest,
    testing::Values(
        Entry{"", "mnufile", u"File"}, Entry{"mnufile", "mnupad", u"MathPad"},
        Entry{"mnufile", "mnuadv", u"Advanced Mode"}, Entry{"mnuadv", "mniopwith", u"Open With"},
        Entry{"mnuadv", "mnuopenonly", u"Open Only"}, Entry{"mnufile", "mnucomp", u"Complex Mode"},
        Entry{"mnufile", "mnueval23", u"Evaluator"}, Entry{"mnufile", "mnytable", u"Value Table"},
        Entry{"mnufile", "mnusavbmp", u"Save Graph As"}, Entry{"mnufile", "mnustampaj", u"Print"},
        Entry{"mnustampaj", "mnuprint", u"Print Graph"},
        Entry{"mnustampaj", "mnuprnthistory", u"Print Graph History"},
        Entry{"mnustampaj", "mnuprset", u"Print Setup..."}, Entry{"mnufile", "mnufanal", u"Function Analyze"},
        Entry{"mnufile", "muiida", u"Integral/Derivative/Average"}, Entry{"mnufile", "mnuexit", u"Exit"},
        Entry{"mnufile", "mnuskoro", u"Recent"}, Entry{"mnuskoro", "mnuSeparator2", u"-"}));

INSTANTIATE_TEST_SUITE_P(
    Edit, EntryTest,
    testing::Values(Entry{"", "mnuEdit", u"Edit"}, Entry{"mnuEdit", "ChCol", u"Change Colors"},
                    Entry{"ChCol", "mnuback", u"Background..."}, Entry{"ChCol", "colour1", u"Grid..."},
                    Entry{"ChCol", "colour2", u"Axes..."}, Entry{"ChCol", "colour3", u"Graph..."},
                    Entry{"ChCol", "mnuglavno", u"Default"},
                    Entry{"mnuEdit", "mnucwg", u"Clear without Grid"},
                    Entry{"mnuEdit", "mnuredgrid", u"Redraw Grid"},
                    Entry{"mnuEdit", "mnuclhistory", u"Clear History"}, Entry{"mnuEdit", "mnuzoom1", u"Zoom"},
                    Entry{"mnuzoom1", "mnuzoomin", u"Zoom In"}, Entry{"mnuzoom1", "mnuzoomout", u"Zoom Out"},
                    Entry{"mnuzoom1", "mnudef", u"Default"}, Entry{"mnuzoom1", "mnufinzoom", u"Fine Zooming"},
                    Entry{"mnuEdit", "mnuinsl", u"Insert Label"}));

INSTANTIATE_TEST_SUITE_P(
    Others, EntryTest,
    testing::Values(Entry{"", "mnuExamples", u"Examples"}, Entry{"", "mnuHelp", u"Help"},
                    Entry{"mnuHelp", "mnuhelpt", u"Contents..."}, Entry{"mnuHelp", "mnuonline", u"Online"},
                    Entry{"", "mnuzoom", u"Zoom"}, Entry{"mnuzoom", "mnuzin2", u"Zoom In"},
                    Entry{"mnuzoom", "mnuzout2", u"Zoom Out"}, Entry{"mnuzoom", "mnudef2", u"Default"},
                    Entry{"mnuzoom", "mnifinezoom2", u"Fine Zooming"}, Entry{"", "mnucopy", u"Copy"},
                    Entry{"mnucopy", "mhucopy1", u"Copy Result for Integral or Average"},
                    Entry{"mnucopy", "mnucopy2", u"Copy Result for Derivative"},
                    Entry{"", "mnuPastetest", u"Paste"},
                    Entry{"mnuPastetest", "mnupasteex", u"Paste expression"},
                    Entry{"mnuPastetest", "mnupastearg", u"Paste argument's value"},
                    Entry{"", "mnulabel", u"Label"}, Entry{"mnulabel", "mnudalabel", u"Insert Label"},
                    Entry{"mnulabel", "mnunelabel", u"Delete Label"}));

TEST_F(MenusTest, TheRecentEntriesStandHiddenInTheirMenu) {
  const auto& children = menus().mnuskoro.children();
  ASSERT_EQ(children.size(), 6U);
  for (const MenuItem* each : children) EXPECT_FALSE(each->Visible);
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(children[static_cast<std::size_t>(i)], &menus().mnuRecent(i));
}

TEST_F(MenusTest, DefaultIsCheckedInBothZoomMenus) {
  for (const char* name : {"mnuzoomin", "mnuzoomout", "mnufinzoom", "mnuzin2", "mnuzout2", "mnifinezoom2"}) {
    EXPECT_FALSE(item(name)->Checked) << name;
  }
  EXPECT_TRUE(menus().mnudef.Checked);
  EXPECT_TRUE(menus().mnudef2.Checked);
}

TEST_F(MenusTest, TheWindowNeverShows) {
  form().Label1.press();
  EXPECT_FALSE(menus().Visible);
}

TEST_F(MenusTest, OpenWithShowsTheCalculatorBeside) {
  program.bench.window("Form1").Hide();
  form().Show();
  menus().mniopwith.press();
  EXPECT_TRUE(program.bench.is_visible("Form1"));
  EXPECT_TRUE(form().Visible);
}

TEST_F(MenusTest, OpenOnlyHidesTheGraph) {
  program.bench.window("Form1").Hide();
  form().Show();
  menus().mnuopenonly.press();
  EXPECT_TRUE(program.bench.is_visible("Form1"));
  EXPECT_FALSE(form().Visible);
}

TEST_F(MenusTest, ComplexModeIsAskedForFirst) {
  form().Show();
  menus().mnucomp.press();
  expect_message(u"This will close Graph Mode. Continue?", MessageIcon::question, u"Tarnmill",
                 MessageButtons::ok_cancel);
  EXPECT_TRUE(form().Visible);
  EXPECT_FALSE(program.bench.is_visible("frmComplex"));
  program.desk.answer(MessageResult::ok);
  menus().mnucomp.press();
  EXPECT_FALSE(form().Visible);
  EXPECT_TRUE(program.bench.is_visible("frmComplex"));
}

TEST_F(MenusTest, TheValueTableTakesTheFunctionAlong) {
  form().txtY.Text = u"K^2";
  menus().mnytable.press();
  EXPECT_TRUE(program.bench.is_visible("frmTabela"));
  EXPECT_EQ(program.window<frmTabela>().Text1.Text.get(), u"K^2");
}

TEST_F(MenusTest, TheCalculusWindowOpens) {
  menus().muiida.press();
  EXPECT_TRUE(program.bench.is_visible("frmIntegral"));
}

TEST_F(MenusTest, OnlineOpensThePageOfTheProduct) {
  menus().mnuonline.press();
  EXPECT_EQ(program.desk.opened(), std::vector<Text>{u"https://tarnmill.example/"});
}

TEST_F(MenusTest, PastePutsTheClipboardIntoTheSelection) {
  auto& keypad = program.window<frmTast>();
  program.desk.set_clipboard_text(u"12");
  for (TextBox* field : {&keypad.Text1, &keypad.Text2}) {
    field->Text = u"abc";
    field->select(1, 1);
    (field == &keypad.Text1 ? menus().mnupasteex : menus().mnupastearg).press();
    EXPECT_EQ(field->Text.get(), u"a12c");
    EXPECT_EQ(program.bench.focus(), field);
  }
}

TEST_F(MenusTest, ExitEndsTheProgram) {
  EXPECT_FALSE(program.bench.enter([&] { menus().mnuexit.press(); }));
  EXPECT_TRUE(program.bench.ended());
}

struct Opener {
  const char* window;
  const char* control;  // of frmFunc, or of frmZoom where frmFunc has none
};

class OpenerTest : public MenusTest, public testing::WithParamInterface<Opener> {
 protected:
  class Opened final : public Window {
   public:
    Opened(Workbench& bench, std::string_view name) : Window{bench, name} {}
  };
};

TEST_P(OpenerTest, ShowsItsWindow) {
  const std::string_view name = GetParam().window;
  program.bench.add_window(name, [name](Workbench& owner) { return std::make_unique<Opened>(owner, name); });
  Control* opener = form().find_control(GetParam().control);
  if (opener == nullptr) opener = menus().find_control(GetParam().control);
  opener->press();
  EXPECT_TRUE(program.bench.is_visible(name));
}

INSTANTIATE_TEST_SUITE_P(Windows, OpenerTest,
                         testing::Values(Opener{"frmAnaliza", "Command1"}, Opener{"frmAnaliza", "mnufanal"},
                                         Opener{"frmTast", "Command2"}, Opener{"frmTast", "mnueval23"},
                                         Opener{"MathPad", "mnupad"}));

}  // namespace
}  // namespace tarnmill
