#pragma once

#include <optional>

#include "engine/evaluator.h"
#include "engine/text.h"
#include "forms/button.h"
#include "forms/field.h"
#include "forms/frame.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/rich_text_box.h"
#include "forms/service_control.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// The table of values: a function at evenly spaced values of x, as lines of text.
///
/// The limits are expressions of the plain evaluator, whose numbers take their place; the function goes
/// through the full rewriting chain to the service. A run that meets a fault stops without a word, keeps the
/// rows it has, and leaves the table hidden until a later run ends well.
class frmTabela final : public Window {
 public:
  static constexpr std::string_view class_name = "frmTabela";

  explicit frmTabela(Workbench& bench);

  /// Fills the table from the fields as they stand.
  void calculate();
  /// Lets a person choose the font of the table. Cancel changes nothing.
  void choose_font();

  Label Label16{*this, "Label16", u"Value Table"};
  Image Image5{*this, "Image5", u"minimise"};
  Image Image6{*this, "Image6", u"close"};

  Frame Frame1{*this, "Frame1", u" Enter Function "};
  TextBox Text1{*this, "Text1"};
  TextBox txtdole{*this, "txtdole"};
  TextBox txtgore{*this, "txtgore"};
  ComboBox Combo1{*this, "Combo1", u"1"};
  ComboBox txtDec{*this, "txtDec", u"3"};
  RichTextBox Text2{*this, "Text2"};

  Image Image7{*this, "Image7", u"table", u" Calculate Table "};
  Image Image8{*this, "Image8", u"clear-page", u" Clear Table "};
  Image Image9{*this, "Image9", u"copy", u" Copy to Clipboard "};
  Image Image10{*this, "Image10", u"save-page", u" Save Table "};

  /// \name The working expression, the second target of the chain, the rewritten function, and the last rule
  ///@{
  TextBox Text3{*this, "Text3", hidden};
  TextBox Text3a{*this, "Text3a", hidden};
  TextBox Text4{*this, "Text4", hidden};
  TextBox Text15{*this, "Text15", u"X", hidden};
  TextBox Text16{*this, "Text16", u"x", hidden};
  ///@}
  ServiceControl Evaluator1{*this, "Evaluator1"};
  Button Command1{*this, "Command1", u"Calculate", {}, hidden};

  Field<bool> StopTable{*this, "StopTable"};

  Procedure Calculate{*this, "Calculate", &frmTabela::calculate};
  Procedure ChooseFont{*this, "ChooseFont", &frmTabela::choose_font};
  Procedure ReplaceAll{*this, "ReplaceAll", &tarnmill::ReplaceAll};

 private:
  void Image7_Click();
  void Image8_Click();
  void Image9_Click();
  void Image10_Click();
  void Command1_Click();

  void fill_table();
  [[nodiscard]] Text head() const;
  void rewrite();
  void append_rows(Text& table, double lower, double upper, double step);
  [[nodiscard]] Text row(double x);
  [[nodiscard]] bool is_empty() const { return Text2.document().length() == 0; }
  [[nodiscard]] Evaluator& limits_evaluator();
  [[nodiscard]] bool agreed(const Text& question, const Text& title);

  std::optional<Evaluator> limits_evaluator_;
  FontDialog font_dialog_;
};

}  // namespace tarnmill
