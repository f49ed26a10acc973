#include "mathpad/frm_page_setup.h"

#include <cmath>

#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

namespace {

/// A number of inches with two decimals, "0.05".
Text two_decimals(double inches, const Regional& regional) {
  constexpr int hundred = 100;
  const auto hundredths = static_cast<int>(std::lround(inches * hundred));
  Text text = NumberToText(hundredths / hundred, regional) + u".";
  if (hundredths % hundred < 10) text += u"0";
  return text + NumberToText(hundredths % hundred, regional);
}

}  // namespace

frmPageSetup::frmPageSetup(Workbench& workbench) : Window{workbench, class_name} {
  Caption.start_as(u"Page Setup");
  Width.start_as(4800);
  Height.start_as(3540);
  Load.handle(this, &frmPageSetup::Form_Load);
  cmdOK.Click.handle(this, &frmPageSetup::cmdOK_Click);
  cmdCancel.Click.handle(this, &frmPageSetup::cmdCancel_Click);
  Command1.Click.handle(this, &frmPageSetup::Command1_Click);
  for (ComboBox* each : {&cboLeftMargin, &cboRightMargin, &cboTopMargin, &cboBottomMargin}) {
    each->Click.handle([this, each] {
      for (const Margin& margin : margins()) {
        if (&margin.choice == each) margin.own.Text = each->Text.get();
      }
    });
  }
}

std::array<frmPageSetup::Margin, 4> frmPageSetup::margins() {
  MathPad& pad = bench().window<MathPad>();
  return {Margin{cboLeftMargin, txtlevo, pad.txtlevo}, Margin{cboRightMargin, txtDesno, pad.txtDesno},
          Margin{cboTopMargin, txtgore, pad.txtGore}, Margin{cboBottomMargin, txtdole, pad.txtDole}};
}

void frmPageSetup::Form_Load() {
  constexpr double most_inches = 4;
  constexpr double step = 0.05;
  for (const Margin& margin : margins()) {
    margin.kept.Text = margin.own.Text.get();
    for (double inches = 0; inches <= most_inches; inches += step) {
      margin.choice.AddItem(two_decimals(inches, regional()));
    }
    margin.choice.Text = margin.own.Text.get();
  }
}

void frmPageSetup::cmdOK_Click() {
  for (const Margin& margin : margins()) margin.own.Text = margin.choice.Text.get();
  Unload();
}

void frmPageSetup::cmdCancel_Click() {
  for (const Margin& margin : margins()) margin.own.Text = margin.kept.Text.get();
  Unload();
}

void frmPageSetup::Command1_Click() {
  constexpr std::int32_t printer_setup = 64;
  static_cast<void>(bench().desk().set_up_printer({printer_setup}));
  bench().leave_if_ended();
}

}  // namespace tarnmill
