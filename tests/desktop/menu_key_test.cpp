#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "app/windows.h"
#include "desktop/qt_desk.h"
#include "desktop/skin/key.h"
#include "forms/workbench.h"
#include "graph/frm_func.h"
#include "script/temporary_folder.h"

namespace tarnmill::desktop {
namespace {

/// Graph mode on the screen, with menus as they really open.
class MenuKey : public ::testing::Test {
 protected:
  MenuKey() {
    register_windows(bench);
    bench.enter([this] { graph().Show(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desk.view(graph())));
  }

  /// A menu takes the release to itself, so the tester of the toolkit has the button down still.
  void TearDown() override { QTest::mouseRelease(&key(), Qt::LeftButton); }

  frmFunc& graph() { return bench.window<frmFunc>(); }
  Key& key() { return *desk.view(graph()).findChild<Key*>("cmdZoom"); }

  /// Presses the zoom key down and does something with the menu that opens.
  void press(const std::function<void(QMenu&)>& use) {
    QTimer::singleShot(0, qApp, [use] {
      auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(shown, nullptr);
      use(*shown);
    });
    QTest::mousePress(&key(), Qt::LeftButton);
  }

  TemporaryFolder folder;
  QtDesk desk{folder.path(), Views::eager};
  Workbench bench{desk};
};

TEST_F(MenuKey, IsUpAgainWhenItsMenuHasClosed) {
  press([](QMenu& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  EXPECT_FALSE(key().isDown());
  EXPECT_EQ(graph().lblzm.Caption.get(), u"20");
}

TEST_F(MenuKey, GivesTheFocusBackToTheField) {
  press([](QMenu& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  EXPECT_EQ(bench.focus(), &graph().txtY);
}

TEST_F(MenuKey, OpensTheZoomsOfWhichOneIsTicked) {
  press([](QMenu& shown) {
    QStringList captions;
    for (const QAction* each : shown.actions()) captions += (each->isChecked() ? "*" : "") + each->text();
    EXPECT_EQ(captions, (QStringList{"Zoom In", "Zoom Out", "*Default", "Fine Zooming"}));
    QTest::keyClick(&shown, Qt::Key_Down);
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  EXPECT_EQ(graph().lblzm.Caption.get(), u"40");
  EXPECT_FALSE(key().isDown());
}

}  // namespace
}  // namespace tarnmill::desktop
