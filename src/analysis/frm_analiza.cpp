#include "analysis/frm_analiza.h"

#include "calculus/frm_integral.h"
#include "engine/number_text.h"
#include "forms/title_bar.h"
#include "forms/workbench.h"
#include "graph/function_names.h"

namespace tarnmill {

frmAnaliza::frmAnaliza(Workbench& bench) : Window{bench, class_name} {
  Caption.start_as(u"Function Analize");
  Width.start_as(9300);
  Height.start_as(7860);
  txtroot.MultiLine.start_as(true);
  pb1.Visible.start_as(false);
  for (const char16_t* step : {u"0.001", u"0.0001", u"0.01", u"0.1", u"0.00001"}) Combo1.AddItem(step);
  Load.handle(this, &frmAnaliza::Form_Load);
  connect_title_bar(Label16, immini, Image7);
  connect_entry();
  connect_requests();
  connect_commands();
  connect_pictures();
}

void frmAnaliza::connect_entry() { txtformula.Change.handle(this, &frmAnaliza::txtformula_Change); }

void frmAnaliza::connect_requests() {
  Image1.Click.handle([this] {
    normalise_range();
    cmdNula_Click();
  });
  Image2.Click.handle([this] {
    normalise_range();
    Command3_Click();
  });
  Image4.Click.handle([this] {
    lblgreska.Caption = u"";
    cmdypresek_Click();
  });
  Image5.Click.handle(this, &frmAnaliza::cmdinters_Click);
  Image6.Click.handle([this] { workbench().window<frmIntegral>().Show(); });
  Image3.Click.handle(this, &frmAnaliza::cmdprint_Click);
  Image10.Click.handle(this, &frmAnaliza::Image10_Click);
}

void frmAnaliza::connect_commands() {
  cmdNula.Click.handle(this, &frmAnaliza::cmdNula_Click);
  cmdypresek.Click.handle(this, &frmAnaliza::cmdypresek_Click);
  cmdinters.Click.handle(this, &frmAnaliza::cmdinters_Click);
  cmdprint.Click.handle(this, &frmAnaliza::cmdprint_Click);
  cmdreplall.Click.handle(this, &frmAnaliza::cmdreplall_Click);
  cmdzam.Click.handle(this, &frmAnaliza::cmdzam_Click);
  Command1.Click.handle(this, &frmAnaliza::Command1_Click);
  Command2.Click.handle(this, &frmAnaliza::Command2_Click);
  Command3.Click.handle(this, &frmAnaliza::Command3_Click);
  Command4.Click.handle(this, &frmAnaliza::Command4_Click);
}

void frmAnaliza::connect_pictures() {
  Image1.MouseMove.handle([this](int, int, float, float) { extremes_key_.release(); });
  Image2.MouseMove.handle([this](int, int, float, float) { roots_key_.release(); });
  txtroot.MouseMove.handle([this](int, int, float, float) {
    for (PictureKey* each :
         {&roots_key_, &extremes_key_, &save_key_, &y_key_, &intersection_key_, &integral_key_}) {
      each->release();
    }
  });
}

void frmAnaliza::Form_Load() {
  for (const TextView name : analysis_function_names()) C1.AddItem(Text{name});
}

void frmAnaliza::txtformula_Change() {
  constexpr double first_step = 0.001;
  txtdole.Text = u"";
  txtgore.Text = u"";
  Combo1.Text = NumberToText(first_step, regional());
}

}  // namespace tarnmill
