#pragma once

#include <functional>

#include "calculator/entry_machine.h"
#include "calculator/memory_indicator.h"
#include "complex/operations.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/control_array.h"
#include "forms/field.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/menu_item.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/window.h"

namespace tarnmill {

class frmmenu;

/// The calculator of complex numbers. Two operands, a + i b and c + i d, stand as text in four fields; digits
/// go to the one that is chosen. What is shown as result is rounded to five decimals, and it is what is shown
/// that memory and replacing carry on.
class frmComplex final : public Window, private EntryPanel {
 public:
  static constexpr std::string_view class_name = "frmComplex";
  explicit frmComplex(Workbench& bench);

  /// \name What the menus of the keys do
  ///@{

  /// Puts the result, rounded to five decimals, in place of the first operand. Type-mismatch when the
  /// result's texts are no numbers.
  void replace_first();
  /// The same for the second operand.
  void replace_second();
  /// Exchanges the operands.
  void swap_operands();
  /// Logarithm of the first operand to the base e.
  void logarithm_to_e() { cmdLn.Click.raise(); }
  /// Logarithm of the first operand to the base that is the second.
  void logarithm_to_second();
  /// The argument of the first operand, whatever its quadrant.
  void argument_in_radians();
  void argument_in_degrees();
  /// Puts what is stored in place of an operand, or tells that nothing is.
  void recall_as_first();
  void recall_as_second();
  ///@}

  /// Shows rule and result for the function that the drop-down names, whatever was computed last.
  void update_display();
  /// Writes the result's parts into their boxes.
  void show_parts();
  /// Disables the second operand, for a function that leaves it out.
  void disable_second() { enable_second(false); }
  void enable_second_again() { enable_second(true); }

  /// \name State
  ///@{
  Field<double> ResultReal{*this, "ResultReal"};
  Field<double> ResultImaginary{*this, "ResultImaginary"};
  ///@}

  /// \name The operands
  ///@{
  TextBox txtCa{*this, "txtCa", u"0."};
  TextBox txtCb{*this, "txtCb", u"0."};
  TextBox txtCc{*this, "txtCc", u"0."};
  TextBox txtCd{*this, "txtCd", u"0."};
  /// One of them is 1: that of the field that takes the digits.
  CheckBox checka{*this, "checka", u"", hidden};
  CheckBox checkb{*this, "checkb", u"", hidden};
  CheckBox checkc{*this, "checkc", u"", hidden};
  CheckBox checkd{*this, "checkd", u"", hidden};
  Button cmda{*this, "cmda", u"a", u" Real of Complex 1 "};
  Button cmdb{*this, "cmdb", u"b", u" Imaginary of Complex1 "};
  Button cmdc{*this, "cmdc", u"c", u"  Real of Complex 2  "};
  Button cmdd{*this, "cmdd", u"d", u"  Imaginary of Complex 2  "};
  /// The operands as lines.
  TextBox Label1c{*this, "Label1c"};
  TextBox Label2c{*this, "Label2c"};
  ///@}

  /// \name Entry
  ///@{
  Label Readout{*this, "Readout", hidden};
  Label lblRunning{*this, "lblRunning", parked};
  ControlArray<Button> Number{*this, "Number", 0, 9};
  Button Decimal{*this, "Decimal", u"."};
  Button cmdPlusMinus{*this, "cmdPlusMinus", u"+/-"};
  Button CancelEntry{*this, "CancelEntry", u"CE", u" Clear last entry "};
  Button cmdClearAll{*this, "cmdClearAll", u"AC", u" Clear All "};
  CheckBox Check1{*this, "Check1", u"inv", hidden};
  CheckBox Check2{*this, "Check2", u"deg", hidden};
  ///@}

  /// \name The function and the result
  ///@{
  ComboBox ComboFunction{*this, "ComboFunction"};
  Button CommandCalculate{*this, "CommandCalculate", u"CALCULATE !"};
  Label LabelRule{*this, "LabelRule"};
  TextBox TextResultReal{*this, "TextResultReal"};
  TextBox TextResultImaginary{*this, "TextResultImaginary"};
  Label LabelRezultat{*this, "LabelRezultat"};
  ///@}

  /// \name Keys that compute
  ///@{
  Button cmdzbir{*this, "cmdzbir", u"+"};
  Button cmdrazlika{*this, "cmdrazlika", u"-"};
  Button cmdmnozenje{*this, "cmdmnozenje", u"X"};
  Button cmddeljenje{*this, "cmddeljenje", u"/"};
  Button cmdExp{*this, "cmdExp", u"Exp", u" ( A + i B )^( C + i D ) "};
  Button cmde{*this, "cmde", u"e^z", u" e^( A + i B ) "};
  Button cmdSin{*this, "cmdSin", u"sin", u" Sinus of Complex ( A + i B ) "};
  Button cmdCos{*this, "cmdCos", u"cos"};
  Button cmdtang{*this, "cmdtang", u"tan"};
  Button cmdSinh{*this, "cmdSinh", u"sinh"};
  Button cmdCosh{*this, "cmdCosh", u"cosh"};
  Button cmdTanh{*this, "cmdTanh", u"tanh"};
  Button cmdOver{*this, "cmdOver", u"1/z", u" 1 / ( A + i B ) "};
  Button cmdLn{*this, "cmdLn", u"ln", u" log ( A + i B ) "};
  Button pi{*this, "pi", u"|z|", u" Magnitude of ( A + i B ) "};
  ///@}

