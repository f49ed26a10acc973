#pragma once

#include <functional>
#include <optional>

#include "engine/evaluator.h"
#include "engine/text.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/common_dialog.h"
#include "forms/function_chooser.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/progress_bar.h"
#include "forms/rich_text_box.h"
#include "forms/service_control.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// Function analysis: walks a range for the first root, critical point or intersection of functions of x,
/// gives the value at 0, and keeps a log of what was asked and found.
///
/// The searches talk through text fields: the expression being evaluated is `Text3` (`Text3a` for the second
/// function), x is put into it as text, and after each step it is restored from its rewritten form. What a
/// person typed stays as it is, and is what the log quotes.
class frmAnaliza final : public Window {
 public:
  static constexpr std::string_view class_name = "frmAnaliza";

  explicit frmAnaliza(Workbench& bench);

  /// \name Title bar
  ///@{
  Label Label16{*this, "Label16", u" Function Analyze"};
  Image immini{*this, "immini", u"minimise", u" Minimize "};
  Image Image7{*this, "Image7", u"close", u" Close "};
  ///@}

  /// \name Entry
  ///@{
  CheckBox Check1{*this, "Check1", u"Function 1: Calculate Root, Y-Intersection or Critical point"};
  TextBox txtformula{*this, "txtformula"};
  CheckBox Check2{*this, "Check2", u"Function 2: Calculate Intersection of Function 1 and Function 2"};
  TextBox txtfunc2{*this, "txtfunc2"};
  TextBox txtdole{*this, "txtdole"};
  TextBox txtgore{*this, "txtgore"};
  ComboBox Combo1{*this, "Combo1", u"0.001"};
  ListBox C1{*this, "C1"};
  ///@}

  /// \name Requests
  ///@{
  Image Image1{*this, "Image1", u"roots", u" Calculate Roots "};
  Image Image2{*this, "Image2", u"analyse", u" Calculate Minimum and Maximum "};
  Image Image4{*this, "Image4", u"y-intersection", u" Calculate Y-Intersection "};
  Image Image5{*this, "Image5", u"intersection", u" Calculate F1/F2 Intersection"};
  Image Image6{*this, "Image6", u"integral", u" Calculate Integral, Derivative and Avarage "};
  Image Image3{*this, "Image3", u"save", u" Save current Function Analyze "};
  Image Image10{*this, "Image10", u"clear-page", u" Save current Function Analyze "};
  ///@}

  /// \name Results
  ///@{
  Label lblroot{*this, "lblroot"};
  ProgressBar pb1{*this, "pb1"};
  TextBox txtroot{*this, "txtroot"};
  ///@}

  /// \name Working texts
  ///@{
  Label lblgreska{*this, "lblgreska", parked};
  TextBox Text1{*this, "Text1", parked};
  TextBox Text2{*this, "Text2", parked};
  TextBox Text3{*this, "Text3", parked};
  TextBox Text3a{*this, "Text3a", parked};
  TextBox txtformula2{*this, "txtformula2", parked};
  TextBox txtfunc2a{*this, "txtfunc2a", parked};
  TextBox txtX{*this, "txtX", u"x", hidden};
  TextBox txtk{*this, "txtk", u"K", hidden};
  TextBox Text15{*this, "Text15", u"X", hidden};
  TextBox Text16{*this, "Text16", u"x", hidden};
  TextBox txtnula{*this, "txtnula", parked};
  TextBox txtnulao{*this, "txtnulao", u"0", parked};
  TextBox Text9{*this, "Text9", parked};
  TextBox Text9a{*this, "Text9a", parked};
  TextBox txtrez{*this, "txtrez", parked};
  TextBox txtrez2{*this, "txtrez2", parked};
  TextBox nlevo{*this, "nlevo", parked};
  TextBox ndesno{*this, "ndesno", parked};
  TextBox txtlevo{*this, "txtlevo", parked};
  TextBox txtdesno{*this, "txtdesno", parked};
  /// All that was saved since the window was loaded.
  RichTextBox rtfroot{*this, "rtfroot", parked};
  /// Holds the name of the file that it went to.
  CommonDialog cd1{*this, "cd1"};
  ///@}

  /// \name The evaluators of the first function and of the second
  ///@{
  ServiceControl Evaluator1{*this, "Evaluator1"};
  ServiceControl Evaluator2{*this, "Evaluator2"};
  ServiceControl Evaluator3{*this, "Evaluator3"};
  ServiceControl Evaluator4{*this, "Evaluator4"};
  ///@}

  /// \name Commands without a place on the window
  ///@{
  Button cmdNula{*this, "cmdNula", {}, {}, parked};
  Button cmdypresek{*this, "cmdypresek", {}, {}, parked};
  Button cmdinters{*this, "cmdinters", {}, {}, parked};
  Button cmdprint{*this, "cmdprint", {}, {}, parked};
  Button cmdreplall{*this, "cmdreplall", {}, {}, parked};
  Button cmdzam{*this, "cmdzam", {}, {}, parked};
  Button Command1{*this, "Command1", u"Command1 Formula", {}, parked};
  Button Command2{*this, "Command2", {}, {}, parked};
  Button Command3{*this, "Command3", {}, {}, parked};
  Button Command4{*this, "Command4", {}, {}, parked};
  ///@}

