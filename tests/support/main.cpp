#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/skin/skin.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application{argc, argv};
  tarnmill::desktop::apply_skin(application);
  return RUN_ALL_TESTS();
}
