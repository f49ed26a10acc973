#pragma once

#include <optional>
#include <string_view>

#include "engine/evaluator.h"
#include "engine/text.h"
#include "forms/button.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// The keypad for whole expressions, which the menus call Evaluator. All it knows is the text of its field:
/// constants, values and functions are put in as text, and the evaluator writes its answer on the window.
class frmTast final : public Window {
 public:
  static constexpr std::string_view class_name = "frmTast";
  explicit frmTast(Workbench& bench);

  /// \name What other windows call
  ///@{

  /// Empties the expression and the result.
  void clear_expression();
  /// Evaluates the expression as it stands.
  void evaluate();
  /// Shows another mode, then unloads this window.
  void go_to_calculator() { leave_for("Form1"); }
  void go_to_complex() { leave_for("frmComplex"); }
  void go_to_graph() { leave_for("frmFunc"); }
  void show_editor();
  void copy_expression() { copy(Text1.Text); }
  void copy_result() { copy(lbrezultat.Caption); }
  void close_keypad() { Unload(); }
  ///@}

  /// \name The expression, the variable's value and the result
  ///@{
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  Label lbrezultat{*this, "lbrezultat"};
  ComboBox boxC1{*this, "boxC1", u"Functions "};
  ///@}

  /// \name Commands
  ///@{
  Button Command5{*this, "Command5", u"Evaluate", u" Evaluate "};
  Button rez{*this, "rez", u"="};
  Button DEL{*this, "DEL", u"Del"};
  Button Command3{*this, "Command3", u"Clear All", u" Clear All "};
  Button Command6{*this, "Command6", u"Replace", u"Replace argument (X or K) with its value"};
  Button cmdrad{*this, "cmdrad", u"Deg → Rad", u" Convert Deg to Rad "};
  Button Command1{*this, "Command1", u"Copy Result", u" Copy Result "};
  Button Command4{*this, "Command4", u"Paste", u" Paste expression or argument's value"};
  Button Command8{*this, "Command8", u"Value Table", u" Value Table "};
  Button Command2{*this, "Command2", u"", u" Exit "};
  ///@}

  /// \name Keys to the other modes; the hidden images hold their two states
  ///@{
  Image img{*this, "img", u"graph", u" Graph Mode "};
  Image imc{*this, "imc", u"complex", u" Complex Mode "};
  Image imev{*this, "imev", u"advanced", u" Advanced Mode "};
  Image im1g{*this, "im1g", u"graph", u"", hidden};
  Image im1gd{*this, "im1gd", u"graph-pressed", u"", hidden};
  Image im1cg{*this, "im1cg", u"complex", u"", hidden};
  Image im1cd{*this, "im1cd", u"complex-pressed", u"", hidden};
  Image im1ag{*this, "im1ag", u"advanced", u"", hidden};
  Image im1ad{*this, "im1ad", u"advanced-pressed", u"", hidden};
  ///@}

  /// \name State held in controls off the window: the text before a conversion, and the hint of the power
  /// rule
  ///@{
  Label lblconv{*this, "lblconv", hidden};
  Label lblGot{*this, "lblGot", hidden};
  Label lblY3{*this, "lblY3", u"OK", hidden};
  Label lblImenilac{*this, "lblImenilac", hidden};
  TextBox txtY2{*this, "txtY2", hidden};
  TextBox txtY3{*this, "txtY3", u"1", hidden};
  TextBox txtImenilac{*this, "txtImenilac", u"1", hidden};
  ///@}

  /// \name Keys without behaviour
  ///@{
  Button TAB{*this, "TAB", u"Tab", u"", parked};
  Button NUM{*this, "NUM", u"Num", u"", parked};
  Button N5{*this, "N5", u"5", u"", parked};
  Button N6{*this, "N6", u"6", u"", parked};
  Button N7{*this, "N7", u"7", u"", parked};
  Button HOME{*this, "HOME", u"Home", u"", parked};
  Button OEM_PERIOD{*this, "OEM_PERIOD", u".", u"", parked};
  Button NUMPAD5{*this, "NUMPAD5", u"5", u"", parked};
  Button NUMPAD6{*this, "NUMPAD6", u"6", u"", parked};
  Button SHIFT1{*this, "SHIFT1", u"Shift", u"", parked};
  Button SHIFT2{*this, "SHIFT2", u"Shift", u"", parked};
  ///@}

  /// \name Procedures by name
  ///@{
  Procedure ReplaceAll{*this, "ReplaceAll", &tarnmill::ReplaceAll};
  Procedure cisti{*this, "cisti", &frmTast::clear_expression};
  Procedure rez2{*this, "rez2", &frmTast::evaluate};
  Procedure GoCalculator{*this, "GoCalculator", &frmTast::go_to_calculator};
  Procedure GoComplex{*this, "GoComplex", &frmTast::go_to_complex};
  Procedure GoGraph{*this, "GoGraph", &frmTast::go_to_graph};
  Procedure GoMathPad{*this, "GoMathPad", &frmTast::show_editor};
  Procedure CopyExpression{*this, "CopyExpression", &frmTast::copy_expression};
  Procedure CopyResult{*this, "CopyResult", &frmTast::copy_result};
  Procedure CloseKeypad{*this, "CloseKeypad", &frmTast::close_keypad};
  ///@}

 private:
  void connect_window();
  void connect_modes();
  void connect_text();
  void connect_commands();

  void Form_Load();
  void Form_Activate();
  void Form_Unload();
  void Form_MouseDown(int Button, int Shift, float X, float Y);

  void Text1_Change() { lbrezultat.Caption = u""; }
  void Text1_KeyDown(int& KeyCode, int Shift);
  void boxC1_KeyDown(int& KeyCode, int Shift);
  void boxC1_Click();

  void Command2_Click();
  void Command3_Click();
  void Command4_MouseDown(int Button, int Shift, float X, float Y);
  void Command5_Click();
  void Command6_Click();
  void cmdrad_Click();

  void copy_hint_of_graph();
  void leave_for(std::string_view mode);
  void copy(const Text& text);
  [[nodiscard]] Evaluator& evaluator();

  std::optional<Evaluator> evaluator_;
  PictureKey graph_key_{img, im1g, im1gd};
  PictureKey complex_key_{imc, im1cg, im1cd};
  PictureKey advanced_key_{imev, im1ag, im1ad};
};

}  // namespace tarnmill
