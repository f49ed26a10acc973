#pragma once

#include <cstdint>

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/flex_grid.h"
#include "forms/font_label.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/procedure.h"
#include "forms/status_bar.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// The chart of a font's characters, from which the editor takes symbols.
class frmansi final : public Window {
 public:
  static constexpr std::string_view class_name = "frmansi";
  explicit frmansi(Workbench& workbench);

  FlexGrid Grid1{*this, "Grid1"};
  ComboBox Combo1{*this, "Combo1"};
  Label Label1{*this, "Label1", u"Text:"};
  /// The characters collected.
  TextBox Text1{*this, "Text1"};
  /// The current character, large.
  FontLabel Label2{*this, "Label2"};
  Label Label3{*this, "Label3", u"Selected"};
  Label Label4{*this, "Label4", u"Preview"};
  Label lblinfo{*this, "lblinfo"};
  Label lblcodes{*this, "lblcodes"};
  Frame Frame1{*this, "Frame1", u"Click on Character to Select or Double-Click to Insert"};
  CheckBox Check1{*this, "Check1", u"OnTop"};
  Button Command2{*this, "Command2", u"&Insert"};
  Button Command3{*this, "Command3", u"&Close"};
  /// The font, the codes and the keys of the current character.
  StatusBar SB1{*this, "SB1", 3};

  void fill_chart();
  /// Shows the codes of the current character.
  void show_panels();

  Procedure FillChart{*this, "FillChart", &frmansi::fill_chart};
  Procedure paneli{*this, "paneli", &frmansi::show_panels};
  Procedure klikni{*this, "klikni", &frmansi::do_nothing};
  Procedure EnterCell{*this, "Grid1_EnterCell", &frmansi::enter_cell};
  Procedure LeaveCell{*this, "Grid1_LeaveCell", &frmansi::leave_cell};

 private:
  void do_nothing() {}
  void enter_cell();
  void leave_cell();
  void Form_Load();
  void Combo1_Click();
  void Grid1_Click();
  void insert();
  void put_on_clipboard(const tarnmill::Text& text);
  void colors_while_pressed(Label& label);
  /// The code of the first character of a text in the chart's code page; an empty text raises
  /// Invalid-argument.
  [[nodiscard]] std::int16_t code_of(const tarnmill::Text& text) const;
  [[nodiscard]] tarnmill::Text code_line(std::int16_t code);
  [[nodiscard]] tarnmill::Text key_line(std::int16_t code);
  [[nodiscard]] tarnmill::Text cell() const { return Grid1.TextMatrix(Grid1.row(), Grid1.column()); }
};

}  // namespace tarnmill
