#include <gtest/gtest.h>

#include <QTableWidget>
#include <QTextEdit>

#include "desktop/sample_desk.h"
#include "forms/flex_grid.h"
#include "forms/rich_text_box.h"
#include "forms/status_bar.h"
#include "forms/toolbar.h"

namespace tarnmill::desktop {
namespace {

class EditorWindow final : public Window {
 public:
  static constexpr std::string_view class_name = "EditorWindow";
  explicit EditorWindow(Workbench& workbench) : Window{workbench, class_name} {}

  RichTextBox text{*this, "text"};
  Toolbar bar{*this, "bar", {{"Go"}, {"Bold", ToolKind::check, u" Bold "}}};
  StatusBar status{*this, "status", 2};
  FlexGrid grid{*this, "grid"};
};

void add_tool(QWidget& bar, const char* key) {
  add_widget<Key>(bar, (std::string{"deco_"} + key).c_str(), {0, 0, 20, 20})->setProperty("tool", key);
}

std::unique_ptr<QWidget> editor_form(std::string_view /*window*/) {
  auto form = std::make_unique<QWidget>();
  add_widget<QTextEdit>(*form, "text", {0, 40, 200, 100});
  auto* bar = add_widget<QWidget>(*form, "bar", {0, 0, 200, 40});
  add_tool(*bar, "Go");
  add_tool(*bar, "Bold");
  auto* status = add_widget<QWidget>(*form, "status", {0, 140, 200, 20});
  for (const int panel : {1, 2}) {
    add_widget<QLabel>(*status, "deco_panel", {0, 0, 50, 20})->setProperty("panel", panel);
  }
  add_widget<QTableWidget>(*form, "grid", {0, 160, 200, 100});
  return form;
}

class EditorBindings : public ::testing::Test {
 protected:
  EditorBindings() {
    bench.add_window("EditorWindow", [](Workbench& w) { return std::make_unique<EditorWindow>(w); });
    pulse.attach(bench);
    view = std::make_unique<WindowView>(window(), store, editor_form(""), false);
  }

  EditorWindow& window() { return bench.window<EditorWindow>(); }
  RichText& document() { return window().text.document(); }
  QTextEdit& edit() { return *view->widget().findChild<QTextEdit*>("text"); }
  QTableWidget& table() { return *view->widget().findChild<QTableWidget*>("grid"); }
  QAbstractButton& tool(const char* name) { return *view->widget().findChild<QAbstractButton*>(name); }

  TemporaryFolder folder;
  QtDesk desk{folder.path(), Views::on_demand};
  Workbench bench{desk};
  Pulse pulse;
  ViewStore store{pulse, false, editor_form};
  std::unique_ptr<WindowView> view;
};

TEST_F(EditorBindings, TheEditorShowsDocumentAndSelection) {
  window().text.Text.write(u"abc\r\nd");
  EXPECT_EQ(edit().toPlainText(), "abc\nd");
  document().select(1, 2);
  EXPECT_EQ(edit().textCursor().selectedText(), "bc");
}

TEST_F(EditorBindings, TypingIsTold) {
  int changes = 0;
  window().text.Change.handle([&] { ++changes; });
  QTest::keyClicks(&edit(), "ab");
  QCoreApplication::processEvents();
  EXPECT_EQ(document().text(), u"ab");
  EXPECT_GE(changes, 1);
  EXPECT_EQ(document().sel_start(), 2);
}

TEST_F(EditorBindings, AFormatChosenBeforeTypingIsThatOfTheText) {
  document().set_sel_bold(true);
  QTest::keyClicks(&edit(), "x");
  QCoreApplication::processEvents();
  document().select(0, 1);
  EXPECT_EQ(document().sel_bold(), true);
}

TEST_F(EditorBindings, AToolIsPressedByAClickAndShowsItsValue) {
  int seen = -1;
  window().bar.Buttons("Bold").Click.handle([&] { seen = window().bar.Buttons("Bold").Value; });
  QTest::mouseClick(&tool("deco_Bold"), Qt::LeftButton);
  EXPECT_EQ(seen, 1);
  EXPECT_TRUE(tool("deco_Bold").isChecked());
  EXPECT_EQ(tool("deco_Bold").accessibleName(), "Bold");
  window().bar.Buttons("Bold").Value = 0;
  EXPECT_FALSE(tool("deco_Bold").isChecked());
  window().bar.Buttons("Go").Enabled = false;
  EXPECT_FALSE(tool("deco_Go").isEnabled());
}

TEST_F(EditorBindings, PanelsShowTheirTexts) {
  window().status.Panels(2).Text = u"two";
  bool shown = false;
  for (const QLabel* each : view->widget().findChildren<QLabel*>()) shown |= each->text() == "two";
  EXPECT_TRUE(shown);
}

TEST_F(EditorBindings, CellsShowAndAreGoneTo) {
  window().grid.TextMatrix(1, 1, u"x");
  EXPECT_EQ(table().item(1, 1)->text(), "x");
  int entered = 0;
  window().grid.EnterCell.handle([&] { ++entered; });
  table().setCurrentCell(1, 0);
  EXPECT_EQ(window().grid.row(), 1);
  EXPECT_EQ(entered, 1);
  window().grid.go_to(0, 1);
  EXPECT_EQ(table().currentRow(), 0);
  EXPECT_EQ(table().currentColumn(), 1);
}

TEST_F(EditorBindings, TheEditorOutlivesTheControl) {
  window().text.Text.write(u"abc");
  view->release();
  EXPECT_EQ(edit().toPlainText(), "");
}

}  // namespace
}  // namespace tarnmill::desktop
