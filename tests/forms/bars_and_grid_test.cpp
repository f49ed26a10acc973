#include <gtest/gtest.h>

#include "forms/flex_grid.h"
#include "forms/sample_window.h"
#include "forms/status_bar.h"
#include "forms/toolbar.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

using Notes = std::vector<std::string>;

class BarsAndGrid : public ::testing::Test {
 protected:
  TestProgram program;
  SampleWindow window{program.bench};
  Toolbar bar{window,
              "bar",
              {{"Go"},
               {"Bold", ToolKind::check, u"Fat"},
               {"Left", ToolKind::group},
               {"Right", ToolKind::group},
               {"", ToolKind::separator},
               {"Other", ToolKind::group}}};
  StatusBar status{window, "status", 3};
  FlexGrid grid{window, "grid"};
};

TEST_F(BarsAndGrid, AButtonIsKnownByKeyAndIndex) {
  EXPECT_EQ(&bar.Buttons(2), &bar.Buttons("Bold"));
  EXPECT_EQ(bar.Buttons(2).ToolTipText.get(), u"Fat");
  EXPECT_EQ(bar.find(0), nullptr);
  EXPECT_EQ(bar.find(7), nullptr);
  EXPECT_EQ(bar.find(""), nullptr);
  EXPECT_THROW(static_cast<void>(bar.Buttons("none")), Fault);
}

TEST_F(BarsAndGrid, AClickGoesIntoTheValueFirst) {
  std::vector<int> seen;
  bar.Buttons("Bold").Click.handle([&] { seen.push_back(bar.Buttons("Bold").Value); });
  bar.Buttons("Bold").press();
  bar.Buttons("Bold").press();
  EXPECT_EQ(seen, (std::vector<int>{1, 0}));
  bar.Buttons("Go").press();
  EXPECT_EQ(bar.Buttons("Go").Value, 0);
}

TEST_F(BarsAndGrid, OneOfAGroupLetsUpTheOthersOfItAlone) {
  bar.Buttons("Other").Value = 1;
  bar.Buttons("Left").Value = 1;
  bar.Buttons("Right").press();
  EXPECT_EQ(bar.Buttons("Left").Value, 0);
  EXPECT_EQ(bar.Buttons("Right").Value, 1);
  EXPECT_EQ(bar.Buttons("Other").Value, 1);
  bar.Buttons("Right").Value = 0;
  EXPECT_EQ(bar.Buttons("Left").Value, 0);
}

TEST_F(BarsAndGrid, PanelsCountFromOne) {
  status.Panels(3).Text = u"x";
  EXPECT_EQ(status.Panels(3).Text.get(), u"x");
  EXPECT_THROW(static_cast<void>(status.Panels(0)), Fault);
  EXPECT_THROW(static_cast<void>(status.Panels(4)), Fault);
}

TEST_F(BarsAndGrid, GoingToACellLeavesTheOldOneFirst) {
  grid.LeaveCell.handle([this] { window.note("leave " + std::to_string(grid.row())); });
  grid.EnterCell.handle([this] { window.note("enter " + std::to_string(grid.row())); });
  grid.Click.handle([this] { window.note("click"); });
  grid.choose(1, 1);
  grid.choose(1, 1);
  EXPECT_EQ(window.notes, (Notes{"leave 0", "enter 1", "click", "click"}));
}

TEST_F(BarsAndGrid, CellsKeepTextAndColour) {
  grid.Rows = 3;
  grid.TextMatrix(2, 1, u"x");
  grid.go_to(2, 1);
  EXPECT_EQ(grid.Text.read().to_text({}), u"x");
  EXPECT_EQ(grid.back_color(2, 1), rgb(255, 255, 255));
  grid.CellBackColor.write(65535);
  EXPECT_EQ(grid.back_color(2, 1), 65535);
  grid.Rows = 2;
  EXPECT_EQ(grid.row(), 1);
  EXPECT_EQ(grid.back_color(2, 1), rgb(255, 255, 255));
}

TEST_F(BarsAndGrid, OutsideOfTheGridIsAFault) {
  EXPECT_THROW(static_cast<void>(grid.TextMatrix(2, 0)), Fault);
  EXPECT_THROW(static_cast<void>(grid.ColWidth(-1)), Fault);
  EXPECT_THROW(grid.Row.write(5), Fault);
  EXPECT_THROW(grid.Cols.write(0), Fault);
  EXPECT_EQ(grid.Cols, 1);
}

}  // namespace
}  // namespace tarnmill
