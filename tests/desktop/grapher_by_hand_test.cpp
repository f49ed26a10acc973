#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>

#include "desktop/program_fixture.h"
#include "desktop/qt_raster.h"
#include "desktop/surface_view.h"
#include "forms/menu_item.h"
#include "graph/frm_func.h"

namespace tarnmill::desktop {
namespace {

class GrapherByHand : public ProgramByHand {
 protected:
  GrapherByHand() {
    bench.enter([this] { bench.window("Form1").Hide(); });
    show("frmFunc");
  }

  frmFunc& window() { return bench.window<frmFunc>(); }
  void press(const QStringList& names) {
    for (const QString& each : names) click("frmFunc", each);
  }
  QLineEdit& y_field() { return widget<QLineEdit>("frmFunc", "txtY"); }
  /// What a person sees of the plot.
  QImage plot() { return widget<SurfaceView>("frmFunc", "pDraw").grab().toImage(); }
  bool has_curve() {
    const QImage seen = plot();
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        if (seen.pixel(x, y) == qRgb(0, 0, 255)) return true;
      }
    }
    return false;
  }
};

TEST_F(GrapherByHand, AFunctionIsKeyedAndDrawn) {
  EXPECT_FALSE(has_curve());
  press({"cmdSymbol_10", "cmdStepen", "cmdSymbol_2"});
  EXPECT_EQ(y_field().text(), "K^2");
  press({"cmdDraw"});
  EXPECT_TRUE(has_curve());
  EXPECT_EQ(plot().convertToFormat(QImage::Format_RGB32), image_of(window().pDraw.raster()));
}

TEST_F(GrapherByHand, TheKeyboardKeysTheFieldThroughTheSameSymbols) {
  key("frmFunc", Qt::Key_K);
  key("frmFunc", Qt::Key_Plus);
  key("frmFunc", Qt::Key_1);
  EXPECT_EQ(y_field().text(), "K+1");
}

TEST_F(GrapherByHand, NothingElseIsTypedIntoTheFields) {
  QTest::keyClicks(&y_field(), "qz");
  EXPECT_EQ(y_field().text(), "");
}

TEST_F(GrapherByHand, EveryArrowMovesTheCaretToTheRight) {
  key("frmFunc", Qt::Key_K);
  key("frmFunc", Qt::Key_1);
  window().txtY.select(0, 0);
  key("frmFunc", Qt::Key_Left);
  EXPECT_EQ(y_field().cursorPosition(), 1);
  key("frmFunc", Qt::Key_Up);
  EXPECT_EQ(y_field().cursorPosition(), 2);
}

TEST_F(GrapherByHand, TheReadoutFollowsTheMouse) {
  QTest::mouseMove(&widget<SurfaceView>("frmFunc", "pDraw"), {230, 170});
  EXPECT_EQ(widget<QLabel>("frmFunc", "LblChart").text(), "   x = 1.5, y = 1.5");
  QTest::mouseMove(&widget<QWidget>("frmFunc", "deco_bar"), {400, 15});
  QTest::mouseMove(&form("frmFunc"), {3, 480});
  EXPECT_EQ(widget<QLabel>("frmFunc", "LblChart").text(), "");
}

TEST_F(GrapherByHand, TheChosenFieldTakesWhatIsKeyed) {
  press({"optAlign_1"});
  EXPECT_TRUE(widget("frmFunc", "optAlign_1").is_chosen());
  EXPECT_FALSE(widget("frmFunc", "optAlign_0").is_chosen());
  press({"cmdbrisi", "cmdSymbol_10", "cmdSymbol_13", "cmdSymbol_2"});
  EXPECT_EQ(widget<QLineEdit>("frmFunc", "txtX").text(), "K*2");
}

TEST_F(GrapherByHand, AMenuOpensFromItsName) {
  press({"Label1"});
  ASSERT_NE(window().popup_shown(), nullptr);
  EXPECT_EQ(window().popup_shown()->name(), "mnufile");
}

TEST_F(GrapherByHand, TheTitleBarsKeysMinimiseAndEnd) {
  press({"immini"});
  EXPECT_TRUE(form("frmFunc").isMinimized());
  press({"imclose"});
  EXPECT_TRUE(bench.ended());
}

TEST_F(GrapherByHand, IsDraggedByItsTitle) {
  auto& title = widget<QLabel>("frmFunc", "lblcap");
  form("frmFunc").move(100, 100);
  QCursor::setPos(title.mapToGlobal(QPoint{20, 10}));
  QTest::mousePress(&title, Qt::LeftButton, Qt::NoModifier, {20, 10});
  QTest::mouseMove(&title, {50, 25});
  EXPECT_EQ(form("frmFunc").pos(), QPoint(130, 115));
  QTest::mouseRelease(&title, Qt::LeftButton, Qt::NoModifier, {20, 10});
}

TEST_F(GrapherByHand, ComingBackFromTheCalculatorGivesTheFieldItsKeyboard) {
  show("Form1");
  bench.enter([this] { window().Show(); });
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form("frmFunc")));
  EXPECT_EQ(bench.focus(), &window().txtY);
  EXPECT_TRUE(y_field().hasFocus());
}

}  // namespace
}  // namespace tarnmill::desktop
