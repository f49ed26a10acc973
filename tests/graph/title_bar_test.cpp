#include <algorithm>

#include "desktop/qt_desk.h"
#include "graph_fixture.h"

namespace tarnmill {
namespace {

using TitleBarTest = GraphTest;

TEST_F(TitleBarTest, PressAndReleaseSwapThePictures) {
  for (const auto& [image, normal] :
       {std::pair{&form().immini, u"minimise"}, {&form().imclose, u"close"}, {&form().imhelp, u"help"}}) {
    EXPECT_EQ(image->Picture.get(), normal);
    image->MouseDown.raise(1, 0, 5, 5);
    EXPECT_EQ(image->Picture.get(), Text{normal} + u"-pressed");
    image->MouseUp.raise(1, 0, 5, 5);
    EXPECT_EQ(image->Picture.get(), normal);
  }
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(TitleBarTest, TheMinimiseImageMinimises) {
  form().immini.press();
  EXPECT_EQ(form().WindowState, 1);
}

TEST_F(TitleBarTest, TheCloseImageEndsTheProgramWithoutAQuestion) {
  EXPECT_FALSE(program.bench.enter([&] { form().imclose.press(); }));
  EXPECT_TRUE(program.bench.ended());
  EXPECT_FALSE(program.bench.fault());
  EXPECT_TRUE(program.desk.dialogs().empty());
}

TEST_F(TitleBarTest, ClosingTheWindowEndsTheProgram) {
  form().Show();
  EXPECT_FALSE(program.bench.enter([&] { form().close(); }));
  EXPECT_TRUE(program.bench.ended());
}

TEST_F(TitleBarTest, UnloadingTheWindowEndsTheProgram) {
  EXPECT_FALSE(program.bench.enter([&] { form().Unload(); }));
  EXPECT_TRUE(program.bench.ended());
}

TEST_F(TitleBarTest, TheHelpImageSendsTheHelpKeyToTheFocus) {
  int sent = 0;
  form().cmdZoom.KeyDown.handle([&](int& code, int shift) { sent = code + 1000 * shift; });
  form().cmdZoom.SetFocus();
  form().imhelp.press();
  EXPECT_EQ(sent, 112);
}

struct MenuPlace {
  Label frmFunc::*label;
  const char* menu;
};

class MenuBarTest : public GraphTest, public testing::WithParamInterface<MenuPlace> {};

TEST_P(MenuBarTest, ALabelPopsUpItsMenu) {
  (form().*GetParam().label).press();
  ASSERT_NE(form().popup_shown(), nullptr);
  EXPECT_EQ(form().popup_shown()->name(), GetParam().menu);
  const std::vector<Control*>& owned = menus().controls();
  EXPECT_NE(std::find(owned.begin(), owned.end(), form().popup_shown()), owned.end());
}

INSTANTIATE_TEST_SUITE_P(Labels, MenuBarTest,
                         testing::Values(MenuPlace{&frmFunc::Label1, "mnufile"},
                                         MenuPlace{&frmFunc::Label4, "mnuEdit"},
                                         MenuPlace{&frmFunc::Label5, "mnuExamples"},
                                         MenuPlace{&frmFunc::Label6, "mnuHelp"}));

/// Writes down where menus open and which windows are dragged.
class WatchingDesk final : public QtDesk {
 public:
  using QtDesk::QtDesk;
  MenuItem* popup(Window& /*window*/, MenuItem& menu, std::optional<std::pair<int, int>> at) override {
    notes.push_back(std::string{menu.name()} + " " + std::to_string(at->first) + " " +
                    std::to_string(at->second));
    return nullptr;
  }
  void start_move(Window& window) override { notes.push_back("move " + std::string{window.name()}); }

  std::vector<std::string> notes;
};

class WatchedTitleBar : public testing::Test {
 protected:
  WatchedTitleBar() {
    bench.add_window("frmFunc", [](Workbench& owner) { return std::make_unique<frmFunc>(owner); });
    bench.add_window("frmZoom", [](Workbench& owner) { return std::make_unique<frmZoom>(owner); });
  }

  TemporaryFolder folder;
  WatchingDesk desk{folder.path(), Views::on_demand};
  Workbench bench{desk};
};

TEST_F(WatchedTitleBar, MenusOpenBelowTheirLabels) {
  auto& form = bench.window<frmFunc>();
  for (Label* label : {&form.Label1, &form.Label4, &form.Label5, &form.Label6}) label->press();
  EXPECT_EQ(desk.notes, (std::vector<std::string>{"mnufile 11 30", "mnuEdit 33 30", "mnuExamples 57 30",
                                                  "mnuHelp 108 30"}));
}

TEST_F(WatchedTitleBar, TheLeftButtonOnTheCaptionDragsTheWindow) {
  auto& form = bench.window<frmFunc>();
  form.lblcap.MouseDown.raise(2, 0, 1, 1);
  EXPECT_TRUE(desk.notes.empty());
  form.lblcap.MouseDown.raise(1, 0, 1, 1);
  EXPECT_EQ(desk.notes, std::vector<std::string>{"move frmFunc"});
}

TEST_F(TitleBarTest, TheSizeIsNotTheUsersToChange) {
  form().Width = 100;
  EXPECT_EQ(form().Width, 8595);
  form().Height = 20000;
  EXPECT_EQ(form().Height, 7425);
}

TEST_F(TitleBarTest, AMinimisedWindowIsLeftAsItIs) {
  form().WindowState = 1;
  form().Width = 100;
  EXPECT_EQ(form().Width, 100);
  form().WindowState = 0;
  EXPECT_EQ(form().Width, 8595);
}

}  // namespace
}  // namespace tarnmill
