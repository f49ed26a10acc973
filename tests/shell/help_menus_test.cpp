#include "shell/help_menus.h"

#include <gtest/gtest.h>

#include <fstream>

#include "forms/procedure.h"
#include "forms/text_box.h"
#include "support/watched_program.h"

namespace tarnmill {
namespace {

using Names = std::vector<std::string>;

/// Stands for the keypad: its expression and the procedures that the menu asks for.
class StubKeypad final : public Window {
 public:
  static constexpr std::string_view class_name = "frmTast";
  explicit StubKeypad(Workbench& workbench) : Window{workbench, class_name} {}

  void copy_result() { copied = "result"; }
  void copy_expression() { copied = "expression"; }

  std::string copied;
  TextBox Text1{*this, "Text1", u"2+x"};
  Procedure CopyResult{*this, "CopyResult", &StubKeypad::copy_result};
  Procedure CopyExpression{*this, "CopyExpression", &StubKeypad::copy_expression};
};

class HelpMenus : public ::testing::Test {
 protected:
  HelpMenus() {
    program.add<Help>();
    program.add<StubKeypad>();
    for (const char* name : {"Form1", "frmComplex", "frmFunc", "frmTabela", "frmAbout", "MathPad"}) {
      program.add_empty(name);
    }
  }

  void pick(std::string_view entry) {
    bench.enter([&] { help().find_control(entry)->press(); });
  }
  Help& help() { return program.window<Help>(); }
  Names visible() {
    Names names;
    for (const std::string_view each : bench.window_names()) {
      if (program.shows(each)) names.emplace_back(each);
    }
    return names;
  }

