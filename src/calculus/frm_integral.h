#pragma once

#include "engine/text.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/function_chooser.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/picture_box.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/service_control.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// Calculus tools: the definite integral and the mean value of a function on a range, and its derivative at a
/// point. The service does the computing; the window prepares the texts of its statements, and draws a bar
/// for each point at which the service samples the function. Graph mode has its tangents computed here as
/// well, through the fields and without the window being seen.
class frmIntegral final : public Window {
 public:
  static constexpr std::string_view class_name = "frmIntegral";

  explicit frmIntegral(Workbench& bench);

  /// \name What other windows call
  ///@{
  /// Puts x in place of each K of `Text13`.
  void letters_to_x() { Command4_Click(); }
  /// Puts K in place of each x of `Text12`, and gives the line to graph mode as its function.
  void letters_to_k() { Command2_Click(); }
  /// Rewrites `Text13` into the notation of the service.
  void rewrite();
  /// Computes the tangent of the function in `Text13` at the point in `Text14`; leaves the line in `Text12`.
  void tangent() { cmdTangenta_Click(); }
  /// Empties fields and results.
  void empty_fields();
  ///@}

  /// The ground of the window, on which the bars stand.
  PictureBox Surface{*this, "Surface", 560, 568, button_face};

  Label Label10{*this, "Label10", u"Integral/Derivative"};
  Image immini{*this, "immini", u"minimise", u" Minimize "};
  Image Image7{*this, "Image7", u"close", u" Close "};

  /// \name Integral and mean value
  ///@{
  Frame Frame1{*this, "Frame1"};
  CheckBox Check1{*this, "Check1", u"Enter Function to calculate Integral or Average Value"};
  TextBox Text4{*this, "Text4"};
  TextBox txtmin{*this, "txtmin"};
  TextBox txtmax{*this, "txtmax"};
  TextBox Text10{*this, "Text10"};
  Label lblintg{*this, "lblintg", u"Integral"};
  Label lblavg{*this, "lblavg", u" Avg "};
  Image imint{*this, "imint", u"integral", u" Calculate Integral "};
  Image ims{*this, "ims", u"average", u" Calculate Average Value "};
  Image imcopy{*this, "imcopy", u"copy", u" Copy Result "};
  ///@}

  /// \name Derivative
  ///@{
  CheckBox Check2{*this, "Check2", u"Enter Function to calculate 1st Derivative"};
  TextBox Text7{*this, "Text7"};
  TextBox Text8{*this, "Text8"};
  TextBox Text11{*this, "Text11"};
  Image imdiff{*this, "imdiff", u"derivative", u" Calculate Derivative "};
  ///@}

  ListBox C1{*this, "C1"};

  /// \name Working texts
  ///@{
  TextBox Text3{*this, "Text3", parked};
  TextBox Text7a{*this, "Text7a", parked};
  TextBox Text9{*this, "Text9", parked};
  TextBox Text12{*this, "Text12", parked};
  TextBox Text13{*this, "Text13", parked};
  TextBox Text14{*this, "Text14", parked};
  TextBox Text15{*this, "Text15", hidden};
  TextBox Text16{*this, "Text16", hidden};
  TextBox Text17{*this, "Text17", hidden};
  TextBox Text18{*this, "Text18", hidden};
  TextBox Text19{*this, "Text19", parked};
  TextBox txtk{*this, "txtk", u"K", hidden};
  TextBox txtX{*this, "txtX", u"x", hidden};
  ///@}

  ServiceControl Evaluator1{*this, "Evaluator1"};

  /// \name Commands without a place on the window
  ///@{
  Button cmdIntegral{*this, "cmdIntegral", {}, {}, parked};
  Button cmdsrednja{*this, "cmdsrednja", {}, {}, parked};
  Button Command1{*this, "Command1", u"Racun", {}, parked};
  Button Command2{*this, "Command2", u"ReplXsaK", {}, parked};
  Button Command3{*this, "Command3", {}, {}, parked};
  Button Command4{*this, "Command4", u"ReplKsaX", {}, parked};
  Button Command5{*this, "Command5", {}, {}, parked};
  Button cmdTangenta{*this, "cmdTangenta", {}, {}, parked};
  Button cmdreplall{*this, "cmdreplall", {}, {}, parked};
  ///@}

  Procedure ktox{*this, "ktox", &frmIntegral::letters_to_x};
  Procedure xtok{*this, "xtok", &frmIntegral::letters_to_k};
  Procedure zam{*this, "zam", &frmIntegral::rewrite};
  Procedure tanga{*this, "tanga", &frmIntegral::tangent};
  Procedure brisi{*this, "brisi", &frmIntegral::empty_fields};
  Procedure ReplaceAll{*this, "ReplaceAll", &tarnmill::ReplaceAll};

 private:
  void connect_commands();
  void connect_fields();
  void connect_pictures();

  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void cmdIntegral_Click();
  void cmdsrednja_Click();
  void cmdTangenta_Click();
  void cmdreplall_Click();
  void imcopy_MouseDown(int Button, int Shift, float X, float Y);
  void range_changed();
  void release_pictures();

  void integrate();
  void average();
  void differentiate();
  void show_in_use(Label& used, Label& unused);
  [[nodiscard]] Text rounded_result();
  void draw_sample(double x, double y);
  void compose_line();

  FunctionChooser chooser_{C1, {Check1, Text4}, {Check2, Text7}};

  /// \name The two looks of each picture
  ///@{
  Image imintg{*this, "imintg", u"integral", {}, hidden};
  Image imintd{*this, "imintd", u"integral-pressed", {}, hidden};
  Image imsg{*this, "imsg", u"average", {}, hidden};
  Image imsd{*this, "imsd", u"average-pressed", {}, hidden};
  Image imdiffg{*this, "imdiffg", u"derivative", {}, hidden};
  Image imdiffd{*this, "imdiffd", u"derivative-pressed", {}, hidden};
  Image imcopyg{*this, "imcopyg", u"copy", {}, hidden};
  Image imcopyd{*this, "imcopyd", u"copy-pressed", {}, hidden};
  Image imc{*this, "imc", u"close", {}, hidden};
  Image imclose{*this, "imclose", u"close-pressed", {}, hidden};
  Image imcm{*this, "imcm", u"minimise", {}, hidden};
  Image imcmin{*this, "imcmin", u"minimise-pressed", {}, hidden};
  PictureKey integral_key_{imint, imintg, imintd};
  PictureKey average_key_{ims, imsg, imsd};
  PictureKey derivative_key_{imdiff, imdiffg, imdiffd};
  PictureKey copy_key_{imcopy, imcopyg, imcopyd};
  PictureKey close_key_{Image7, imc, imclose};
  PictureKey minimise_key_{immini, imcm, imcmin};
  ///@}
};

}  // namespace tarnmill
