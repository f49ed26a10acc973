#include <gtest/gtest.h>

#include <QImage>

#include "desktop/qt_raster.h"
#include "desktop/sample_desk.h"

namespace tarnmill::desktop {
namespace {

class ShownSurface : public SampleView {
 protected:
  PictureBox& surface() { return sample().surface; }
  /// What a person sees of it.
  QImage seen() {
    return widget<SurfaceView>("surface").grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  QImage raster() { return image_of(surface().raster()); }
};

TEST_F(ShownSurface, ShowsTheRasterPixelByPixel) {
  surface().Line(0, 0, 39, 29, rgb(0, 0, 255));
  surface().Line(5, 20, 30, 2, rgb(241, 82, 35));
  EXPECT_EQ(seen(), raster());
}

TEST_F(ShownSurface, ShowsOverlayLinesWithoutDrawingThem) {
  const QImage before = raster();
  sample().line.X2 = 39;
  sample().line.Y2 = 29;
  sample().line.BorderColor = rgb(255, 0, 0);
  sample().line.Visible = true;
  EXPECT_EQ(raster(), before);
  EXPECT_EQ(seen().pixel(0, 0), qRgb(255, 0, 0));
  EXPECT_EQ(seen().pixel(39, 29), qRgb(255, 0, 0));
  sample().line.Visible = false;
  EXPECT_EQ(seen(), before);
}

TEST_F(ShownSurface, AnOverlayLineTakenInCoversTheSamePixels) {
  sample().line.X1 = 3;
  sample().line.Y1 = 1;
  sample().line.X2 = 37;
  sample().line.Y2 = 22;
  sample().line.BorderColor = rgb(255, 0, 0);
  sample().line.Visible = true;
  const QImage floating = seen();
  surface().TakeInOverlayLines();
  sample().line.Visible = false;
  EXPECT_EQ(seen(), floating);
}

TEST_F(ShownSurface, AFrozenPictureComesBackWhenErased) {
  surface().Line(0, 5, 39, 5, rgb(0, 0, 255));
  const QImage frozen = raster();
  surface().FreezePicture();
  surface().Line(0, 9, 39, 9, rgb(0, 255, 0));
  surface().Cls();
  EXPECT_EQ(seen(), frozen);
  surface().RemovePicture();
  EXPECT_EQ(seen().pixel(3, 5), to_qt(rgb(10, 20, 30)));
}

TEST_F(ShownSurface, ANewBackColourErases) {
  surface().Line(0, 5, 39, 5, rgb(0, 0, 255));
  surface().BackColor = rgb(1, 2, 3);
  EXPECT_EQ(seen().pixel(3, 5), to_qt(rgb(1, 2, 3)));
  EXPECT_EQ(surface().Point(3, 5), rgb(1, 2, 3));
}

/// Notes which part of the view is painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  QRegion painted;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += dynamic_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(ShownSurface, RepaintsTheNewSegmentOnly) {
  QApplication::processEvents();
  PaintWatch watch{widget<SurfaceView>("surface")};
  surface().Line(10, 10, 14, 12, rgb(0, 0, 255));
  QApplication::processEvents();
  EXPECT_TRUE(watch.painted.contains(QRect(10, 10, 5, 3)));
  EXPECT_LE(watch.painted.boundingRect().width(), 7);
  EXPECT_LE(watch.painted.boundingRect().height(), 5);
}

}  // namespace
}  // namespace tarnmill::desktop
