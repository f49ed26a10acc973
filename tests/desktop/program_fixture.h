#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "app/windows.h"
#include "desktop/skin/key.h"
#include "forms/workbench.h"
#include "script/scripted_desk.h"
#include "script/temporary_folder.h"

namespace tarnmill::desktop {

/// The whole program with its windows on the screen, used by hand: mouse and keyboard are real, only dialogs
/// are answered for the person.
class ProgramByHand : public ::testing::Test {
 protected:
  ProgramByHand() {
    desk.begin(bench);
    register_windows(bench);
    bench.enter([this] { bench.window("Form1").Show(); });
  }

  /// Shows the window of this name and waits until it is the active one.
  Window& show(const char* name) {
    Window& window = bench.window(name);
    bench.enter([&window] { window.Show(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desk.view(window)));
    return window;
  }

  QWidget& form(const char* name) { return desk.view(bench.window(name)); }
  template <class W = Key>
  W& widget(const char* window, const QString& name) {
    W* found = form(window).findChild<W*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return *found;
  }
  /// A click of the left button.
  void click(const char* window, const QString& name) {
    QTest::mouseClick(&widget<QWidget>(window, name), Qt::LeftButton);
  }
  /// A key, wherever the focus of the window is.
  void key(const char* window, Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = form(window).focusWidget();
    QTest::keyClick(focus == nullptr ? &form(window) : focus, code, modifiers);
  }

  TemporaryFolder folder;
  ScriptedDesk desk{folder.path(), Views::eager};
  Workbench bench{desk};
};

}  // namespace tarnmill::desktop
