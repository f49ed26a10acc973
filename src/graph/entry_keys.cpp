#include <array>

#include "graph/frm_func.h"

namespace tarnmill {
namespace {

constexpr int key_enter = 13;
constexpr int key_keypad_enter = 108;
constexpr int key_delete = 46;

/// Keys that stand for keys of the keypad: `count` codes from `code` on.
struct SymbolKeys {
  int code;
  int count;
  int symbol;
};

constexpr std::array<SymbolKeys, 8> entry_keys{{
    {48, 10, 0},
    {96, 10, 0},
    {75, 1, 10},
    {107, 1, 11},
    {109, 1, 12},
    {106, 1, 13},
    {111, 1, 14},
    {110, 1, 16},
}};

}  // namespace

// Enter and Delete stand in both lists, so that one press of them acts twice.
void frmFunc::field_KeyDown(int& KeyCode, int /*Shift*/) {
  constexpr int key_left = 37;
  constexpr int key_right = 39;
  constexpr int key_down = 40;
  run_entry_key(KeyCode);
  run_letter_key(KeyCode);
  if (KeyCode == key_enter) cmdDraw_Click();
  if (KeyCode == key_delete) cmdbrisi_Click();
  if (KeyCode >= key_left && KeyCode <= key_down) KeyCode = key_right;
}

void frmFunc::run_entry_key(int key_code) {
  for (const SymbolKeys& keys : entry_keys) {
    const int offset = key_code - keys.code;
    if (offset >= 0 && offset < keys.count) return cmdSymbol_Click(keys.symbol + offset);
  }
  if (key_code == key_enter || key_code == key_keypad_enter) return cmdDraw_Click();
  if (key_code == key_delete) cmdbrisi_Click();
}

void frmFunc::run_letter_key(int key_code) {
  switch (key_code) {
    case 'P':
      return cmdStepen_Click();
    case 'J':
      return cmdSymbol_Click(15);
    case 'L':
      return cmdSymbol_Click(17);
    case 'T':
      return cmdtangenta.Click.raise();
    default:
      return;
  }
}

void frmFunc::C1_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == key_enter) cmdDraw_Click();
  if (KeyCode == key_delete) cmdbrisi_Click();
}

}  // namespace tarnmill
