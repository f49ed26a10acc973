#include <gtest/gtest.h>

#include <QTimer>

#include "desktop/sample_desk.h"

namespace tarnmill::desktop {
namespace {

class OtherWindow final : public SampleWindow {
 public:
  static constexpr std::string_view class_name = "OtherWindow";
  explicit OtherWindow(Workbench& workbench) : SampleWindow{workbench, class_name} {}
};

class ViewOfAWindow : public SampleView {
 protected:
  ViewOfAWindow() {
    bench.add_window("OtherWindow", [](Workbench& w) { return std::make_unique<OtherWindow>(w); });
  }

  OtherWindow& other() { return bench.window<OtherWindow>(); }
  QWidget& other_form() { return *desk.store.find(other()); }
  void show_other() {
    bench.enter([this] { other().Show(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other_form()));
  }
};

TEST_F(ViewOfAWindow, IsBuiltWhenItsWindowFirstShows) {
  EXPECT_EQ(desk.store.find(other()), nullptr);
  show_other();
  EXPECT_TRUE(other_form().isVisible());
  bench.enter([this] { other().Hide(); });
  EXPECT_FALSE(other_form().isVisible());
}

TEST_F(ViewOfAWindow, HasTheWindowsCaption) {
  sample().Caption = u"Graph Mode";
  EXPECT_EQ(form().windowTitle(), "Graph Mode");
}

TEST_F(ViewOfAWindow, TheFormsSizeIsTheWindowsUnlessItHasOne) {
  EXPECT_EQ(sample().Width.get(), 4500);
  EXPECT_EQ(sample().Height.get(), 4500);
}

TEST_F(ViewOfAWindow, GeometryIsTwipsBothWays) {
  sample().Width = 6000;
  sample().Left = 750;
  EXPECT_EQ(form().width(), 400);
  EXPECT_EQ(form().x(), 50);
  notes().clear();
  form().resize(500, 310);
  form().move(70, 20);
  QApplication::processEvents();
  EXPECT_EQ(sample().Width.get(), 7500);
  EXPECT_EQ(sample().Height.get(), 4650);
  EXPECT_EQ(sample().Left.get(), 1050);
  EXPECT_EQ(sample().Top.get(), 300);
  EXPECT_EQ(notes(), Notes{"Resize"});
}

TEST_F(ViewOfAWindow, TheStateGoesBothWays) {
  sample().WindowState = 2;
  EXPECT_TRUE(form().isMaximized());
  sample().WindowState = 0;
  EXPECT_FALSE(form().isMaximized());
  form().showMinimized();
  QApplication::processEvents();
  EXPECT_EQ(sample().WindowState.get(), 1);
}

TEST_F(ViewOfAWindow, TheCloseBoxAsksTheWindow) {
  bool refuse = true;
  sample().QueryUnload.handle([&refuse](std::int16_t& cancel) { cancel = refuse ? 1 : 0; });
  form().close();
  EXPECT_TRUE(form().isVisible());
  EXPECT_NE(bench.find_window("SampleWindow"), nullptr);
  refuse = false;
  form().close();
  EXPECT_EQ(bench.find_window("SampleWindow"), nullptr);
  EXPECT_TRUE(bench.ended());
}

TEST_F(ViewOfAWindow, ComingFromAnotherWindowActivates) {
  show_other();
  notes().clear();
  other().notes.clear();
  form().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
  EXPECT_EQ(notes(), Notes{"Activate"});
  EXPECT_EQ(bench.active_window(), &sample());
  EXPECT_EQ(other().notes, Notes{});
}

TEST_F(ViewOfAWindow, ReturningFromADialogActivatesNothing) {
  QWidget dialog;
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  form().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
  EXPECT_EQ(notes(), Notes{});
}

TEST_F(ViewOfAWindow, AWindowShownAgainComesForward) {
  show_other();
  bench.enter([this] { sample().Show(); });
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form()));
  EXPECT_EQ(notes(), Notes{"Activate"});
}

TEST_F(ViewOfAWindow, APressInAWindowMakesItTheActiveOne) {
  show_other();
  notes().clear();
  QTest::mouseClick(&widget("Keys_1"), Qt::LeftButton);
  EXPECT_EQ(bench.active_window(), &sample());
  EXPECT_EQ(notes(), (Notes{"Activate", "Keys 1"}));
}

TEST_F(ViewOfAWindow, IsDraggedByTheMouseThatHoldsIt) {
  sample().MouseDown.handle([this](int, int, float, float) { desk.start_move(sample()); });
  form().move(100, 100);
  auto& ground = widget<QWidget>("deco_ground");
  QCursor::setPos(ground.mapToGlobal(QPoint{20, 20}));
  QTest::mousePress(&ground, Qt::LeftButton, Qt::NoModifier, {20, 20});
  QTest::mouseMove(&ground, {50, 35});
  EXPECT_EQ(form().pos(), QPoint(130, 115));
  QTest::mouseRelease(&ground, Qt::LeftButton, Qt::NoModifier, {20, 20});
  QTest::mouseMove(&ground, {90, 95});
  EXPECT_EQ(form().pos(), QPoint(130, 115));
  EXPECT_EQ(sample().Left.get(), 1950);
}

TEST_F(ViewOfAWindow, AModalOneHoldsItsCallerUntilItHides) {
  bool returned = false;
  QTimer::singleShot(0, &form(), [this, &returned] {
    EXPECT_FALSE(returned);
    EXPECT_EQ(other_form().windowModality(), Qt::ApplicationModal);
    bench.enter([this] { other().Hide(); });
  });
  bench.enter([this, &returned] {
    other().ShowModal();
    returned = true;
  });
  EXPECT_TRUE(returned);
  EXPECT_FALSE(other_form().isVisible());
}

TEST_F(ViewOfAWindow, StaysAboveTheOthersWhenTold) {
  desk.store.set_on_top(sample(), true);
  EXPECT_TRUE(form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(form().isVisible());
  desk.store.set_on_top(sample(), false);
  EXPECT_FALSE(form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(ViewOfAWindow, TimersRunInRealTime) {
  sample().timer.Interval = 20;
  sample().timer.Enabled = true;
  ASSERT_TRUE(QTest::qWaitFor([this] { return !notes().empty(); }, 2000));
  EXPECT_EQ(notes().front(), "Timer");
}

TEST_F(ViewOfAWindow, ATimerWaitsFromItsStart) {
  QTest::qWait(150);
  QElapsedTimer clock;
  sample().cmd.Click.handle([this, &clock] {
    sample().timer.Interval = 100;
    sample().timer.Enabled = true;
    clock.start();
  });
  QTest::mouseClick(&widget("cmd"), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitFor([this] { return notes().back() == "Timer"; }, 2000));
  EXPECT_GE(clock.elapsed(), 99);
}

}  // namespace
}  // namespace tarnmill::desktop
