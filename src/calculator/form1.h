#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "calculator/entry_machine.h"
#include "calculator/memory_indicator.h"
#include "calculator/trigonometry.h"
#include "engine/fault.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/control_array.h"
#include "forms/field.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/window.h"

namespace tarnmill {

/// The scientific calculator, the window that opens first.
class Form1 final : public Window, private EntryPanel {
 public:
  static constexpr std::string_view class_name = "Form1";
  explicit Form1(Workbench& workbench);

  /// The number as text; locked, and the holder of the keyboard focus.
  TextBox Readout{*this, "Readout"};
  /// What the person sees of it.
  Label Label4{*this, "Label4"};
  Label lblRunning{*this, "lblRunning", parked};

  /// The keys of the entry machine and the captions laid over them.
  ControlArray<Button> Number{*this, "Number", 0, 9};
  ControlArray<Label> Label1{*this, "Label1", 0, 9, parked};
  ControlArray<Button> Operator{*this, "Operator", 0, 8};
  ControlArray<Label> Label3{*this, "Label3", 0, 8, parked};
  Button Decimal{*this, "Decimal", u"."};
  Button cmdPlusMinus{*this, "cmdPlusMinus", u"+/-"};
  Button CancelEntry{*this, "CancelEntry", u"CE", u" Clear last entry "};
  Button cmdClearAll{*this, "cmdClearAll", u"AC", u" Clear All "};

  /// The trigonometric keys: radians, degrees and inverse lie on top of each other.
  Button cmdSinr{*this, "cmdSinr", u"sin"};
  Button cmdcosr{*this, "cmdcosr", u"cos"};
  Button cmdtanr{*this, "cmdtanr", u"tan"};
  Button cmdcotr{*this, "cmdcotr", u"cot"};
  Button cmdsing{*this, "cmdsing", u"sin"};
  Button cmdCosg{*this, "cmdCosg", u"cos"};
  Button cmdtang{*this, "cmdtang", u"tan"};
  Button cmdcotg{*this, "cmdcotg", u"cot"};
  Button cmdasin{*this, "cmdasin", u"sin⁻¹"};
  Button cmdacos{*this, "cmdacos", u"cos⁻¹"};
  Button cmdatan{*this, "cmdatan", u"tan⁻¹"};
  Button cmdacot{*this, "cmdacot", u"cot⁻¹"};
  Button cmdinv{*this, "cmdinv", u"INV", u" Inverse Mode "};
  Button cmddeg{*this, "cmddeg", u"", u" Switch between Deg/Rad Mode "};
  /// 1 in inverse mode.
  CheckBox Check1{*this, "Check1", u"inv", hidden};
  /// 1 for degrees, 0 for radians.
  CheckBox Check2{*this, "Check2", u"deg", hidden};

  /// The other keys that work on the displayed number.
  Button cmdconv{*this, "cmdconv", u"", u"Convert Deg to Rad and viceversa"};
  Button cmdlog{*this, "cmdlog", u"log", u" Logarithm to the base 10 "};
  Button Command3{*this, "Command3", u"ln", u" Logarithm to the base e "};
  Button cmdfaktor{*this, "cmdfaktor", u"n!", u" Factorial "};
  Button cmdOver{*this, "cmdOver", u"1/x"};
  Button pi{*this, "pi", u"π"};
  Button cmdcopy{*this, "cmdcopy", u"", u"Copy  Result "};

  /// The one memory cell, its text (empty when clear), and the indicator, which blinks.
  Field<double> MemoryValue{*this, "MemoryValue"};
  Button cmdMemory1{*this, "cmdMemory1", u"MS", u" Add to memory "};
  Button cmdMemory2{*this, "cmdMemory2", u"MR", u" Recall memory "};
  Button cmdMemory3{*this, "cmdMemory3", u"MC", u" Clear memory "};
  Label lblMemory1{*this, "lblMemory1", hidden};
  Label Label2{*this, "Label2", u"M"};
  Timer Timer1{*this, "Timer1", false};

