#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "desktop/skin/deck.h"
#include "desktop/skin/ground.h"
#include "desktop/skin/key.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {
namespace {

/// A key of 60 by 48 at 40,40 on a shown window of 160 by 140.
class KeyOnAWindow : public testing::Test {
 protected:
  KeyOnAWindow() {
    window.resize(160, 140);
    window.setKind(GroundKind::body);
    key.setGeometry(40, 40, 60, 48);
    key.setText("&sin");
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }

  QImage picture() { return window.grab().toImage(); }

  Ground window;
  Key key{&window};
};

TEST_F(KeyOnAWindow, ActivatesByClickSpaceEnterAndMnemonic) {
  const QSignalSpy clicks(&key, &Key::clicked);
  QTest::mouseClick(&key, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
  for (const Qt::Key pressed : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    key.setFocus();
    QTest::keyClick(&key, pressed);
  }
  EXPECT_EQ(clicks.count(), 4);
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  QTest::qWait(150);
  EXPECT_EQ(clicks.count(), 5);
}

TEST_F(KeyOnAWindow, DoesNothingWhileDisabled) {
  const QSignalSpy clicks(&key, &Key::clicked);
  key.setEnabled(false);
  QTest::mouseClick(&key, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(KeyOnAWindow, LooksPressedWhileHeldAsUnderAFinger) {
  const QImage resting = picture();
  key.setHeld(true);
  const QImage held = picture();
  EXPECT_NE(resting, held);
  key.setHeld(false);
  EXPECT_EQ(resting, picture());
  key.setDown(true);
  EXPECT_EQ(held, picture());
}

TEST_F(KeyOnAWindow, SinksTwoPixelsWhenPressed) {
  // In the middle of the top edge, away from the rounded corners.
  const QColor resting = picture().pixelColor(70, 41);
  key.setHeld(true);
  EXPECT_NE(picture().pixelColor(70, 41), resting);
  EXPECT_EQ(picture().pixelColor(70, 43), palette::mix(palette::function, Qt::black, 0.14));
  // One pixel of the lip is left.
  EXPECT_EQ(picture().pixelColor(70, 87), palette::function_lip);
  EXPECT_NE(picture().pixelColor(70, 86), palette::function_lip);
}

TEST_F(KeyOnAWindow, HasALipOfThreePixelsWithinItsHeight) {
  const QImage image = picture();
  for (const int y : {85, 86, 87}) {
    EXPECT_EQ(image.pixelColor(70, y), palette::function_lip) << y;
  }
  EXPECT_NE(image.pixelColor(70, 84), palette::function_lip);
}

TEST_F(KeyOnAWindow, CastsAShadowJustBelowItselfWhileItShows) {
  const QColor shaded = picture().pixelColor(70, 88);
  key.hide();
  const QColor bare = picture().pixelColor(70, 88);
  EXPECT_LT(shaded.lightness(), bare.lightness());
}

TEST_F(KeyOnAWindow, FocusDrawsARingOutsideTheKeyInTheColourOfTheGround) {
  key.setFocus();
  ASSERT_TRUE(key.hasFocus());
  EXPECT_EQ(picture().pixelColor(38, 64), palette::focus_on_dark);
  window.setKind(GroundKind::bone);
  EXPECT_EQ(picture().pixelColor(38, 64), palette::focus_on_light);
  key.clearFocus();
  EXPECT_NE(picture().pixelColor(38, 64), palette::focus_on_light);
}

TEST_F(KeyOnAWindow, AFlatKeyHasItsRingInside) {
  key.setRole(KeyRole::close);
  key.setFocus();
  EXPECT_EQ(picture().pixelColor(41, 64), palette::focus_on_dark);
  EXPECT_NE(picture().pixelColor(38, 64), palette::focus_on_dark);
}

TEST_F(KeyOnAWindow, EveryStateLooksDifferent) {
  QList<QImage> looks{picture()};
  const auto take = [&] {
    const QImage now = picture();
    EXPECT_FALSE(looks.contains(now)) << looks.size();
    looks += now;
  };
  key.setLamp(KeyLamp::off);
  take();
  key.setLamp(KeyLamp::on);
  take();
  key.setLamp(KeyLamp::none);
  key.setChip("DEG");
  take();
  key.setChip("RAD");
  take();
  key.setChip("");
  key.setChosen(true);
  take();
  key.setChosen(false);
  key.setChevron(true);
  take();
  key.setChevron(false);
  key.setSuperscript("-1");
  take();
  key.setSuperscript("");
  key.setIconName("copy");
  take();
  key.setStacked(true);
  take();
  key.setEnabled(false);
  take();
}

TEST_F(KeyOnAWindow, ASignDrawnAsAnIconDoesNotShowItsLetter) {
  key.setIconName("times");
  key.setText("X");
  const QImage with_letter = picture();
  key.setText("");
  EXPECT_EQ(with_letter, picture());
}

TEST_F(KeyOnAWindow, TheMouseReachesKeysThroughOverlayAndDecks) {
  Deck deck(&window);
  deck.setGeometry(0, 0, 160, 140);
  deck.show();
  EXPECT_EQ(window.childAt(70, 64), &key);
  EXPECT_EQ(window.childAt(10, 10), nullptr);
}

TEST_F(KeyOnAWindow, LipAndCornersFollowTheHeight) {
  EXPECT_EQ(lip_height(33), 2);
  EXPECT_EQ(lip_height(34), 3);
  EXPECT_EQ(corner_radius(33), 6);
  EXPECT_EQ(corner_radius(34), 8);
}

TEST(Ground, TheCaseFadesFromDarkRedToBlueInBandsOfEqualHeight) {
  Ground window;
  window.setKind(GroundKind::banded_case);
  window.resize(20, 512);
  const QImage image = window.grab().toImage();
  for (int y = 0; y < 512; ++y) {
    EXPECT_EQ(image.pixelColor(10, y), QColor(50, 0, y / 2)) << y;
  }
}

TEST(Ground, AWindowWithoutAPlatformsFrameHasALineAroundIt) {
  Ground window;
  window.resize(60, 60);
  const struct {
    GroundKind kind;
    QColor edge;
  } rows[] = {{GroundKind::bone, palette::line_on_bone},
              {GroundKind::framed_bone, palette::bone},
              {GroundKind::body, palette::body_line}};
  for (const auto& row : rows) {
    window.setKind(row.kind);
    const QImage image = window.grab().toImage();
    EXPECT_EQ(image.pixelColor(0, 30), row.edge);
    EXPECT_EQ(image.pixelColor(59, 30), row.edge);
  }
}

}  // namespace
}  // namespace tarnmill::desktop
