// The memory cell and its blinking indicator.

#include "calculator/form1.h"
#include "engine/number_text.h"

namespace tarnmill {

void Form1::connect_memory() {
  cmdMemory1.Click.handle(this, &Form1::cmdMemory1_Click);
  cmdMemory2.Click.handle(this, &Form1::cmdMemory2_Click);
  cmdMemory3.Click.handle(this, &Form1::cmdMemory3_Click);
}

void Form1::cmdMemory1_Click() {
  memory_.start_blinking();
  if (Readout.Text.get() == u"0." || Readout.Text.get() == u"0") {
    MsgBox(u"Can't add null result.", MessageIcon::information);
    return;
  }
  memory_.show_before_store();
  MemoryValue = NumberFromTextStrict(Readout.Text.get(), regional());
  // On the first store it is this change that brings the indicator out.
  lblMemory1.Caption = NumberToText(MemoryValue.get(), regional());
  take_focus();
}

void Form1::cmdMemory2_Click() {
  const Text& stored = lblMemory1.Caption;
  if (stored.empty() || stored == u"0" || stored == u"0.") {
    MsgBox(u"Memory is empty.", MessageIcon::information);
  } else {
    show_number(MemoryValue);
    entry_.take_as_number();
  }
  take_focus();
}

void Form1::cmdMemory3_Click() {
  MemoryValue = 0;
  memory_.clear();
  take_focus();
}

}  // namespace tarnmill
