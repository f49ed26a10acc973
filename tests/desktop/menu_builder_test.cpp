#include "desktop/menu_builder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "desktop/sample_desk.h"
#include "forms/menu_item.h"

namespace tarnmill::desktop {
namespace {

class MenuWindow final : public Window {
 public:
  static constexpr std::string_view class_name = "MenuWindow";
  explicit MenuWindow(Workbench& workbench) : Window{workbench, class_name} {
    Open.Click.handle([this] { ++opened; });
  }

  MenuItem File{*this, "File", u"File"};
  MenuItem Open{*this, File, "Open", u"&Open..."};
  MenuItem Line1{*this, File, "Line1", u"-"};
  MenuItem Ticked{*this, File, "Ticked", u"Ticked"};
  MenuItem Hidden{*this, File, "Hidden", u"Hidden"};
  MenuItem Dull{*this, File, "Dull", u"Dull"};
  MenuItem More{*this, File, "More", u"More"};
  MenuItem Inner{*this, More, "Inner", u"Inner"};
  int opened = 0;
};

class Menus : public ::testing::Test {
 protected:
  Menus() {
    bench.add_window("MenuWindow", [](Workbench& w) { return std::make_unique<MenuWindow>(w); });
    window().Ticked.Checked = true;
    window().Hidden.Visible = false;
    window().Dull.Enabled = false;
    build_menu(menu, window().File);
  }

  MenuWindow& window() { return bench.window<MenuWindow>(); }

  TemporaryFolder folder;
  QtDesk desk{folder.path(), Views::on_demand};
  Workbench bench{desk};
  QMenu menu;
};

TEST_F(Menus, HaveTheVisibleEntriesInOrder) {
  QStringList captions;
  for (const QAction* each : menu.actions()) captions += each->isSeparator() ? "-" : each->text();
  EXPECT_EQ(captions, (QStringList{"&Open...", "-", "Ticked", "Dull", "More"}));
}

TEST_F(Menus, ShowMarksAndWhatCannotBeChosen) {
  const QList<QAction*> actions = menu.actions();
  EXPECT_FALSE(actions[0]->isCheckable());
  EXPECT_TRUE(actions[0]->isEnabled());
  EXPECT_TRUE(actions[2]->isChecked());
  EXPECT_FALSE(actions[3]->isEnabled());
}

TEST_F(Menus, StandWithinMenus) {
  const QMenu* inner = menu.actions()[4]->menu();
  ASSERT_NE(inner, nullptr);
  ASSERT_EQ(inner->actions().size(), 1);
  EXPECT_EQ(entry_of(inner->actions()[0]), &window().Inner);
}

TEST_F(Menus, AnActionKnowsItsEntry) {
  EXPECT_EQ(entry_of(menu.actions()[0]), &window().Open);
  EXPECT_EQ(entry_of(menu.actions()[1]), nullptr);
  EXPECT_EQ(entry_of(nullptr), nullptr);
}

/// Runs `act` on the menu that pops up next.
void on_popup(const std::function<void(QMenu&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(shown, nullptr);
    act(*shown);
  });
}

TEST_F(Menus, AnEntryThatIsChosenIsClicked) {
  on_popup([](QMenu& shown) { QTest::keyClick(&shown, Qt::Key_O); });
  bench.enter([this] { window().PopupMenu(window().File, 150, 300); });
  EXPECT_EQ(window().opened, 1);
}

TEST_F(Menus, APopupOpensAtItsPlaceInTheWindow) {
  QPoint place;
  on_popup([&place](QMenu& shown) {
    place = shown.pos();
    shown.close();
  });
  bench.enter([this] { window().PopupMenu(window().File, 150, 300); });
  EXPECT_EQ(place, desk.view(window()).mapToGlobal(QPoint(10, 20)));
  EXPECT_EQ(window().opened, 0);
}

TEST_F(Menus, APopupLeftAloneChoosesNothing) {
  on_popup([](QMenu& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  bench.enter([this] { window().PopupMenu(window().File); });
  EXPECT_EQ(window().opened, 0);
}

}  // namespace
}  // namespace tarnmill::desktop
