#include "mathpad/math_pad.h"

#include <algorithm>

#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/frm_find.h"
#include "mathpad/math_pad_names.h"
#include "shell/help.h"
#include "shell/modes.h"
#include "shell/recent_list.h"

namespace tarnmill {

MathPad::MathPad(Workbench& workbench)
    : Window{workbench, class_name}, Toolbar1{*this, "Toolbar1", math_pad_tools()} {
  Caption.start_as(Text{unnamed_caption});
  Width.start_as(11400);
  Height.start_as(7800);
  rt1.Left.start_as(0);
  rt1.Top.start_as(1065);
  mnuSeparator2.Visible.start_as(false);
  for (const auto& each : mnuRecent) {
    each->Visible.start_as(false);
    mnufile.adopt(*each);
  }
  connect_document();
  connect_menus();
  connect_toolbar();
  connect_formats();
}

void MathPad::connect_document() {
  Load.handle(this, &MathPad::Form_Load);
  Resize.handle(this, &MathPad::Form_Resize);
  QueryUnload.handle(this, &MathPad::Form_QueryUnload);
  rt1.Change.handle(this, &MathPad::rt1_Change);
  rt1.SelChange.handle(this, &MathPad::rt1_SelChange);
}

void MathPad::connect_menus() {
  mnunew.Click.handle(this, &MathPad::new_document);
  mnuopen.Click.handle(this, &MathPad::open_document);
  mnuSave.Click.handle(this, &MathPad::save);
  mnuSaveas.Click.handle(this, &MathPad::save_as);
  mnuprint.Click.handle(this, &MathPad::print);
  mnuprintset.Click.handle([this] { show_window(bench(), "frmPageSetup"); });
  mnuexit.Click.handle(this, &MathPad::save_window_record_and_unload);
  mnuRecent.handle(&MenuItem::Click, this, &MathPad::mnuRecent_Click);
  mnuEdit.Click.handle(this, &MathPad::update_edit_menu);
  mnuEditUndo.Click.handle(this, &MathPad::undo);
  mnuEditCut.Click.handle(this, &MathPad::cut);
  mnuEditCopy.Click.handle(this, &MathPad::copy);
  mnuEditPaste.Click.handle(this, &MathPad::paste);
  mnuEditClear.Click.handle(this, &MathPad::clear_selection);
  mnuselall.Click.handle([this] {
    rt1.document().select(0, 0);
    rt1.document().select(0, rt1.document().length());
  });
  mnuline.Click.handle([this] {
    rt1.SetFocus();
    rt1.document().select_line();
  });
  mnuins.Click.handle(this, &MathPad::insert_picture);
  mnusymbol.Click.handle([this] { show_window(bench(), "frmansi"); });
  mnufind.Click.handle([this] { show_window(bench(), "frmFind"); });
  mnunext.Click.handle(this, &MathPad::find_next);
  mnucontents.Click.handle([this] { show_program_help(bench().desk()); });
}

void MathPad::Form_Load() {
  load_window_record();
  fill_fonts();
  Form_Resize();
  rt1.Tag = u"notchange";
  LoadRecentFile(bench());
  ShowRecentFile(bench());
}

/// The editor takes the room that the window leaves it, and the window keeps room for its toolbar.
void MathPad::Form_Resize() {
  constexpr std::int16_t minimised = 1;
  constexpr double least_width = 8850;
  constexpr double least_height = 2235;
  if (WindowState == minimised) return;
  resume_next([&] { rt1.Height = std::max(0.0, Height - rt1.Top - 50); },
              [&] { rt1.Width = std::max(0.0, Width - 40); });
  if (Width < least_width) Width = least_width;
  if (Height < least_height) Height = least_height;
}

void MathPad::Form_QueryUnload(std::int16_t& Cancel) {
  if (rt1.Tag.get() == u"change") {
    const MessageResult answer = MsgBox(u"Save changes before closing?", MessageIcon::question,
                                        u"Save Dialog", MessageButtons::yes_no_cancel);
    if (answer == MessageResult::cancel) {
      Cancel = 1;
      return;
    }
    if (answer == MessageResult::yes) save();
  }
  save_window_record();
}

void MathPad::rt1_Change() {
  lblchar2.Caption = NumberToText(rt1.document().length(), regional());
  rt1.Tag = lblchar2.Caption.get() == lblchar.Caption.get() ? u"notchange" : u"change";
  const bool holds_text = rt1.document().length() > 0;
  mnuline.Enabled = holds_text;
  mnuselall.Enabled = holds_text;
  if (!mnusuper.Checked && !mnusub.Checked) show_selection_format(true);
}

void MathPad::get_edit_status() {
  const int line = rt1.document().line_of(rt1.document().sel_start()) + 1;
  lblchar.Caption = NumberToText(line, regional());
}

std::int32_t MathPad::box_handle() const {
  const auto place = std::find(controls().begin(), controls().end(), &rt1);
  return static_cast<std::int32_t>(place - controls().begin()) + 1;
}

void MathPad::find_next() { bench().window<frmFind>().find_next(); }

}  // namespace tarnmill