  WatchedProgram program;
  Workbench& bench = program.bench;
};

struct EntryRow {
  const char* name;
  const char* caption;
};

void expect_entries(const MenuItem& menu, const std::vector<EntryRow>& rows) {
  ASSERT_EQ(menu.children().size(), rows.size()) << menu.name();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(menu.children()[i]->name(), rows[i].name);
    EXPECT_EQ(to_utf8(menu.children()[i]->Caption.get()), rows[i].caption);
  }
}

TEST_F(HelpMenus, TheCalculatorsMenuHasItsEntriesInOrder) {
  expect_entries(help().mnuhelp2, {{"mnupad2", "MathPad"},
                                   {"mnicompl2", "Complex Mode"},
                                   {"mnugraph2", "Graph Mode"},
                                   {"mnueval2", "Evaluator"},
                                   {"mnuht2", "Help"},
                                   {"mnuabout", "About"},
                                   {"mnuexit", "Exit"}});
}

TEST_F(HelpMenus, TheComplexCalculatorsMenuHasItsEntriesInOrder) {
  expect_entries(help().mnuhelpcomplex, {{"mnupad3", "MathPad"},
                                         {"muadv3", "Advanced Mode"},
                                         {"mnugraph3", "Graph Mode"},
                                         {"mnueval1", "Evaluator"},
                                         {"mnuhelp", "Help"},
                                         {"mnuexit3", "Exit"}});
}

TEST_F(HelpMenus, TheKeypadsMenuHasItsEntriesInOrder) {
  expect_entries(help().mnueval, {{"mnupadev", "MathPad"},
                                  {"mniadev", "Advanced Mode"},
                                  {"mnicomev", "Complex Mode"},
                                  {"mnigraphev", "Graph Mode"},
                                  {"mnutable", "Value Table"},
                                  {"mnicopyres", "Copy Result"},
                                  {"mnicopyexpr", "Copy Expression"},
                                  {"mnupasteev", "Paste Expression"},
                                  {"mnuhev", "Help"},
                                  {"mnuexev", "Exit"}});
}

struct MoveRow {
  const char* entry;
  const char* from;
  Names visible;
};

TEST_F(HelpMenus, EntriesShowTheirWindows) {
  const MoveRow rows[] = {
      {"mnupad2", "Form1", {"Form1", "MathPad"}},
      {"mnicompl2", "Form1", {"frmComplex"}},
      {"mnugraph2", "Form1", {"frmFunc"}},
      {"mnueval2", "Form1", {"frmTast"}},
      {"mnuabout", "Form1", {"Form1", "frmAbout"}},
      {"mnupad3", "frmComplex", {"MathPad", "frmComplex"}},
      {"muadv3", "frmComplex", {"Form1"}},
      {"mnugraph3", "frmComplex", {"frmFunc"}},
      {"mnueval1", "frmComplex", {"frmTast"}},
      {"mnupadev", "frmTast", {"MathPad", "frmTast"}},
      {"mniadev", "frmTast", {"Form1"}},
      {"mnicomev", "frmTast", {"frmComplex"}},
      {"mnigraphev", "frmTast", {"frmFunc"}},
      {"mnutable", "frmTast", {"frmTabela", "frmTast"}},
  };
  for (const MoveRow& row : rows) {
    bench.window(row.from).Show();
    pick(row.entry);
    EXPECT_EQ(visible(), row.visible) << row.entry;
    for (const std::string& name : visible()) bench.window(name).Hide();
  }
}

TEST_F(HelpMenus, LeavingTheKeypadUnloadsItAndLeavingACalculatorHidesIt) {
  for (const char* entry : {"mniadev", "mnicomev", "mnigraphev"}) {
    bench.window("frmTast").Show();
    pick(entry);
    EXPECT_EQ(bench.find_window("frmTast"), nullptr) << entry;
  }
  bench.window("frmComplex").Show();
  pick("muadv3");
  EXPECT_NE(bench.find_window("frmComplex"), nullptr);
}

TEST_F(HelpMenus, TheKeypadCopiesAndTakesThePastedText) {
  auto& keypad = program.window<StubKeypad>();
  pick("mnicopyres");
  EXPECT_EQ(keypad.copied, "result");
  pick("mnicopyexpr");
  EXPECT_EQ(keypad.copied, "expression");
  program.desk.set_clipboard_text(u"3*");
  keypad.Text1.select(0, 2);
  pick("mnupasteev");
  EXPECT_EQ(to_utf8(keypad.Text1.Text.get()), "3*x");
}

TEST_F(HelpMenus, HelpOpensTheProgramsFileAtItsDefaultPage) {
  std::ofstream{program.desk.data_folder() / "Tarnmill.chm"} << "help";
  for (const char* entry : {"mnuht2", "mnuhelp", "mnuhev"}) {
    program.desk.help_files.clear();
    pick(entry);
    EXPECT_EQ(program.desk.help_files, Names{"Tarnmill.chm 0"}) << entry;
  }
}

TEST_F(HelpMenus, AMissingHelpFileDoesNothing) {
  for (const char* entry : {"mnuht2", "mnuhelp", "mnuhev"}) {
    pick(entry);
    EXPECT_EQ(program.desk.help_files, Names{}) << entry;
    EXPECT_TRUE(program.desk.messages.empty()) << entry;
  }
}

struct ExitRow {
  const char* entry;
  const char* window;
  bool graph_shows;
  bool ends;
  bool still_loaded;
};

TEST(HelpExits, EndTheProgramOrLeaveTheGraph) {
  const ExitRow rows[] = {
      {"mnuexit", "Form1", false, true, true},       {"mnuexit", "Form1", true, false, true},
      {"mnuexit3", "frmComplex", false, true, true}, {"mnuexit3", "frmComplex", true, true, true},
      {"mnuexev", "frmTast", false, true, true},     {"mnuexev", "frmTast", true, false, false},
  };
  for (const ExitRow& row : rows) {
    WatchedProgram program;
    program.add<Help>();
    program.add_empty("frmFunc");
    program.add_empty(row.window);
    if (row.graph_shows) program.bench.window("frmFunc").Show();
    program.bench.window(row.window).Show();
    program.bench.enter([&] { program.window<Help>().find_control(row.entry)->press(); });
    EXPECT_EQ(program.bench.ended(), row.ends) << row.entry;
    EXPECT_EQ(program.bench.find_window(row.window) != nullptr, row.still_loaded) << row.entry;
    if (!row.ends) {
      EXPECT_FALSE(program.shows(row.window)) << row.entry;
      EXPECT_TRUE(program.shows("frmFunc")) << row.entry;
    }
  }
}

}  // namespace
}  // namespace tarnmill
