#include "shell/recent_list.h"

#include <gtest/gtest.h>

#include <functional>

#include "forms/control_array.h"
#include "forms/desk.h"
#include "forms/menu_item.h"
#include "graph/frm_zoom.h"
#include "shell/registry.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

constexpr TextView functions = u"Recent Functions";

/// The menu of recent files, as the editor owns it.
class FileMenu final : public Window {
 public:
  static constexpr std::string_view class_name = "MathPad";
  explicit FileMenu(Workbench& bench) : Window{bench, class_name} {
    mnuSeparator2.Visible.start_as(false);
    for (const auto& item : mnuRecent) item->Visible.start_as(false);
  }
  MenuItem mnuSeparator2{*this, "mnuSeparator2", u"-"};
  ControlArray<MenuItem> mnuRecent{*this, "mnuRecent", 1, 5};
};

class RecentListTest : public testing::Test {
 protected:
  RecentListTest() { add_file_menu(); }

  void add_file_menu() {
    program.bench.add_window("MathPad", [](Workbench& owner) { return std::make_unique<FileMenu>(owner); });
  }
  void store(TextView section, TextView name, TextView value) {
    SaveRegistrySetting(program.desk.settings(), u"Software", u"Tarnmill", section, name, value);
  }
  [[nodiscard]] Text stored(TextView section, TextView name) {
    return GetRegistrySetting(program.desk.settings(), u"Software", u"Tarnmill", section, name, u"")
        .to_text({});
  }
  [[nodiscard]] frmZoom& menus() { return program.window<frmZoom>(); }
  [[nodiscard]] FileMenu& files() { return program.window<FileMenu>(); }

  static std::vector<Text> captions(const ControlArray<MenuItem>& items) {
    std::vector<Text> found;
    for (const auto& item : items) found.push_back(item->Caption);
    return found;
  }
  static int visible(const ControlArray<MenuItem>& items) {
    int count = 0;
    for (const auto& item : items) count += item->Visible ? 1 : 0;
    return count;
  }

  TestProgram program;
};

using Captions = std::vector<Text>;

TEST_F(RecentListTest, WithNothingStoredAllStaysHidden) {
  LoadRecent(program.bench);
  ShowRecent(program.bench);
  LoadRecentFile(program.bench);
  ShowRecentFile(program.bench);
  EXPECT_EQ(visible(menus().mnuRecent), 0);
  EXPECT_FALSE(menus().mnuSeparator2.Visible);
  EXPECT_EQ(visible(files().mnuRecent), 0);
  EXPECT_FALSE(files().mnuSeparator2.Visible);
}

TEST_F(RecentListTest, SixAddsLeaveTheLastFiveNewestFirst) {
  for (const char16_t* entry : {u"1", u"2", u"3", u"4", u"5", u"6"}) AddRecent(program.bench, entry);
  EXPECT_EQ(captions(menus().mnuRecent), (Captions{u"6", u"5", u"4", u"3", u"2"}));
  EXPECT_EQ(visible(menus().mnuRecent), 5);
  EXPECT_EQ(stored(functions, u"Recent1"), u"6");
  EXPECT_EQ(stored(functions, u"Recent5"), u"2");
}

TEST_F(RecentListTest, TheSameEntryTwiceFillsTwoSlots) {
  AddRecentX(program.bench, u"K");
  AddRecentX(program.bench, u"K");
  EXPECT_EQ(captions(menus().mnuRecentX), (Captions{u"K", u"K", u"", u"", u""}));
  EXPECT_EQ(visible(menus().mnuRecentX), 2);
}

TEST_F(RecentListTest, TheFirstEntryShowsTheSeparator) {
  AddRecent(program.bench, u"K");
  EXPECT_TRUE(menus().mnuSeparator2.Visible);
}

TEST_F(RecentListTest, AnEmptyEntryEndsTheList) {
  AddRecent(program.bench, u"K");
  AddRecent(program.bench, u"");
  EXPECT_EQ(captions(menus().mnuRecent), (Captions{u"", u"K", u"", u"", u""}));
  EXPECT_EQ(visible(menus().mnuRecent), 1) << "what shows stays, and nothing new does";
  EXPECT_FALSE(menus().mnuRecent(2).Visible);
}

TEST_F(RecentListTest, AGapInTheStoreLeavesItsCaptionAlone) {
  store(functions, u"Recent1", u"first");
  store(functions, u"Recent3", u"third");
  menus().mnuRecent(2).Caption = u"was there";
  LoadRecent(program.bench);
  EXPECT_EQ(captions(menus().mnuRecent), (Captions{u"first", u"was there", u"third", u"", u""}));
}

TEST_F(RecentListTest, ShowingStopsAtTheFirstGap) {
  store(functions, u"Recent1", u"first");
  store(functions, u"Recent3", u"third");
  LoadRecent(program.bench);
  ShowRecent(program.bench);
  EXPECT_EQ(visible(menus().mnuRecent), 1);
}

struct GraphList {
  std::function<void(Workbench&)> load;
  std::function<void(Workbench&)> show;
  std::function<void(Workbench&, TextView)> add;
  const char16_t* prefix;
  ControlArray<MenuItem> frmZoom::*menu;
};

