#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/fault.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/control_array.h"
#include "forms/field.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/menu_item.h"
#include "forms/option_button.h"
#include "forms/overlay_line.h"
#include "forms/picture_box.h"
#include "forms/picture_key.h"
#include "forms/procedure.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

/// A window with one control of each kind that writes down what its handlers were told.
class SampleWindow : public Window {
 public:
  static constexpr std::string_view class_name = "SampleWindow";

  explicit SampleWindow(Workbench& workbench) : SampleWindow{workbench, class_name} {}
  SampleWindow(Workbench& workbench, std::string_view name) : Window{workbench, name} {
    Load.handle([this] { note("Load"); });
    Activate.handle([this] { note("Activate"); });
    Resize.handle([this] { note("Resize"); });
    Unloading.handle([this] { note("Unload"); });
    txt.Change.handle([this] { note("Change " + to_utf8(txt.Text.get())); });
    lbl.Change.handle([this] { note("Change " + to_utf8(lbl.Caption.get())); });
    check.Click.handle([this] { note("check " + std::to_string(check.Value)); });
    combo.Click.handle([this] { note("combo " + to_utf8(combo.Text.get())); });
    Keys.handle(&Button::Click, this, &SampleWindow::Keys_Click);
    Keys.handle(&Button::KeyDown, this, &SampleWindow::Keys_KeyDown);
    option.handle(&OptionButton::Click, this, &SampleWindow::option_Click);
    timer.Tick.handle([this] { note("Timer"); });
    cmd.GotFocus.handle([this] { note("cmd got focus"); });
    cmd.LostFocus.handle([this] { note("cmd lost focus"); });
  }

  void note(std::string what) { notes.push_back(std::move(what)); }
  void Keys_Click(int index) { note("Keys " + std::to_string(index)); }
  void Keys_KeyDown(int index, int& key_code, int shift) {
    note("Keys " + std::to_string(index) + " key " + std::to_string(key_code) + " " + std::to_string(shift));
    key_code = 39;
  }
  void option_Click(int index) { note("option " + std::to_string(index)); }
  double half(double x) const { return x / 2; }
  void fail() { throw Fault{FaultCode::DivisionByZero}; }

  std::vector<std::string> notes;

  TextBox txt{*this, "txt"};
  Label lbl{*this, "lbl", u"caption"};
  TextBox hidden{*this, "hidden", parked};
  Button cmd{*this, "cmd", u"&Go", u"  Go there "};
  CheckBox check{*this, "check"};
  ComboBox combo{*this, "combo", u"Functions"};
  ControlArray<Button> Keys{*this, "Keys", 1, 3};
  ControlArray<OptionButton> option{*this, "option", 0, 1};
  Timer timer{*this, "timer", false, 100};
  MenuItem menu{*this, "menu", u"Menu"};
  MenuItem entry{*this, menu, "entry", u"Entry"};
  PictureBox surface{*this, "surface", 40, 30, rgb(10, 20, 30)};
  OverlayLine line{*this, surface, "line"};
  Image key{*this, "key", u"up"};
  Image key_up{*this, "key_up", u"up", {}, parked};
  Image key_down{*this, "key_down", u"down", {}, parked};
  PictureKey picture_key{key, key_up, key_down};
  RichTextBox rich{*this, "rich", parked};
  Field<std::int16_t> Count{*this, "Count", 7};
  Field<Variant> Anything{*this, "Anything"};
  Procedure Half{*this, "Half", &SampleWindow::half};
  Procedure Fail{*this, "Fail", &SampleWindow::fail};
};

}  // namespace tarnmill
