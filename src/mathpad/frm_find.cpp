#include "mathpad/frm_find.h"

#include "engine/checked.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

frmFind::frmFind(Workbench& workbench) : Window{workbench, class_name} {
  Caption.start_as(u"Find");
  Width.start_as(6600);
  Height.start_as(3060);
  Load.handle([this] { bench().desk().set_on_top(*this, true); });
  QueryUnload.handle([this](std::int16_t& cancel) {
    cancel = 1;
    Hide();
  });
  FindButton.Click.handle(this, &frmFind::find);
  FindNextButton.Click.handle(this, &frmFind::find_next);
  ReplaceButton.Click.handle(this, &frmFind::replace);
  ReplaceAllButton.Click.handle(this, &frmFind::replace_all);
  Command5.Click.handle([this] { Hide(); });
}

MathPad& frmFind::pad() { return bench().window<MathPad>(); }

void frmFind::search() {
  const int options = Check2.Value * RichTextBox::whole_word + Check1.Value * RichTextBox::match_case;
  const Integer start = Integer{position.get()} + 1;
  position = Integer{pad().rt1.Find(Text1.Text, start.value(), options)}.value();
}

void frmFind::enable_replacing(bool on) {
  ReplaceButton.Enabled = on;
  ReplaceAllButton.Enabled = on;
}

void frmFind::report(bool found) {
  if (found) {
    if (pad().Visible) bench().activate(pad());
    pad().rt1.SetFocus();
    return;
  }
  MsgBox(u"String not found.");
  enable_replacing(false);
}

/// The search starts behind the first character, so that a match at the very start is out of its reach.
void frmFind::find() {
  position = 0;
  search();
  if (position >= 0) enable_replacing(true);
  report(position >= 0);
}

void frmFind::find_next() {
  search();
  report(position >= 1);
}

void frmFind::put_in() { pad().rt1.document().replace_selection(Text2.Text); }

void frmFind::replace() {
  put_in();
  search();
  report(position >= 1);
}

void frmFind::replace_all() {
  put_in();
  search();
  while (position > 0) {
    put_in();
    search();
  }
  enable_replacing(false);
  MsgBox(u"Done replacing.");
}

}  // namespace tarnmill
