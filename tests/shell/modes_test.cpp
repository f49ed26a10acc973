// The ways between the modes with the real windows: what shows, what stays loaded, what ends.

#include <set>

#include "calculator/form1.h"
#include "complex/frm_complex.h"
#include "keypad/frm_tast.h"
#include "shell/help_menus.h"
#include "support/window_test.h"

namespace tarnmill {
namespace {

using Names = std::set<std::string>;

class Modes : public testing::Test {
 protected:
  void act(const std::function<void()>& action) { program.bench.enter(action); }
  void show_only(const char* name) {
    act([&] {
      program.bench.window(name).Show();
      for (const std::string_view each : program.bench.window_names()) {
        if (each != name && program.bench.is_visible(each)) program.bench.window(each).Hide();
      }
    });
  }
  [[nodiscard]] Names visible() {
    Names names;
    for (const std::string_view each : program.bench.window_names()) {
      if (program.bench.is_visible(each)) names.emplace(each);
    }
    return names;
  }
  void press(const char* window, const char* control) {
    act([&] { program.bench.window(window).find_control(control)->press(); });
  }

  TestProgram program;
};

struct MoveRow {
  const char* from;
  const char* owner;
  const char* control;
  Names visible;
  bool stays_loaded;
};

TEST_F(Modes, EachKeyAndEntryLeadsToItsMode) {
  const MoveRow rows[] = {
      {"Form1", "Form1", "imc", {"frmComplex"}, true},
      {"Form1", "Form1", "imev", {"frmTast"}, true},
      {"Form1", "Form1", "img", {"frmFunc"}, true},
      {"Form1", "Help", "mnicompl2", {"frmComplex"}, true},
      {"Form1", "Help", "mnugraph2", {"frmFunc"}, true},
      {"Form1", "Help", "mnueval2", {"frmTast"}, true},
      {"Form1", "Help", "mnupad2", {"Form1", "MathPad"}, true},
      {"Form1", "Help", "mnuabout", {"Form1", "frmAbout"}, true},
      {"frmComplex", "frmComplex", "Image11", {"Form1"}, false},
      {"frmComplex", "frmComplex", "imev", {"frmTast"}, false},
      {"frmComplex", "frmComplex", "img", {"frmFunc"}, false},
      {"frmComplex", "Help", "muadv3", {"Form1"}, true},
      {"frmComplex", "Help", "mnugraph3", {"frmFunc"}, true},
      {"frmComplex", "Help", "mnueval1", {"frmTast"}, true},
      {"frmComplex", "Help", "mnupad3", {"frmComplex", "MathPad"}, true},
      {"frmTast", "frmTast", "imev", {"Form1"}, true},
      {"frmTast", "frmTast", "imc", {"frmComplex"}, true},
      {"frmTast", "frmTast", "img", {"frmFunc"}, true},
      {"frmTast", "Help", "mniadev", {"Form1"}, false},
      {"frmTast", "Help", "mnicomev", {"frmComplex"}, false},
      {"frmTast", "Help", "mnigraphev", {"frmFunc"}, false},
      {"frmTast", "Help", "mnupadev", {"MathPad", "frmTast"}, true},
      {"frmTast", "Help", "mnutable", {"frmTabela", "frmTast"}, true},
  };
  for (const MoveRow& row : rows) {
    SCOPED_TRACE(std::string{row.from} + " " + row.control);
    show_only(row.from);
    press(row.owner, row.control);
    EXPECT_EQ(visible(), row.visible);
    EXPECT_EQ(program.bench.find_window(row.from) != nullptr, row.stays_loaded);
    EXPECT_FALSE(program.bench.ended());
  }
}

TEST_F(Modes, TheShownModeTakesTheInput) {
  press("Form1", "imc");
  EXPECT_EQ(program.bench.active_window(), &program.window<frmComplex>());
  EXPECT_EQ(program.bench.focus(), &program.window<frmComplex>().txtCa);
  press("frmComplex", "Image11");
  EXPECT_EQ(program.bench.active_window(), &program.window<Form1>());
  EXPECT_EQ(program.bench.focus(), &program.window<Form1>().Readout);
}

TEST_F(Modes, NoNumberCrossesBetweenThem) {
  press("Form1", "Decimal");
  act([this] { program.window<Form1>().Number(7).press(); });
  press("Form1", "imc");
  EXPECT_EQ(to_utf8(program.window<frmComplex>().txtCa.Text.get()), "0.");
  press("frmComplex", "imev");
  EXPECT_EQ(to_utf8(program.window<frmTast>().Text1.Text.get()), "");
}

struct EndRow {
  const char* window;
  const char* owner;
  const char* control;
  bool graph_shows;
  bool ends;
  bool stays_loaded;
};

TEST_F(Modes, EndingDependsOnTheGraph) {
  const EndRow rows[] = {
      {"Form1", "Form1", "cmdExit", false, true, true},
      {"Form1", "Form1", "cmdExit", true, false, false},
      {"Form1", "Help", "mnuexit", false, true, true},
      {"Form1", "Help", "mnuexit", true, false, true},
      {"frmTast", "Help", "mnuexev", false, true, true},
      {"frmTast", "Help", "mnuexev", true, false, false},
      {"frmTast", "frmTast", "Command2", false, true, false},
      {"frmTast", "frmTast", "Command2", true, false, false},
      {"frmComplex", "frmComplex", "cmdExit", false, true, true},
      {"frmComplex", "frmComplex", "cmdExit", true, true, true},
      {"frmComplex", "Help", "mnuexit3", false, true, true},
      {"frmComplex", "Help", "mnuexit3", true, true, true},
  };
  for (const EndRow& row : rows) {
    SCOPED_TRACE(std::string{row.window} + " " + row.control + (row.graph_shows ? " beside the graph" : ""));
    program.restart();
    if (row.graph_shows) act([this] { program.bench.window("frmFunc").Show(); });
    act([&] { program.bench.window(row.window).Show(); });
    if (std::string_view{row.window} != "Form1") act([this] { program.bench.window("Form1").Hide(); });
    press(row.owner, row.control);
    EXPECT_EQ(program.bench.ended(), row.ends);
    EXPECT_EQ(program.bench.fault(), std::nullopt);
    if (row.ends) continue;
    EXPECT_EQ(program.bench.find_window(row.window) != nullptr, row.stays_loaded);
    EXPECT_EQ(visible(), Names{"frmFunc"});
    act([this] { program.bench.window("frmFunc").close(); });
    EXPECT_TRUE(program.bench.ended());
  }
}

TEST_F(Modes, AnEntryOfTheKeypadMakesItWhenItIsNotLoaded) {
  program.desk.set_clipboard_text(u"before");
  press("Help", "mnicopyres");
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), "");
  EXPECT_NE(program.bench.find_window("frmTast"), nullptr);
  EXPECT_FALSE(program.bench.is_visible("frmTast"));
}

}  // namespace
}  // namespace tarnmill
