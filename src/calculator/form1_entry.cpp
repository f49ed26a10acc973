// The keys that the entry machine answers, and the keyboard's way to them.

#include <array>

#include "calculator/form1.h"

namespace tarnmill {

namespace {

struct OperatorKey {
  const char16_t* caption;
  const char16_t* tooltip;
};

constexpr std::array<OperatorKey, 9> operator_keys{{
    {u"/", u""},
    {u"+", u""},
    {u"X", u""},
    {u"-", u""},
    {u"=", u""},
    {u"Exp", u" A raised to the power B (A Exp B =) "},
    {u"nR", u" n-th Root of A (A nR n = ) "},
    {u"%", u"Calculate PERCENT if you know Amount (A) and Main value (M) ( A % M = )"},
    {u"%i", u"Calculate AMOUNT if you know Percent (P) and Main value (M) (P  %i  M =) "},
}};

}  // namespace

void Form1::label_keys() {
  for (const auto& key : Number) {
    const Text digit(1, static_cast<char16_t>(u'0' + key->index()));
    key->Caption.start_as(digit);
    Label1(key->index()).Caption.start_as(digit);
  }
  for (const auto& key : Operator) {
    const OperatorKey& told = operator_keys.at(static_cast<std::size_t>(key->index()));
    key->Caption.start_as(told.caption);
    key->ToolTipText.start_as(told.tooltip);
    Label3(key->index()).Caption.start_as(told.caption);
  }
}

void Form1::connect_entry() {
  Readout.Change.handle(this, &Form1::Readout_Change);
  Readout.KeyDown.handle(this, &Form1::Readout_KeyDown);
  Number.handle(&Button::Click, this, &Form1::Number_Click);
  Operator.handle(&Button::Click, this, &Form1::Operator_Click);
  Decimal.Click.handle([this] { entry_.press_point(); });
  cmdPlusMinus.Click.handle([this] { entry_.press_sign(); });
  CancelEntry.Click.handle([this] { entry_.clear_entry(); });
  cmdClearAll.Click.handle(this, &Form1::cmdClearAll_Click);
}

bool Form1::is_odd(std::int16_t n) { return tarnmill::IsOdd(n, regional()); }

void Form1::Readout_Change() { Label4.Caption = Readout.Text; }

void Form1::Number_Click(int Index) { entry_.press_digit(Label1(Index).Caption); }

void Form1::Operator_Click(int Index) { entry_.press_operator(Label3(Index).Caption); }

void Form1::cmdClearAll_Click() {
  entry_.clear_all();
  lblRunning.Caption = u"";
  take_focus();
}

void Form1::Readout_KeyDown(int& KeyCode, int /*Shift*/) {
  constexpr int keypad_0 = 96;
  constexpr int keypad_9 = 105;
  if (KeyCode >= keypad_0 && KeyCode <= keypad_9) Number_Click(KeyCode - keypad_0);
  switch (KeyCode) {
    case 106:  // the keypad's multiply
      return Operator_Click(2);
    case 107:  // add
      return Operator_Click(1);
    case 109:  // subtract
      return Operator_Click(3);
    case 111:  // divide
      return Operator_Click(0);
    case 110:  // decimal
      return entry_.press_point();
    case 108:  // separator
    case 13:   // Enter
      return Operator_Click(4);
    case 46:  // Delete
      return cmdClearAll_Click();
    default:
      return;
  }
}

}  // namespace tarnmill
