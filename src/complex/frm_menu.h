#pragma once

#include "forms/menu_item.h"
#include "forms/window.h"

namespace tarnmill {

class frmComplex;

/// A window that never shows: it owns the menus of the complex calculator's keys.
class frmmenu final : public Window {
 public:
  static constexpr std::string_view class_name = "frmmenu";
  explicit frmmenu(Workbench& bench);

  /// What to do with the operands.
  MenuItem mnumenu{*this, "mnumenu", u"Menu"};
  MenuItem mnur1{*this, mnumenu, "mnur1", u"Replace Complex (A+iB) with the Result"};
  MenuItem mnur2{*this, mnumenu, "mnur2", u"Replace Complex (C+iD) with the Result"};
  MenuItem mnuswap{*this, mnumenu, "mnuswap", u"Swap (A+iB) and (C+iD)"};

  /// Logarithms.
  MenuItem mnulog{*this, "mnulog", u"log"};
  MenuItem mnulog1{*this, mnulog, "mnulog1", u"Log (A + iB) to the base e"};
  MenuItem mnulog2{*this, mnulog, "mnulog2", u"Log (A+iB) to the base (C+iD)"};

  /// Where the memory goes to.
  MenuItem mnumemR{*this, "mnumemR", u"Memorija"};
  MenuItem mnuasA{*this, mnumemR, "mnuasA", u"As (A+iB)"};
  MenuItem mnuasC{*this, mnumemR, "mnuasC", u"As (C+iD)"};

  /// The argument of the first operand.
  MenuItem mnuraddeg{*this, "mnuraddeg", u"Arg"};
  MenuItem mnugrad{*this, mnuraddeg, "mnugrad", u"Get Argument in Rad"};
  MenuItem mnugdeg{*this, mnuraddeg, "mnugdeg", u"Get Argument in Deg"};

 private:
  void asks(MenuItem& entry, void (frmComplex::*procedure)());
};

}  // namespace tarnmill
