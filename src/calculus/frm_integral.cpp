#include "calculus/frm_integral.h"

#include "engine/rewriting.h"
#include "forms/title_bar.h"
#include "forms/workbench.h"
#include "graph/frm_zoom.h"
#include "graph/function_names.h"

namespace tarnmill {

frmIntegral::frmIntegral(Workbench& bench) : Window{bench, class_name} {
  Width.start_as(8400);
  Height.start_as(8520);
  Surface.ForeColor.start_as(rgb(0x33, 0x4A, 0x38));
  Load.handle(this, &frmIntegral::Form_Load);
  Evaluator1.SamplePoint.handle(this, &frmIntegral::draw_sample);
  connect_title_bar(Label10, immini, Image7);
  connect_commands();
  connect_fields();
  connect_pictures();
}

void frmIntegral::connect_commands() {
  cmdIntegral.Click.handle(this, &frmIntegral::cmdIntegral_Click);
  cmdsrednja.Click.handle(this, &frmIntegral::cmdsrednja_Click);
  cmdTangenta.Click.handle(this, &frmIntegral::cmdTangenta_Click);
  cmdreplall.Click.handle(this, &frmIntegral::cmdreplall_Click);
  Command1.Click.handle(this, &frmIntegral::Command1_Click);
  Command2.Click.handle(this, &frmIntegral::Command2_Click);
  Command3.Click.handle(this, &frmIntegral::Command3_Click);
  Command4.Click.handle(this, &frmIntegral::Command4_Click);
  Command5.Click.handle(this, &frmIntegral::Command5_Click);
  imint.Click.handle(this, &frmIntegral::cmdIntegral_Click);
  ims.Click.handle(this, &frmIntegral::cmdsrednja_Click);
  imdiff.Click.handle(this, &frmIntegral::Command3_Click);
}

void frmIntegral::connect_fields() {
  const auto on_enter = [this](TextBox& field, void (frmIntegral::*command)()) {
    field.KeyUp.handle([this, command](int& code, int) {
      constexpr int enter = 13;
      if (code == enter) (this->*command)();
    });
  };
  for (TextBox* field : {&Text4, &txtmin, &txtmax}) {
    on_enter(*field, &frmIntegral::cmdIntegral_Click);
    field->Change.handle(this, &frmIntegral::range_changed);
  }
  for (TextBox* field : {&Text7, &Text8}) {
    on_enter(*field, &frmIntegral::Command3_Click);
    field->Change.handle([this] { Text11.Text = u""; });
  }
}

void frmIntegral::connect_pictures() {
  imcopy.MouseDown.handle(this, &frmIntegral::imcopy_MouseDown);
  const auto release = [this](int, int, float, float) { release_pictures(); };
  MouseMove.handle(release);
  Surface.MouseMove.handle(release);
  Frame1.MouseMove.handle(release);
}

void frmIntegral::Form_Load() {
  for (const TextView name : analysis_function_names()) C1.AddItem(Text{name});
}

void frmIntegral::release_pictures() {
  for (PictureKey* each :
       {&integral_key_, &average_key_, &derivative_key_, &copy_key_, &close_key_, &minimise_key_}) {
    each->release();
  }
}

void frmIntegral::imcopy_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  constexpr int left = 1;
  imcopy.Picture = imcopyd.Picture.get();
  if (Button == left) PopupMenu(workbench().window<frmZoom>().mnucopy);
}

void frmIntegral::range_changed() {
  Text10.Text = u"";
  lblintg.ForeColor = 0;
  lblavg.ForeColor = 0;
}

void frmIntegral::empty_fields() {
  for (TextBox* field : {&Text4, &txtmin, &txtmax, &Text7, &Text8, &Text10, &Text11}) field->Text = u"";
}

void frmIntegral::Command5_Click() { workbench().window("frmAnaliza").Show(); }

void frmIntegral::rewrite() {
  Text13.Text = Rewriting::zam(Text13.Text.get());
  const Rule& last = Rewriting::zam_rules().back();
  Text15.Text = Text{last.find};
  Text16.Text = Text{last.replacement};
}

}  // namespace tarnmill
