#pragma once

#include <array>

#include "forms/button.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// Sets the four print margins of the editor and the printer.
class frmPageSetup final : public Window {
 public:
  static constexpr std::string_view class_name = "frmPageSetup";
  explicit frmPageSetup(Workbench& workbench);

  ComboBox cboLeftMargin{*this, "cboLeftMargin"};
  ComboBox cboRightMargin{*this, "cboRightMargin"};
  ComboBox cboTopMargin{*this, "cboTopMargin"};
  ComboBox cboBottomMargin{*this, "cboBottomMargin"};
  Label Label1{*this, "Label1", u"Left       (inch)"};
  Label Label2{*this, "Label2", u"Right     (inch)"};
  Label Label3{*this, "Label3", u"Top       (inch)"};
  Label Label4{*this, "Label4", u"Bottom   (inch)"};
  Button Command1{*this, "Command1", u"Printer..."};
  Button cmdOK{*this, "cmdOK", u"OK"};
  Button cmdCancel{*this, "cmdCancel", u"Cancel"};

  /// The margins as they were when the window opened.
  TextBox txtlevo{*this, "txtlevo", parked};
  TextBox txtDesno{*this, "txtDesno", parked};
  TextBox txtgore{*this, "txtgore", parked};
  TextBox txtdole{*this, "txtdole", parked};

 private:
  /// A margin: where it is chosen, where it was kept, and the editor's own.
  struct Margin {
    ComboBox& choice;
    TextBox& kept;
    TextBox& own;
  };

  [[nodiscard]] std::array<Margin, 4> margins();
  void Form_Load();
  void cmdOK_Click();
  void cmdCancel_Click();
  void Command1_Click();
};

}  // namespace tarnmill
