#include "script/specimen.h"

namespace tarnmill {

namespace {

Text number(double value) { return NumberToText(value, Regional{}); }

}  // namespace

Specimen::Specimen(Workbench& bench) : Window{bench, class_name} {
  Load.handle([this] { log(u"load"); });
  Activate.handle([this] { log(u"activate"); });
  KeyDown.handle(this, &Specimen::Form_KeyDown);
  QueryUnload.handle(this, &Specimen::Form_QueryUnload);
  txtA.Change.handle([this] { log(u"change"); });
  txtA.MouseDown.handle(this, &Specimen::txtA_MouseDown);
  cmdA.Click.handle([this] { log(u"A"); });
  cmd_with_underscore.Click.handle([this] { log(u"underscore"); });
  cmdFault.Click.handle([] { throw Fault{FaultCode::DivisionByZero}; });
  cmdWait.Click.handle(this, &Specimen::cmdWait_Click);
  cmdAsk.Click.handle(
      [this] { MsgBox(u"Go on?", MessageIcon::question, u"Specimen", MessageButtons::yes_no); });
  cmdEnd.Click.handle([this] { workbench().end(); });
  Keys.handle(&Button::Click, this, &Specimen::Keys_Click);
  Keys.handle(&Button::KeyDown, this, &Specimen::Keys_KeyDown);
  chkA.Click.handle([this] { log(u"chk" + number(chkA.Value)); });
  optB.Click.handle([this] { log(u"optB"); });
  cboA.Click.handle([this] { log(u"choice " + cboA.Text.get()); });
  mnuA.Click.handle([this] { PopupMenu(mnuTop); });
  Timer1.Tick.handle([this] { log(u"tick"); });
}

void Specimen::Keys_Click(int Index) { log(u"key" + number(Index)); }

void Specimen::Keys_KeyDown(int Index, int& KeyCode, int Shift) {
  log(u"key" + number(Index) + u":" + number(KeyCode) + u"," + number(Shift));
}

void Specimen::txtA_MouseDown(int Button, int Shift, float X, float Y) {
  log(u"mouse " + number(Button) + u"," + number(Shift) + u"," + number(static_cast<double>(X)) + u"," +
      number(static_cast<double>(Y)));
}

void Specimen::Form_KeyDown(int& KeyCode, int Shift) {
  log(u"form:" + number(KeyCode) + u"," + number(Shift));
}

void Specimen::Form_QueryUnload(std::int16_t& Cancel) {
  log(u"query");
  if (Refuses) Cancel = 1;
}

/// Waits until something else has set Small, as a loop that yields does.
void Specimen::cmdWait_Click() {
  while (Small == 0) workbench().do_events();
  log(u"waited");
}

}  // namespace tarnmill
