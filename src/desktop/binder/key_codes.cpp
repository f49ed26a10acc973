#include "desktop/binder/key_codes.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace tarnmill::desktop {

namespace {

struct KeyCode {
  Qt::Key key;
  int code;
};

// Where a code has several keys, the first is the one that stands for it.
constexpr std::array codes{
    KeyCode{Qt::Key_Backspace, 8},     KeyCode{Qt::Key_Tab, 9},         KeyCode{Qt::Key_Backtab, 9},
    KeyCode{Qt::Key_Clear, 12},        KeyCode{Qt::Key_Return, 13},     KeyCode{Qt::Key_Enter, 13},
    KeyCode{Qt::Key_Shift, 16},        KeyCode{Qt::Key_Control, 17},    KeyCode{Qt::Key_Alt, 18},
    KeyCode{Qt::Key_Pause, 19},        KeyCode{Qt::Key_CapsLock, 20},   KeyCode{Qt::Key_Escape, 27},
    KeyCode{Qt::Key_Space, 32},        KeyCode{Qt::Key_PageUp, 33},     KeyCode{Qt::Key_PageDown, 34},
    KeyCode{Qt::Key_End, 35},          KeyCode{Qt::Key_Home, 36},       KeyCode{Qt::Key_Left, 37},
    KeyCode{Qt::Key_Up, 38},           KeyCode{Qt::Key_Right, 39},      KeyCode{Qt::Key_Down, 40},
    KeyCode{Qt::Key_Print, 44},        KeyCode{Qt::Key_Insert, 45},     KeyCode{Qt::Key_Delete, 46},
    KeyCode{Qt::Key_Menu, 93},         KeyCode{Qt::Key_Asterisk, 106},  KeyCode{Qt::Key_Plus, 107},
    KeyCode{Qt::Key_Minus, 109},       KeyCode{Qt::Key_Period, 110},    KeyCode{Qt::Key_Comma, 110},
    KeyCode{Qt::Key_Slash, 111},       KeyCode{Qt::Key_NumLock, 144},   KeyCode{Qt::Key_ScrollLock, 145},
    KeyCode{Qt::Key_Semicolon, 186},   KeyCode{Qt::Key_Equal, 187},     KeyCode{Qt::Key_QuoteLeft, 192},
    KeyCode{Qt::Key_BracketLeft, 219}, KeyCode{Qt::Key_Backslash, 220}, KeyCode{Qt::Key_BracketRight, 221},
    KeyCode{Qt::Key_Apostrophe, 222}};

constexpr int keypad_zero = 96;
constexpr int separator = 108;
constexpr int first_function_key = 112;
constexpr int last_function_key = 135;

bool is_digit(int key) { return key >= Qt::Key_0 && key <= Qt::Key_9; }
bool is_letter(int key) { return key >= Qt::Key_A && key <= Qt::Key_Z; }

}  // namespace

int key_code(const QKeyEvent& event) {
  const int key = event.key();
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (is_digit(key)) return keypad ? keypad_zero + (key - Qt::Key_0) : key;
  if (is_letter(key)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return first_function_key + (key - Qt::Key_F1);
  const auto* found =
      std::find_if(codes.begin(), codes.end(), [key](const KeyCode& each) { return each.key == key; });
  return found == codes.end() ? 0 : found->code;
}

Qt::Key key_of(int code) {
  if (is_digit(code) || is_letter(code)) return static_cast<Qt::Key>(code);
  if (code >= keypad_zero && code < keypad_zero + 10)
    return static_cast<Qt::Key>(Qt::Key_0 + code - keypad_zero);
  if (code == separator) return Qt::Key_Enter;
  if (code >= first_function_key && code <= last_function_key) {
    return static_cast<Qt::Key>(Qt::Key_F1 + code - first_function_key);
  }
  const auto* found =
      std::find_if(codes.begin(), codes.end(), [code](const KeyCode& each) { return each.code == code; });
  return found == codes.end() ? Qt::Key_unknown : found->key;
}

int shift_state(Qt::KeyboardModifiers modifiers) {
  int state = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) state |= 1;
  if (modifiers.testFlag(Qt::ControlModifier)) state |= 2;
  if (modifiers.testFlag(Qt::AltModifier)) state |= 4;
  return state;
}

int button_code(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

int button_state(Qt::MouseButtons buttons) {
  int state = 0;
  for (const Qt::MouseButton each : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (buttons.testFlag(each)) state |= button_code(each);
  }
  return state;
}

}  // namespace tarnmill::desktop