TEST_F(RecentListTest, EachGraphListHasItsMenuAndItsNamesInTheStore) {
  const std::vector<GraphList> lists{
      {LoadRecent, ShowRecent, AddRecent, u"Recent", &frmZoom::mnuRecent},
      {LoadRecentX, ShowRecentX, AddRecentX, u"RecentX", &frmZoom::mnuRecentX},
      {LoadRecentY2, ShowRecentY2, AddRecentY2, u"RecentY2", &frmZoom::mnuRecentY2},
      {LoadRecentY3, ShowRecentY3, AddRecentY3, u"RecentY3", &frmZoom::mnuRecentY3},
      {LoadRecentIm, ShowRecentIm, AddRecentIm, u"RecentIm", &frmZoom::mnuRecentIm},
      {LoadRecentOK, ShowRecentOK, AddRecentOK, u"OK", &frmZoom::mnuOK}};
  for (const GraphList& list : lists) {
    const Text prefix{list.prefix};
    const auto& menu = menus().*list.menu;
    list.add(program.bench, u"old " + prefix);
    list.add(program.bench, u"new " + prefix);
    EXPECT_EQ(stored(functions, prefix + u"1"), u"new " + prefix);
    EXPECT_EQ(stored(functions, prefix + u"2"), u"old " + prefix);
    EXPECT_EQ(menu(1).Caption.get(), u"new " + prefix);
    for (const auto& item : menu) item->Caption = u"";
    list.load(program.bench);
    EXPECT_EQ(captions(menu), (Captions{u"new " + prefix, u"old " + prefix, u"", u"", u""}));
    for (const auto& item : menu) item->Visible = false;
    list.show(program.bench);
    EXPECT_EQ(visible(menu), 2);
  }
}

class FileListTest : public RecentListTest {
 protected:
  void add(std::initializer_list<const char16_t*> entries) {
    for (const char16_t* entry : entries) AddRecentFile(program.bench, entry);
  }
};

TEST_F(FileListTest, NewFilesGoToTheFront) {
  add({u"1", u"2", u"3", u"4", u"5", u"6"});
  EXPECT_EQ(captions(files().mnuRecent), (Captions{u"6", u"5", u"4", u"3", u"2"}));
  EXPECT_EQ(stored(u"MathPad", u"Recent1"), u"6");
  EXPECT_EQ(stored(u"MathPad", u"Recent5"), u"2");
  EXPECT_EQ(visible(files().mnuRecent), 5);
  EXPECT_TRUE(files().mnuSeparator2.Visible);
}

TEST_F(FileListTest, AFileFromTheMiddleMovesToTheFrontWithoutAGap) {
  add({u"5", u"4", u"3", u"2", u"1"});
  add({u"3"});
  EXPECT_EQ(captions(files().mnuRecent), (Captions{u"3", u"1", u"2", u"4", u"5"}));
  for (int i = 1; i <= 5; ++i) {
    EXPECT_EQ(stored(u"MathPad", u"Recent" + NumberToText(i, {})), files().mnuRecent(i).Caption.get());
  }
}

TEST_F(FileListTest, TheLastFileMovesToTheFrontToo) {
  add({u"5", u"4", u"3", u"2", u"1"});
  add({u"5"});
  EXPECT_EQ(captions(files().mnuRecent), (Captions{u"5", u"1", u"2", u"3", u"4"}));
}

TEST_F(FileListTest, TheFirstFileAgainChangesNothing) {
  add({u"3", u"2", u"1"});
  store(u"MathPad", u"Recent1", u"as stored");
  add({u"1"});
  EXPECT_EQ(captions(files().mnuRecent), (Captions{u"1", u"2", u"3", u"", u""}));
  EXPECT_EQ(stored(u"MathPad", u"Recent1"), u"as stored");
}

TEST_F(FileListTest, NamesDifferByCase) {
  add({u"a.txt", u"A.txt"});
  EXPECT_EQ(captions(files().mnuRecent), (Captions{u"A.txt", u"a.txt", u"", u"", u""}));
}

TEST_F(FileListTest, AMovedFileShowsTheEntriesUpToItsOldPlace) {
  for (int i = 1; i <= 3; ++i) files().mnuRecent(i).Caption = NumberToText(i, {});
  add({u"2"});
  EXPECT_EQ(visible(files().mnuRecent), 3);
  EXPECT_TRUE(files().mnuSeparator2.Visible);
}

TEST_F(FileListTest, FilesAndCurvesAreKeptApart) {
  add({u"notes.rtf"});
  AddRecent(program.bench, u"K");
  EXPECT_EQ(stored(u"MathPad", u"Recent1"), u"notes.rtf");
  EXPECT_EQ(stored(functions, u"Recent1"), u"K");
  program.restart();
  add_file_menu();
  LoadRecentFile(program.bench);
  EXPECT_EQ(captions(files().mnuRecent), (Captions{u"notes.rtf", u"", u"", u"", u""}));
}

}  // namespace
}  // namespace tarnmill
