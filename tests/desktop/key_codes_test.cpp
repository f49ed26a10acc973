#include "desktop/binder/key_codes.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace tarnmill::desktop {
namespace {

struct Row {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  int code;
};

const Row rows[] = {
    {Qt::Key_0, Qt::NoModifier, 48},
    {Qt::Key_9, Qt::NoModifier, 57},
    {Qt::Key_0, Qt::KeypadModifier, 96},
    {Qt::Key_9, Qt::KeypadModifier, 105},
    {Qt::Key_A, Qt::NoModifier, 65},
    {Qt::Key_K, Qt::ShiftModifier, 75},
    {Qt::Key_Z, Qt::NoModifier, 90},
    {Qt::Key_Asterisk, Qt::KeypadModifier, 106},
    {Qt::Key_Plus, Qt::KeypadModifier, 107},
    {Qt::Key_Minus, Qt::KeypadModifier, 109},
    {Qt::Key_Period, Qt::KeypadModifier, 110},
    {Qt::Key_Comma, Qt::KeypadModifier, 110},
    {Qt::Key_Slash, Qt::KeypadModifier, 111},
    {Qt::Key_Asterisk, Qt::ShiftModifier, 106},
    {Qt::Key_Plus, Qt::ShiftModifier, 107},
    {Qt::Key_Minus, Qt::NoModifier, 109},
    {Qt::Key_Period, Qt::NoModifier, 110},
    {Qt::Key_Comma, Qt::NoModifier, 110},
    {Qt::Key_Slash, Qt::NoModifier, 111},
    {Qt::Key_Return, Qt::NoModifier, 13},
    {Qt::Key_Enter, Qt::KeypadModifier, 13},
    {Qt::Key_Escape, Qt::NoModifier, 27},
    {Qt::Key_Delete, Qt::NoModifier, 46},
    {Qt::Key_Backspace, Qt::NoModifier, 8},
    {Qt::Key_Tab, Qt::NoModifier, 9},
    {Qt::Key_Backtab, Qt::ShiftModifier, 9},
    {Qt::Key_Left, Qt::NoModifier, 37},
    {Qt::Key_Up, Qt::NoModifier, 38},
    {Qt::Key_Right, Qt::NoModifier, 39},
    {Qt::Key_Down, Qt::NoModifier, 40},
    {Qt::Key_F1, Qt::NoModifier, 112},
    {Qt::Key_F12, Qt::NoModifier, 123},
    {Qt::Key_Space, Qt::NoModifier, 32},
    {Qt::Key_ParenLeft, Qt::ShiftModifier, 0},
    {Qt::Key_AsciiCircum, Qt::ShiftModifier, 0},
};

TEST(KeyCodes, AreThoseOfThePlatform) {
  for (const Row& row : rows) {
    const QKeyEvent event{QEvent::KeyPress, row.key, row.modifiers};
    EXPECT_EQ(key_code(event), row.code) << row.key;
  }
}

TEST(KeyCodes, ACodeFindsAKeyThatHasIt) {
  for (int code = 1; code < 256; ++code) {
    const Qt::Key key = key_of(code);
    if (key == Qt::Key_unknown || code == 108) continue;
    const bool keypad = code >= 96 && code <= 105;
    const QKeyEvent event{QEvent::KeyPress, key, keypad ? Qt::KeypadModifier : Qt::NoModifier};
    EXPECT_EQ(key_code(event), code);
  }
  EXPECT_EQ(key_of(39), Qt::Key_Right);
  EXPECT_EQ(key_of(108), Qt::Key_Enter);
  EXPECT_EQ(key_of(0), Qt::Key_unknown);
}

TEST(KeyCodes, ShiftStatesAddUp) {
  EXPECT_EQ(shift_state(Qt::NoModifier), 0);
  EXPECT_EQ(shift_state(Qt::ShiftModifier), 1);
  EXPECT_EQ(shift_state(Qt::ControlModifier), 2);
  EXPECT_EQ(shift_state(Qt::AltModifier | Qt::ShiftModifier | Qt::ControlModifier), 7);
}

TEST(KeyCodes, ButtonsAreLeftRightAndMiddle) {
  EXPECT_EQ(button_code(Qt::LeftButton), 1);
  EXPECT_EQ(button_code(Qt::RightButton), 2);
  EXPECT_EQ(button_code(Qt::MiddleButton), 4);
  EXPECT_EQ(button_code(Qt::NoButton), 0);
  EXPECT_EQ(button_state(Qt::LeftButton | Qt::RightButton), 3);
}

}  // namespace
}  // namespace tarnmill::desktop
