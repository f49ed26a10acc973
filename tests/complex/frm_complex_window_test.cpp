#include <gtest/gtest.h>

#include "complex/frm_complex.h"
#include "complex/frm_menu.h"
#include "shell/help_menus.h"
#include "support/watched_program.h"

namespace tarnmill {
namespace {

using Names = std::vector<std::string>;

class FrmComplexWindow : public ::testing::Test {
 protected:
  FrmComplexWindow() {
    program.add<frmComplex>();
    program.add<frmmenu>();
    program.add<Help>();
    for (const char* name : {"Form1", "frmTast", "frmFunc", "MathPad"}) program.add_empty(name);
    bench.enter([this] { form().Show(); });
  }

  frmComplex& form() { return program.window<frmComplex>(); }

  WatchedProgram program;
  Workbench& bench = program.bench;
  WatchedDesk& desk = program.desk;
};

struct EntryRow {
  MenuItem frmmenu::*entry;
  const char* name;
  const char* caption;
};

TEST_F(FrmComplexWindow, TheMenusOfItsKeysHaveTheirEntries) {
  const auto& owner = program.window<frmmenu>();
  const std::pair<const MenuItem*, std::vector<EntryRow>> menus[] = {
      {&owner.mnumenu,
       {{&frmmenu::mnur1, "mnur1", "Replace Complex (A+iB) with the Result"},
        {&frmmenu::mnur2, "mnur2", "Replace Complex (C+iD) with the Result"},
        {&frmmenu::mnuswap, "mnuswap", "Swap (A+iB) and (C+iD)"}}},
      {&owner.mnulog,
       {{&frmmenu::mnulog1, "mnulog1", "Log (A + iB) to the base e"},
        {&frmmenu::mnulog2, "mnulog2", "Log (A+iB) to the base (C+iD)"}}},
      {&owner.mnumemR,
       {{&frmmenu::mnuasA, "mnuasA", "As (A+iB)"}, {&frmmenu::mnuasC, "mnuasC", "As (C+iD)"}}},
      {&owner.mnuraddeg,
       {{&frmmenu::mnugrad, "mnugrad", "Get Argument in Rad"},
        {&frmmenu::mnugdeg, "mnugdeg", "Get Argument in Deg"}}},
  };
  for (const auto& [menu, rows] : menus) {
    ASSERT_EQ(menu->children().size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_EQ(menu->children()[i], &(owner.*rows[i].entry));
      EXPECT_EQ(menu->children()[i]->name(), rows[i].name);
      EXPECT_EQ(to_utf8(menu->children()[i]->Caption.get()), rows[i].caption);
    }
  }
  EXPECT_EQ(to_utf8(owner.mnumenu.Caption.get()), "Menu");
  EXPECT_EQ(to_utf8(owner.mnulog.Caption.get()), "log");
  EXPECT_EQ(to_utf8(owner.mnumemR.Caption.get()), "Memorija");
  EXPECT_EQ(to_utf8(owner.mnuraddeg.Caption.get()), "Arg");
}

TEST_F(FrmComplexWindow, ALeftPressOnAMenuKeyOpensItsMenuAndGivesTheFocusBack) {
  const std::pair<Button*, const char*> rows[] = {{&form().cmdconv, "frmComplex mnumenu"},
                                                  {&form().cmdlog, "frmComplex mnulog"},
                                                  {&form().cmdMemory2, "frmComplex mnumemR"},
                                                  {&form().Command1, "frmComplex mnuraddeg"}};
  form().cmdb.press();
  for (const auto& [key, popup] : rows) {
    desk.popups.clear();
    key->SetFocus();
    key->MouseDown.raise(2, 0, 1, 1);
    EXPECT_EQ(desk.popups, Names{});
    key->MouseDown.raise(1, 0, 1, 1);
    EXPECT_EQ(desk.popups, Names{popup});
    EXPECT_EQ(bench.focus(), &form().txtCb);
  }
}

struct ModeRow {
  Image frmComplex::*key;
  Image frmComplex::*normal;
  Image frmComplex::*pressed;
  const char* window;
};

constexpr ModeRow mode_keys[] = {
    {&frmComplex::Image11, &frmComplex::im1a, &frmComplex::im1ad, "Form1"},
    {&frmComplex::imev, &frmComplex::im1ev, &frmComplex::im1evd, "frmTast"},
    {&frmComplex::img, &frmComplex::im1g, &frmComplex::im1gd, "frmFunc"},
};

TEST_F(FrmComplexWindow, AModeKeyUnloadsItAndShowsTheMode) {
  for (const ModeRow& row : mode_keys) {
    bench.enter([&] {
      form().Show();
      form().txtCa.Text = u"5";
    });
    bench.enter([&] { (form().*row.key).press(); });
    EXPECT_EQ(bench.find_window("frmComplex"), nullptr) << row.window;
    EXPECT_TRUE(program.shows(row.window)) << row.window;
    EXPECT_FALSE(bench.ended());
    EXPECT_EQ(to_utf8(form().txtCa.Text.get()), "0.");
    bench.window(row.window).Hide();
  }
}

TEST_F(FrmComplexWindow, LeftByItsPopupItKeepsItsOperands) {
  for (const char* entry : {"muadv3", "mnugraph3", "mnueval1"}) {
    bench.enter([&] {
      form().Show();
      form().txtCa.Text = u"5";
    });
    desk.picks = entry;
    bench.enter([this] { form().MouseDown.raise(2, 0, 1, 1); });
    EXPECT_FALSE(program.shows("frmComplex")) << entry;
    EXPECT_EQ(to_utf8(form().txtCa.Text.get()), "5") << entry;
  }
}

TEST_F(FrmComplexWindow, AModeKeyShowsItsPressedPictureWhileItIsDown) {
  for (const ModeRow& row : mode_keys) {
    Image& key = form().*row.key;
    const Text normal = (form().*row.normal).Picture;
    EXPECT_NE(normal, (form().*row.pressed).Picture.get());
    EXPECT_EQ(key.Picture.get(), normal);
    key.MouseDown.raise(1, 0, 5, 5);
    EXPECT_EQ(key.Picture.get(), (form().*row.pressed).Picture.get());
    key.MouseUp.raise(1, 0, 5, 5);
    EXPECT_EQ(key.Picture.get(), normal);
  }
}

TEST_F(FrmComplexWindow, PointerMovementReleasesAModeKeyThatLostTheMouse) {
  Event<int, int, float, float>* movements[] = {&form().MouseMove, &form().pi.MouseMove,
                                                &form().cmdconv.MouseMove, &form().cmdExit.MouseMove};
  for (auto* movement : movements) {
    for (const ModeRow& row : mode_keys) (form().*row.key).MouseDown.raise(1, 0, 5, 5);
    movement->raise(0, 0, 9, 9);
    for (const ModeRow& row : mode_keys) {
      EXPECT_EQ((form().*row.key).Picture.get(), (form().*row.normal).Picture.get());
    }
  }
}

TEST_F(FrmComplexWindow, APressOnTheBodyMovesItOrPopsUpItsMenu) {
  form().MouseDown.raise(1, 0, 100, 100);
  EXPECT_EQ(desk.moved, Names{"frmComplex"});
  EXPECT_EQ(desk.popups, Names{});
  form().MouseDown.raise(2, 0, 100, 100);
  EXPECT_EQ(desk.moved, Names{"frmComplex"});
  EXPECT_EQ(desk.popups, Names{"frmComplex mnuhelpcomplex"});
}

TEST_F(FrmComplexWindow, ExitEndsTheProgramEvenWhileTheGraphShows) {
  bench.window("frmFunc").Show();
  bench.enter([this] { form().cmdExit.press(); });
  EXPECT_TRUE(bench.ended());
  EXPECT_EQ(bench.fault(), std::nullopt);
}

}  // namespace
}  // namespace tarnmill