  /// The keys to the other modes; the hidden images hold their two states.
  Image imc{*this, "imc", u"complex", u" Complex Mode "};
  Image imev{*this, "imev", u"evaluator", u" Evaluator "};
  Image img{*this, "img", u"graph", u" Graph Mode "};
  Image im1c{*this, "im1c", u"complex", u"", hidden};
  Image im1cd{*this, "im1cd", u"complex-pressed", u"", hidden};
  Image im1ev{*this, "im1ev", u"evaluator", u"", hidden};
  Image im1evd{*this, "im1evd", u"evaluator-pressed", u"", hidden};
  Image im1g{*this, "im1g", u"graph", u"", hidden};
  Image im1gd{*this, "im1gd", u"graph-pressed", u"", hidden};
  Button cmdExit{*this, "cmdExit"};

  /// n!, by recursion. Tells the person about an n below 0 or above 170 and gives 0 for it.
  double factorial_of(std::int16_t n);
  /// The last remainder that isn't 0 of dividing the two in turn. Raises Division-by-zero for a `b` of 0.
  [[nodiscard]] std::int16_t greatest_common_divisor(std::int16_t a, std::int16_t b) const;
  /// Whether n is odd, told from the text of its half.
  [[nodiscard]] bool is_odd(std::int16_t n);

  Procedure IsOdd{*this, "IsOdd", &Form1::is_odd};
  Procedure factorial{*this, "factorial", &Form1::factorial_of};
  Procedure GCD{*this, "GCD", &Form1::greatest_common_divisor};

 private:
  /// What a function key reports as "Invalid input."; other faults it passes over.
  struct Recovery {
    FaultCode reported;
    MessageIcon icon;
  };
  /// A trigonometric key of the window; without a recovery its faults end the program.
  struct FunctionKey {
    Button& key;
    const TrigonometricKey& function;
    std::optional<Recovery> recovery;
  };

  [[nodiscard]] Text shown() const override { return Readout.Text; }
  void show(const Text& text) override { Readout.Text = text; }
  void take_focus() override { Readout.SetFocus(); }
  void report(const Text& message, MessageIcon icon) override { MsgBox(message, icon); }

  void label_keys();
  void connect_entry();
  void connect_trigonometry();
  void connect_functions();
  void connect_memory();
  void connect_window();

  void Form_Load();
  void Form_MouseDown(int Button, int Shift, float X, float Y);
  void release_mode_keys(int Button, int Shift, float X, float Y);
  void cmdExit_Click();

  void Readout_Change();
  void Readout_KeyDown(int& KeyCode, int Shift);
  void Number_Click(int Index);
  void Operator_Click(int Index);
  void cmdClearAll_Click();

  void cmddeg_Click();
  void cmdinv_Click();
  void cmdconv_Click();
  void cmdlog_Click();
  void Command3_Click();
  void cmdfaktor_Click();
  void cmdOver_Click();
  void pi_Click();
  void cmdcopy_Click();
  void show_direct_keys(bool in_radians, bool in_degrees);
  void show_inverse_keys(bool visible);
  [[nodiscard]] AngleUnit angle_unit() const;
  void answer(const TrigonometricKey& function);
  void recovering(const Recovery& recovery, const std::function<void()>& work);
  /// The display's number by the lenient reader.
  [[nodiscard]] double number() const;
  void show_number(double number);

  void cmdMemory1_Click();
  void cmdMemory2_Click();
  void cmdMemory3_Click();

  EntryMachine entry_{*this, *this};
  MemoryIndicator memory_{cmdMemory1, Label2, lblMemory1, Timer1};
  PictureKey complex_key_{imc, im1c, im1cd};
  PictureKey evaluator_key_{imev, im1ev, im1evd};
  PictureKey graph_key_{img, im1g, im1gd};
};

}  // namespace tarnmill
