#pragma once

#include "forms/menu_item.h"
#include "forms/window.h"

namespace tarnmill {

/// A window that never shows: it owns the menus that pop up on the calculators and on the keypad.
class Help final : public Window {
 public:
  static constexpr std::string_view class_name = "Help";
  explicit Help(Workbench& workbench);

  /// The menu of `Form1`.
  MenuItem mnuhelp2{*this, "mnuhelp2"};
  MenuItem mnupad2{*this, mnuhelp2, "mnupad2", u"MathPad"};
  MenuItem mnicompl2{*this, mnuhelp2, "mnicompl2", u"Complex Mode"};
  MenuItem mnugraph2{*this, mnuhelp2, "mnugraph2", u"Graph Mode"};
  MenuItem mnueval2{*this, mnuhelp2, "mnueval2", u"Evaluator"};
  MenuItem mnuht2{*this, mnuhelp2, "mnuht2", u"Help"};
  MenuItem mnuabout{*this, mnuhelp2, "mnuabout", u"About"};
  MenuItem mnuexit{*this, mnuhelp2, "mnuexit", u"Exit"};

  /// The menu of `frmComplex`.
  MenuItem mnuhelpcomplex{*this, "mnuhelpcomplex"};
  MenuItem mnupad3{*this, mnuhelpcomplex, "mnupad3", u"MathPad"};
  MenuItem muadv3{*this, mnuhelpcomplex, "muadv3", u"Advanced Mode"};
  MenuItem mnugraph3{*this, mnuhelpcomplex, "mnugraph3", u"Graph Mode"};
  MenuItem mnueval1{*this, mnuhelpcomplex, "mnueval1", u"Evaluator"};
  MenuItem mnuhelp{*this, mnuhelpcomplex, "mnuhelp", u"Help"};
  MenuItem mnuexit3{*this, mnuhelpcomplex, "mnuexit3", u"Exit"};

  /// The menu of `frmTast`.
  MenuItem mnueval{*this, "mnueval"};
  MenuItem mnupadev{*this, mnueval, "mnupadev", u"MathPad"};
  MenuItem mniadev{*this, mnueval, "mniadev", u"Advanced Mode"};
  MenuItem mnicomev{*this, mnueval, "mnicomev", u"Complex Mode"};
  MenuItem mnigraphev{*this, mnueval, "mnigraphev", u"Graph Mode"};
  MenuItem mnutable{*this, mnueval, "mnutable", u"Value Table"};
  MenuItem mnicopyres{*this, mnueval, "mnicopyres", u"Copy Result"};
  MenuItem mnicopyexpr{*this, mnueval, "mnicopyexpr", u"Copy Expression"};
  MenuItem mnupasteev{*this, mnueval, "mnupasteev", u"Paste Expression"};
  MenuItem mnuhev{*this, mnueval, "mnuhev", u"Help"};
  MenuItem mnuexev{*this, mnueval, "mnuexev", u"Exit"};

 private:
  void connect_calculator_menu();
  void connect_complex_menu();
  void connect_keypad_menu();

  void mnuexit_Click();
  void mnupasteev_Click();
  void mnuexev_Click();

  /// The entry shows a window beside the one it was chosen on.
  void shows(MenuItem& entry, std::string_view name);
  /// The entry hides one mode and shows another.
  void changes_mode(MenuItem& entry, std::string_view from, std::string_view to);
  /// The entry shows a mode and unloads the keypad.
  void leaves_keypad(MenuItem& entry, std::string_view to);
  /// The entry runs a procedure of the keypad.
  void asks_keypad(MenuItem& entry, std::string_view procedure);
  void shows_help(MenuItem& entry);
};

}  // namespace tarnmill
