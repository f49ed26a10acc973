#pragma once

#include <string>
#include <vector>

#include "engine/fault.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/control_array.h"
#include "forms/field.h"
#include "forms/list_control.h"
#include "forms/menu_item.h"
#include "forms/option_button.h"
#include "forms/picture_box.h"
#include "forms/procedure.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

/// A window with one control of each kind, whose handlers write down that they ran. It bears the name of a
/// window of the program, since scripts know no others.
class Specimen final : public Window {
 public:
  static constexpr std::string_view class_name = "frmFind";
  explicit Specimen(Workbench& bench);

  Field<Text> Log{*this, "Log"};
  Field<std::int16_t> Small{*this, "Small"};
  Field<Variant> Any{*this, "Any"};
  Field<bool> Refuses{*this, "Refuses"};

  TextBox txtA{*this, "txtA"};
  Button cmdA{*this, "cmdA", u"A"};
  Button cmd_with_underscore{*this, "cmd_with_underscore"};
  Button cmdFault{*this, "cmdFault"};
  Button cmdWait{*this, "cmdWait"};
  Button cmdAsk{*this, "cmdAsk"};
  Button cmdEnd{*this, "cmdEnd"};
  ControlArray<Button> Keys{*this, "Keys", 1, 3};
  CheckBox chkA{*this, "chkA"};
  OptionButton optA{*this, "optA"};
  OptionButton optB{*this, "optB"};
  ComboBox cboA{*this, "cboA"};
  MenuItem mnuTop{*this, "mnuTop", u"Top"};
  MenuItem mnuA{*this, mnuTop, "mnuA", u"Entry"};
  Timer Timer1{*this, "Timer1", false, 100};
  PictureBox pDraw{*this, "pDraw", 20, 20, 0};

  double half_of(double number) { return number / 2; }
  void fail_with(std::int32_t number) { throw Fault{number, u"of its own"}; }
  Procedure Half{*this, "Half", &Specimen::half_of};
  Procedure Fail{*this, "Fail", &Specimen::fail_with};

 private:
  void log(const Text& what) { Log = Log.get() + (Log.get().empty() ? u"" : u" ") + what; }
  void Keys_Click(int Index);
  void Keys_KeyDown(int Index, int& KeyCode, int Shift);
  void txtA_MouseDown(int Button, int Shift, float X, float Y);
  void Form_KeyDown(int& KeyCode, int Shift);
  void Form_QueryUnload(std::int16_t& Cancel);
  void cmdWait_Click();
};

}  // namespace tarnmill