  Procedure ktox{*this, "ktox", &frmAnaliza::Command4_Click};
  Procedure xtok{*this, "xtok", &frmAnaliza::Command2_Click};
  Procedure zam{*this, "zam", &frmAnaliza::cmdzam_Click};
  Procedure ReplaceAll{*this, "ReplaceAll", &tarnmill::ReplaceAll};

 private:
  /// A walk over the range and what is done with the first x that it stops at.
  struct Search {
    Text head;
    std::function<bool(double x)> stops_at;
    std::function<void(double x)> report;
    /// Whether a walk in vain hides the progress bar.
    bool hides_progress = false;
  };

  // Start and the window's own events.
  void connect_entry();
  void connect_requests();
  void connect_commands();
  void connect_pictures();
  void Form_Load();
  void txtformula_Change();

  // The expressions.
  void Command1_Click();
  void Command2_Click();
  void Command4_Click();
  void cmdreplall_Click();
  void cmdzam_Click();
  void rewrite();
  void pass_on_rewritten();
  void restore_expressions();
  [[nodiscard]] Text with_x(const TextBox& expression, const Text& value) const;
  [[nodiscard]] Text evaluated(ServiceControl& evaluator, const TextBox& expression);
  void normalise_range();

  // The searches.
  void cmdNula_Click();
  void Command3_Click();
  void cmdypresek_Click();
  void cmdinters_Click();
  [[nodiscard]] bool is_range_defined();
  [[nodiscard]] bool require_formula(const Text& complaint);
  [[nodiscard]] Text range_and_step() const;
  void run(const Search& search);
  [[nodiscard]] bool walk(const Search& search, double dole, double gore);
  void show_progress(double x, double dole, double gore);
  void end_progress();

  bool is_root(double x);
  void report_root();
  bool is_critical(double x);
  void report_critical(double x);
  void evaluate_sides(double x);
  [[nodiscard]] Text verdict();
  bool is_intersection(double x);
  void report_intersection(double x);
  void find_y_intersection();
  void report_undefined_at_zero(const Text& line);

  // The log.
  void append_head(const Text& head);
  void append_line(const Text& line);
  void cmdprint_Click();
  void save_log();
  void Image10_Click();

  std::optional<Evaluator> range_evaluator_;
  FunctionChooser chooser_{C1, {Check1, txtformula}, {Check2, txtfunc2}};

  /// \name The two looks of each picture
  ///@{
  Image imrootg{*this, "imrootg", u"roots", {}, hidden};
  Image imrootd{*this, "imrootd", u"roots-pressed", {}, hidden};
  Image immaxg{*this, "immaxg", u"analyse", {}, hidden};
  Image immaxd{*this, "immaxd", u"analyse-pressed", {}, hidden};
  Image imsaveg{*this, "imsaveg", u"save", {}, hidden};
  Image imsaved{*this, "imsaved", u"save-pressed", {}, hidden};
  Image imyintg{*this, "imyintg", u"y-intersection", {}, hidden};
  Image imyintd{*this, "imyintd", u"y-intersection-pressed", {}, hidden};
  Image iminsg{*this, "iminsg", u"intersection", {}, hidden};
  Image iminsd{*this, "iminsd", u"intersection-pressed", {}, hidden};
  Image imintg{*this, "imintg", u"integral", {}, hidden};
  Image imintd{*this, "imintd", u"integral-pressed", {}, hidden};
  Image imclearg{*this, "imclearg", u"clear-page", {}, hidden};
  Image imcleard{*this, "imcleard", u"clear-page-pressed", {}, hidden};
  Image imc{*this, "imc", u"close", {}, hidden};
  Image imclose{*this, "imclose", u"close-pressed", {}, hidden};
  Image imcm{*this, "imcm", u"minimise", {}, hidden};
  Image imcmin{*this, "imcmin", u"minimise-pressed", {}, hidden};
  PictureKey roots_key_{Image1, imrootg, imrootd};
  PictureKey extremes_key_{Image2, immaxg, immaxd};
  PictureKey save_key_{Image3, imsaveg, imsaved};
  PictureKey y_key_{Image4, imyintg, imyintd};
  PictureKey intersection_key_{Image5, iminsg, iminsd};
  PictureKey integral_key_{Image6, imintg, imintd};
  PictureKey clear_key_{Image10, imclearg, imcleard};
  PictureKey close_key_{Image7, imc, imclose};
  PictureKey minimise_key_{immini, imcm, imcmin};
  ///@}
};

}  // namespace tarnmill
