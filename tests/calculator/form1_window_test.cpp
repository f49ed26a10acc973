#include <gtest/gtest.h>

#include "calculator/form1.h"
#include "shell/help_menus.h"
#include "support/watched_program.h"

namespace tarnmill {
namespace {

using Names = std::vector<std::string>;

class Form1Window : public ::testing::Test {
 protected:
  Form1Window() {
    program.add<Form1>();
    program.add<Help>();
    for (const char* name : {"frmComplex", "frmTast", "frmFunc"}) program.add_empty(name);
  }

  Form1& form() { return program.window<Form1>(); }
  void show() {
    bench.enter([this] { form().Show(); });
  }
  void press(Control& key) {
    bench.enter([&key] { key.press(); });
  }

  WatchedProgram program;
  Workbench& bench = program.bench;
  WatchedDesk& desk = program.desk;
};

TEST_F(Form1Window, OpensUnderTheProgramsNameInItsSize) {
  show();
  EXPECT_EQ(to_utf8(form().Caption.get()), "Tarnmill");
  EXPECT_EQ(form().Width, 5700);
  EXPECT_EQ(form().Height, 9720);
  EXPECT_EQ(bench.focus(), &form().Readout);
  EXPECT_TRUE(form().Readout.Locked);
}

TEST_F(Form1Window, ASecondInstanceIsRefusedAndEnds) {
  desk.runs_already = true;
  show();
  ASSERT_EQ(desk.messages.size(), 1U);
  EXPECT_EQ(to_utf8(desk.messages[0].text), to_utf8(desk.program_name()) + " is already running!");
  EXPECT_EQ(to_utf8(desk.messages[0].title), "Tarnmill Warning");
  EXPECT_EQ(desk.messages[0].icon, MessageIcon::exclamation);
  EXPECT_EQ(desk.messages[0].buttons, MessageButtons::ok);
  EXPECT_TRUE(bench.ended());
  EXPECT_FALSE(program.shows("Form1"));
}

struct ModeRow {
  Image Form1::*key;
  Image Form1::*normal;
  Image Form1::*pressed;
  const char* window;
};

constexpr ModeRow mode_keys[] = {
    {&Form1::imc, &Form1::im1c, &Form1::im1cd, "frmComplex"},
    {&Form1::imev, &Form1::im1ev, &Form1::im1evd, "frmTast"},
    {&Form1::img, &Form1::im1g, &Form1::im1gd, "frmFunc"},
};

TEST_F(Form1Window, AModeKeyHidesItAndShowsTheMode) {
  for (const ModeRow& row : mode_keys) {
    show();
    press(form().*row.key);
    EXPECT_FALSE(program.shows("Form1")) << row.window;
    EXPECT_TRUE(program.shows(row.window)) << row.window;
    bench.window(row.window).Hide();
  }
}

TEST_F(Form1Window, AHiddenCalculatorKeepsItsState) {
  show();
  press(form().Number(7));
  press(form().imc);
  show();
  EXPECT_EQ(to_utf8(form().Readout.Text.get()), "7.");
  EXPECT_EQ(bench.focus(), &form().Readout);
}

TEST_F(Form1Window, AModeKeyShowsItsPressedPictureWhileItIsDown) {
  show();
  for (const ModeRow& row : mode_keys) {
    Image& key = form().*row.key;
    const std::string normal = to_utf8((form().*row.normal).Picture.get());
    const std::string pressed = to_utf8((form().*row.pressed).Picture.get());
    EXPECT_NE(normal, pressed);
    EXPECT_EQ(to_utf8(key.Picture.get()), normal);
    key.MouseDown.raise(1, 0, 5, 5);
    EXPECT_EQ(to_utf8(key.Picture.get()), pressed);
    key.MouseUp.raise(1, 0, 5, 5);
    EXPECT_EQ(to_utf8(key.Picture.get()), normal);
  }
}

TEST_F(Form1Window, PointerMovementReleasesAModeKeyThatLostTheMouse) {
  show();
  Form1& calculator = form();
  Event<int, int, float, float>* movements[] = {&calculator.MouseMove, &calculator.pi.MouseMove,
                                                &calculator.cmdconv.MouseMove, &calculator.cmdExit.MouseMove};
  for (auto* movement : movements) {
    for (const ModeRow& row : mode_keys) (calculator.*row.key).MouseDown.raise(1, 0, 5, 5);
    movement->raise(0, 0, 9, 9);
    for (const ModeRow& row : mode_keys) {
      EXPECT_EQ(to_utf8((calculator.*row.key).Picture.get()),
                to_utf8((calculator.*row.normal).Picture.get()));
    }
  }
}

TEST_F(Form1Window, ALeftPressOnTheBodyMovesIt) {
  show();
  form().MouseDown.raise(1, 0, 100, 100);
  EXPECT_EQ(desk.moved, Names{"Form1"});
  EXPECT_EQ(desk.popups, Names{});
}

TEST_F(Form1Window, ARightPressOnTheBodyPopsUpItsMenu) {
  show();
  form().MouseDown.raise(2, 0, 100, 100);
  EXPECT_EQ(desk.moved, Names{});
  EXPECT_EQ(desk.popups, Names{"Form1 mnuhelp2"});
  EXPECT_EQ(form().popup_shown(), &program.window<Help>().mnuhelp2);
}

TEST_F(Form1Window, AnEntryPickedFromTheMenuActs) {
  show();
  desk.picks = "mnicompl2";
  bench.enter([this] { form().MouseDown.raise(2, 0, 100, 100); });
  EXPECT_FALSE(program.shows("Form1"));
  EXPECT_TRUE(program.shows("frmComplex"));
}

TEST_F(Form1Window, ExitEndsTheProgram) {
  show();
  press(form().cmdExit);
  EXPECT_TRUE(bench.ended());
  EXPECT_EQ(bench.fault(), std::nullopt);
}

TEST_F(Form1Window, ExitEndsTheProgramWhenTheGraphIsHidden) {
  show();
  bench.window("frmFunc").Show();
  bench.window("frmFunc").Hide();
  press(form().cmdExit);
  EXPECT_TRUE(bench.ended());
}

TEST_F(Form1Window, ExitUnloadsItWhileTheGraphShows) {
  bench.window("frmFunc").Show();
  show();
  press(form().cmdExit);
  EXPECT_FALSE(bench.ended());
  EXPECT_EQ(bench.find_window("Form1"), nullptr);
  EXPECT_TRUE(program.shows("frmFunc"));
  bench.enter([this] { bench.window("frmFunc").close(); });
  EXPECT_TRUE(bench.ended());
}

TEST_F(Form1Window, ClosingTheLastWindowEndsTheProgram) {
  show();
  bench.enter([this] { form().close(); });
  EXPECT_TRUE(bench.ended());
}

}  // namespace
}  // namespace tarnmill