  /// \name Keys that open a menu
  ///@{
  Button cmdconv{*this, "cmdconv", u"", u" Replace/Swap"};
  Button cmdlog{*this, "cmdlog", u"log", u" Log (A+iB) to the base e or (C+iD) "};
  Button cmdMemory2{*this, "cmdMemory2", u"MR"};
  Button Command1{*this, "Command1", u"Arg", u" Argument of (A + i B)"};
  ///@}

  /// \name Memory
  ///@{
  Field<Variant> ComplexMemory{*this, "ComplexMemory"};
  Button cmdMemory1{*this, "cmdMemory1", u"MS"};
  Button cmdMemory3{*this, "cmdMemory3", u"MC"};
  TextBox txtmemoryReal{*this, "txtmemoryReal", hidden};
  TextBox txtmemoryImaginar{*this, "txtmemoryImaginar", hidden};
  Label lblMemory1{*this, "lblMemory1", hidden};
  Label Label4{*this, "Label4", u"M"};
  Timer Timer1{*this, "Timer1", false};
  ///@}

  /// \name The rest of the window; the hidden images hold the two states of the keys to other modes
  ///@{
  Button cmdcopy{*this, "cmdcopy", u"", u"Copy  Result "};
  Button cmdExit{*this, "cmdExit"};
  Image Image11{*this, "Image11", u"advanced", u" Advanced Mode "};
  Image imev{*this, "imev", u"evaluator", u" Evaluator "};
  Image img{*this, "img", u"graph", u" Graph Mode "};
  Image im1a{*this, "im1a", u"advanced", u"", hidden};
  Image im1ad{*this, "im1ad", u"advanced-pressed", u"", hidden};
  Image im1ev{*this, "im1ev", u"evaluator", u"", hidden};
  Image im1evd{*this, "im1evd", u"evaluator-pressed", u"", hidden};
  Image im1g{*this, "im1g", u"graph", u"", hidden};
  Image im1gd{*this, "im1gd", u"graph-pressed", u"", hidden};
  ///@}

  /// \name Procedures by name
  ///@{
  Procedure UpdateDisplay{*this, "UpdateDisplay", &frmComplex::update_display};
  Procedure PutTextInChart{*this, "PutTextInChart", &frmComplex::show_parts};
  Procedure PutTextInChartWithoutComplex2{*this, "PutTextInChartWithoutComplex2", &frmComplex::show_parts};
  Procedure ClearBlueLine{*this, "ClearBlueLine", &frmComplex::disable_second};
  Procedure ResetChartAndBlueLine{*this, "ResetChartAndBlueLine", &frmComplex::enable_second_again};
  Procedure argrad{*this, "argrad", &frmComplex::argument_in_radians};
  Procedure argdeg{*this, "argdeg", &frmComplex::argument_in_degrees};
  Procedure logaritmi1{*this, "logaritmi1", &frmComplex::logarithm_to_e};
  Procedure logaritmi2{*this, "logaritmi2", &frmComplex::logarithm_to_second};
  Procedure MemorijaA{*this, "MemorijaA", &frmComplex::recall_as_first};
  Procedure MemorijaC{*this, "MemorijaC", &frmComplex::recall_as_second};
  Procedure Replace1{*this, "Replace1", &frmComplex::replace_first};
  Procedure Replace2{*this, "Replace2", &frmComplex::replace_second};
  ///@}

 private:
  /// A field for a part of an operand, the box that says it is chosen, and the key that chooses it.
  struct Part {
    TextBox& field;
    CheckBox& chosen;
    Button& key;
    const char16_t* tooltip;
  };

  [[nodiscard]] Text shown() const override { return Readout.Caption; }
  void show(const Text& text) override { Readout.Caption = text; }
  void take_focus() override { active_part().field.SetFocus(); }
  void report(const Text& message, MessageIcon icon) override;

  void lay_out();
  void connect_window();
  void connect_mode_keys();
  void connect_menu_key(Button& key, MenuItem frmmenu::*menu);
  void connect_entry();
  void connect_parts();
  void connect_result();
  void connect_keys();
  void connect_memory();

  void Form_Load();
  void Form_MouseDown(int Button, int Shift, float X, float Y);
  void release_mode_keys(int Button, int Shift, float X, float Y);

  void Readout_Change();
  void field_KeyDown(int& KeyCode, int Shift);
  void cmdClearAll_Click();
  void choose(const Part& part);
  void enter(const std::function<void()>& key);
  [[nodiscard]] const Part& active_part() const;
  void show_operand(TextBox& line, const TextBox& real, const TextBox& imaginary);

  void CommandCalculate_Click();
  void cmdExp_Click();
  [[nodiscard]] ComplexOperands operands() const;
  bool compute(ComplexOperation operation);
  void compute_by_key(ComplexOperation operation, bool of_one);
  void enable_second(bool enabled);

  void TextResultReal_Change();
  void show_result();
  void replace(TextBox& real, TextBox& imaginary);

  void cmdMemory1_Click();
  void cmdMemory3_Click();
  void cmdcopy_Click();
  void recall(TextBox& line, TextBox& real, TextBox& imaginary);

  [[nodiscard]] MessageSink messages();

  EntryMachine entry_{*this, *this};
  MemoryIndicator memory_{cmdMemory1, Label4, lblMemory1, Timer1};
  PictureKey advanced_key_{Image11, im1a, im1ad};
  PictureKey evaluator_key_{imev, im1ev, im1evd};
  PictureKey graph_key_{img, im1g, im1gd};
  /// In the order in which the chosen one is looked for.
  const Part parts_[4] = {{txtCa, checka, cmda, u"a = "},
                          {txtCb, checkb, cmdb, u"b = "},
                          {txtCc, checkc, cmdc, u"c = "},
                          {txtCd, checkd, cmdd, u"d = "}};
};

}  // namespace tarnmill
