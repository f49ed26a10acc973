#include "graph/frm_func.h"
#include "keypad/frm_tast.h"
#include "shell/help_menus.h"
#include "support/watched_program.h"
#include "support/window_test.h"

namespace tarnmill {
namespace {

class KeypadWindow : public WindowTest<frmTast> {
 protected:
  void show(std::string_view name) {
    act([&] { program.bench.window(name).Show(); });
  }
  void hide(std::string_view name) {
    act([&] { program.bench.window(name).Hide(); });
  }
  [[nodiscard]] bool shows(std::string_view name) { return program.bench.is_visible(name); }
  [[nodiscard]] bool loaded() { return program.bench.find_window("frmTast") != nullptr; }
};

TEST_F(KeypadWindow, OpensOnTheExpressionOfTheGraph) {
  act([this] { program.window<frmFunc>().txtY.Text = u"2*x"; });
  show("frmTast");
  EXPECT_EQ(to_utf8(form().Text1.Text.get()), "2*x");
  EXPECT_EQ(program.bench.focus(), &form().Text1);
  act([this] {
    form().Text1.Text = u"lost";
    form().Activate.raise();
  });
  EXPECT_EQ(to_utf8(form().Text1.Text.get()), "2*x");
}

TEST_F(KeypadWindow, StartsWithAnExponentOfItsOwnWhileTheGraphIsHidden) {
  act([this] {
    program.window<frmFunc>().txtY3.Text = u"5";
    form().Unload();
  });
  show("frmTast");
  EXPECT_EQ(to_utf8(form().lblGot.Caption.get()), "GOT");
  EXPECT_EQ(to_utf8(form().txtY3.Text.get()), "1");
  EXPECT_EQ(to_utf8(form().txtImenilac.Text.get()), "1");
  EXPECT_EQ(to_utf8(form().lblY3.Caption.get()), "OK");
}

TEST_F(KeypadWindow, TakesTheExponentOfAVisibleGraph) {
  show("frmFunc");
  act([this] {
    auto& graph = program.window<frmFunc>();
    graph.txtY2.Text = u"a";
    graph.txtY3.Text = u"2";
    graph.txtImenilac.Text = u"3";
    graph.lblImenilac.Caption = u"b";
    graph.lblY3.Caption = u"c";
  });
  show("frmTast");
  EXPECT_EQ(to_utf8(form().txtY2.Text.get()), "a");
  EXPECT_EQ(to_utf8(form().txtY3.Text.get()), "2");
  EXPECT_EQ(to_utf8(form().txtImenilac.Text.get()), "3");
  EXPECT_EQ(to_utf8(form().lblImenilac.Caption.get()), "b");
  EXPECT_EQ(to_utf8(form().lblY3.Caption.get()), "c");
}

struct ModeRow {
  Image frmTast::*key;
  Image frmTast::*normal;
  Image frmTast::*pressed;
  const char* window;
};

constexpr ModeRow mode_keys[] = {
    {&frmTast::img, &frmTast::im1g, &frmTast::im1gd, "frmFunc"},
    {&frmTast::imc, &frmTast::im1cg, &frmTast::im1cd, "frmComplex"},
    {&frmTast::imev, &frmTast::im1ag, &frmTast::im1ad, "Form1"},
};

TEST_F(KeypadWindow, AModeImageHidesItAndShowsTheMode) {
  for (const ModeRow& row : mode_keys) {
    hide("Form1");
    show("frmTast");
    act([this] { form().Text2.Text = u"7"; });
    click(row.key);
    EXPECT_TRUE(loaded()) << row.window;
    EXPECT_FALSE(shows("frmTast")) << row.window;
    EXPECT_TRUE(shows(row.window)) << row.window;
    EXPECT_EQ(to_utf8(form().Text2.Text.get()), "7");
    hide(row.window);
  }
}

TEST_F(KeypadWindow, AModeImageShowsItsPressedPictureWhileItIsDown) {
  for (const ModeRow& row : mode_keys) {
    Image& key = form().*row.key;
    const Text normal = (form().*row.normal).Picture;
    EXPECT_NE(normal, (form().*row.pressed).Picture.get());
    key.MouseDown.raise(1, 0, 1, 1);
    EXPECT_EQ(key.Picture.get(), (form().*row.pressed).Picture.get());
    key.MouseUp.raise(1, 0, 1, 1);
    EXPECT_EQ(key.Picture.get(), normal);
  }
}

struct GoRow {
  Procedure frmTast::*procedure;
  const char* window;
};

TEST_F(KeypadWindow, GoingToAModeUnloadsIt) {
  const GoRow rows[] = {
      {&frmTast::GoCalculator, "Form1"}, {&frmTast::GoComplex, "frmComplex"}, {&frmTast::GoGraph, "frmFunc"}};
  for (const GoRow& row : rows) {
    show("frmTast");
    hide("Form1");
    act([&] { (form().*row.procedure)({}); });
    EXPECT_FALSE(loaded()) << row.window;
    EXPECT_TRUE(shows(row.window)) << row.window;
    hide(row.window);
  }
}

TEST_F(KeypadWindow, TheTableAndTheEditorShowBesideIt) {
  show("frmTast");
  click(&frmTast::Command8);
  act([this] { form().GoMathPad({}); });
  for (const char* name : {"frmTast", "frmTabela", "MathPad"}) EXPECT_TRUE(shows(name)) << name;
}

TEST_F(KeypadWindow, ExitGoesAwayAloneWhileAModeShows) {
  for (const char* mode : {"Form1", "frmComplex", "frmFunc"}) {
    show(mode);
    show("frmTast");
    if (std::string_view{mode} != "Form1") hide("Form1");
    click(&frmTast::Command2);
    EXPECT_FALSE(loaded()) << mode;
    EXPECT_TRUE(shows(mode)) << mode;
    hide(mode);
  }
}

TEST_F(KeypadWindow, ExitGivesTheGraphItsCurveOfY) {
  show("frmFunc");
  show("frmTast");
  auto& graph = program.window<frmFunc>();
  act([&] { graph.optAlign(1).press(); });
  click(&frmTast::Command2);
  EXPECT_TRUE(graph.optAlign(0).Value);
}

TEST_F(KeypadWindow, UnloadedWhileNoModeShowsItEndsTheProgram) {
  show("MathPad");
  show("frmTast");
  hide("Form1");
  EXPECT_FALSE(program.bench.enter([this] { form().CloseKeypad({}); }));
  EXPECT_TRUE(program.bench.ended());
  EXPECT_EQ(program.bench.fault(), std::nullopt);
}

TEST(KeypadBody, APressMovesItOrPopsUpItsMenu) {
  WatchedProgram program;
  program.add<frmTast>();
  program.add<Help>();
  auto& form = program.window<frmTast>();
  form.MouseDown.raise(1, 0, 100, 100);
  EXPECT_EQ(program.desk.moved, std::vector<std::string>{"frmTast"});
  EXPECT_TRUE(program.desk.popups.empty());
  form.MouseDown.raise(2, 0, 100, 100);
  EXPECT_EQ(program.desk.moved.size(), 1U);
  EXPECT_EQ(program.desk.popups, std::vector<std::string>{"frmTast mnueval"});
}

}  // namespace
}  // namespace tarnmill
