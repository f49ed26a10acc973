#include <gtest/gtest.h>

#include <QLineEdit>

#include "desktop/program_fixture.h"
#include "desktop/skin/stepper.h"
#include "desktop/skin/swatch.h"
#include "desktop/surface_view.h"
#include "forms/menu_item.h"
#include "graph/frm_func.h"
#include "graph/frm_unesit.h"

namespace tarnmill::desktop {
namespace {

class LabelByHand : public ProgramByHand {
 protected:
  LabelByHand() {
    bench.enter([this] { bench.window("Form1").Hide(); });
    show("frmFunc");
  }

  frmFunc& window() { return bench.window<frmFunc>(); }
  SurfaceView& plot() { return widget<SurfaceView>("frmFunc", "pDraw"); }
  SurfaceView& box() { return widget<SurfaceView>("frmFunc", "picMCRBox"); }
  QLineEdit& field(const char* name) { return widget<QLineEdit>("frmFunc", name); }
  void place(const QString& text) {
    click("frmFunc", "Command3");
    field("Text2").setFocus();
    QTest::keyClicks(&field("Text2"), text);
    click("frmFunc", "cmdLabel");
  }
  /// Drags the box by so many pixels.
  void drag(const QPoint& by) {
    const QPoint start{5, 5};
    QTest::mousePress(&box(), Qt::LeftButton, Qt::NoModifier, start);
    QMouseEvent move{QEvent::MouseMove, start + by,     box().mapToGlobal(start + by),
                     Qt::NoButton,      Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&box(), &move);
    QTest::mouseRelease(&box(), Qt::LeftButton, Qt::NoModifier, start);
  }
};

TEST_F(LabelByHand, TheFrameComesAndGoes) {
  EXPECT_FALSE(widget<QWidget>("frmFunc", "frmText").isVisible());
  click("frmFunc", "Command3");
  EXPECT_TRUE(widget<QWidget>("frmFunc", "frmText").isVisible());
  EXPECT_TRUE(widget("frmFunc", "cmdLabel").isVisible());
  click("frmFunc", "cmdTextCancel");
  EXPECT_FALSE(widget<QWidget>("frmFunc", "frmText").isVisible());
}

TEST_F(LabelByHand, ALabelIsTypedDraggedAndStamped) {
  place("a label");
  ASSERT_TRUE(box().isVisible());
  EXPECT_EQ(box().pos(), plot().pos() + QPoint(7, 7));
  EXPECT_EQ(box().width(), qRound(window().picMCRBox.Width / 15));
  drag({100, 50});
  EXPECT_EQ(box().pos(), plot().pos() + QPoint(107, 57));
  QTest::mouseClick(&box(), Qt::RightButton);
  ASSERT_NE(window().popup_shown(), nullptr);
  EXPECT_EQ(window().popup_shown()->name(), "mnulabel");
  const QImage before = plot().grab().toImage();
  bench.enter([this] { window().stamp_label(); });
  EXPECT_FALSE(box().isVisible());
  EXPECT_NE(plot().grab().toImage(), before);
}

TEST_F(LabelByHand, TheFieldThatTheFocusComesBackToKeepsItsSelection) {
  bench.enter([this] { window().txtY.Text = u"K^2"; });
  window().txtY.select(3, 0);
  place("a label");
  EXPECT_EQ(window().txtY.sel_start(), 3);
  EXPECT_EQ(window().txtY.sel_length(), 0);
}

TEST_F(LabelByHand, TheBoxShowsItsTextInABrokenLine) {
  place("a label");
  const QImage seen = box().grab().toImage();
  EXPECT_NE(seen.pixel(0, 0), seen.pixel(4, 0)) << "a dash and a gap";
  int inked = 0;
  for (int x = 2; x < seen.width() - 2; ++x) {
    for (int y = 2; y < seen.height() - 2; ++y)
      inked += seen.pixel(x, y) != seen.pixel(seen.width() - 2, 2) ? 1 : 0;
  }
  EXPECT_GT(inked, 10);
}

TEST_F(LabelByHand, TheArrowsTurnTheLabel) {
  click("frmFunc", "Command3");
  auto& arrows = widget<Stepper>("frmFunc", "VsbPtrnNo");
  QTest::mouseClick(&arrows, Qt::LeftButton, Qt::NoModifier, {10, 4});
  EXPECT_EQ(field("txtAngle").text(), "1");
  QTest::mouseClick(&arrows, Qt::LeftButton, Qt::NoModifier, {10, 24});
  QTest::mouseClick(&arrows, Qt::LeftButton, Qt::NoModifier, {10, 24});
  EXPECT_EQ(field("txtAngle").text(), "-1");
}

TEST_F(LabelByHand, AnArrowThatIsHeldGoesOn) {
  click("frmFunc", "Command3");
  auto& arrows = widget<Stepper>("frmFunc", "VsbPtrnNo");
  QTest::mousePress(&arrows, Qt::LeftButton, Qt::NoModifier, {10, 4});
  EXPECT_TRUE(QTest::qWaitFor([&] { return field("txtAngle").text().toInt() >= 3; }));
  QTest::mouseRelease(&arrows, Qt::LeftButton, Qt::NoModifier, {10, 4});
  const QString left_at = field("txtAngle").text();
  QTest::qWait(200);
  EXPECT_EQ(field("txtAngle").text(), left_at);
}

TEST_F(LabelByHand, TheSwatchShowsTheColourChosen) {
  click("frmFunc", "Command3");
  auto& swatch = widget<Swatch>("frmFunc", "LabCUL");
  const auto shown = [&] { return swatch.grab().toImage().pixelColor(30, 14); };
  EXPECT_EQ(shown(), QColor(Qt::black));
  desk.answer(rgb(200, 10, 20));
  click("frmFunc", "cmdBoja");
  EXPECT_EQ(shown(), QColor(200, 10, 20));
}

TEST_F(LabelByHand, ATangentIsHeldWithTheRightButton) {
  bench.enter([this] {
    window().txtY.Text = u"K";
    window().plot();
  });
  const QImage before = plot().grab().toImage();
  QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, {230, 100});
  const QImage held = plot().grab().toImage();
  EXPECT_EQ(held.pixelColor(230, 50), QColor(241, 82, 35));
  QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, {230, 100});
  EXPECT_EQ(plot().grab().toImage(), before);
}

TEST_F(LabelByHand, ALastingTangentIsTypedAndEntered) {
  bench.enter([this] {
    window().txtY.Text = u"K^2";
    window().plot();
  });
  key("frmFunc", Qt::Key_T);
  auto& prompt = form("frmunesit");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&prompt));
  auto& point = widget<QLineEdit>("frmunesit", "Text1");
  EXPECT_TRUE(point.hasFocus());
  EXPECT_EQ(point.selectedText(), "0");
  QTest::keyClicks(&point, "1");
  QTest::keyClick(&point, Qt::Key_Return);
  EXPECT_FALSE(prompt.isVisible());
  EXPECT_EQ(field("txtY").text(), "2*K - 1");
}

}  // namespace
}  // namespace tarnmill::desktop
