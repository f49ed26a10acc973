#include <array>
#include <optional>

#include "engine/checked.h"
#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"
#include "shell/modes.h"

namespace tarnmill {

namespace {

constexpr std::array size_list{u"6",  u"7",  u"8",  u"9",  u"10", u"11", u"12", u"14",
                               u"16", u"18", u"20", u"24", u"28", u"32", u"36", u"40",
                               u"48", u"56", u"64", u"72", u"80", u"88", u"96"};
constexpr int left_button = 9;
constexpr int center_button = 10;
constexpr int right_button = 11;
constexpr int bold_button = 13;
constexpr int italic_button = 14;
constexpr int underline_button = 15;

std::int16_t pressed(bool down) { return down ? std::int16_t{1} : std::int16_t{0}; }

}  // namespace

void MathPad::connect_toolbar() {
  const auto runs = [this](std::string_view key, void (MathPad::*command)()) {
    Toolbar1.Buttons(key).Click.handle([this, command] { resume_step([&] { (this->*command)(); }); });
  };
  const auto shows = [this](std::string_view key, std::string_view window) {
    Toolbar1.Buttons(key).Click.handle([this, window] { show_window(bench(), window); });
  };
  runs("New", &MathPad::new_document);
  runs("Open", &MathPad::open_document);
  runs("Save", &MathPad::save);
  runs("Print", &MathPad::print);
  runs("Insert", &MathPad::insert_picture);
  runs("Font", &MathPad::choose_font);
  runs("Color", &MathPad::choose_color);
  shows("simbol", "frmansi");
  shows("Find", "frmFind");
  Toolbar1.Buttons("Left").Click.handle([this] {
    rt1.SelAlignment.write(0);
    Toolbar1.Buttons("Left").Value = pressed(rt1.document().sel_alignment().value_or(0) != 0);
  });
  Toolbar1.Buttons("Center").Click.handle([this] { rt1.SelAlignment.write(2); });
  Toolbar1.Buttons("Right").Click.handle([this] { rt1.SelAlignment.write(1); });
  Toolbar1.Buttons("Bold").Click.handle([this] { toggle("Bold", rt1.SelBold); });
  Toolbar1.Buttons("Italic").Click.handle([this] { toggle("Italic", rt1.SelItalic); });
  Toolbar1.Buttons("Underline").Click.handle([this] { toggle("Underline", rt1.SelUnderline); });
  Toolbar1.MouseMove.handle(this, &MathPad::show_font_tip);
}

void MathPad::connect_formats() {
  for (const char16_t* each : size_list) cmbSize.AddItem(each);
  Combo1.Click.handle([this] { rt1.SelFontName.write(Combo1.Text.get()); });
  cmbSize.Click.handle(this, &MathPad::apply_size);
  cmbSize.Change.handle(this, &MathPad::apply_size);
  mnuselfont.Click.handle(this, &MathPad::choose_font);
  mnucolor.Click.handle(this, &MathPad::choose_color);
  mnuupper.Click.handle([this] { rt1.document().change_selection(upper_case); });
  mnulower.Click.handle([this] { rt1.document().change_selection(lower_case); });
  mnusuper.Click.handle(
      [this] { raise_characters(mnusuper, mnusub, multiply(NumberFromText(cmbSize.Text.get()), 5.5)); });
  mnusub.Click.handle(
      [this] { raise_characters(mnusub, mnusuper, -NumberFromText(cmbSize.Text.get()) - 33); });
}

/// A mixed selection is not wholly in the format and takes it.
void MathPad::toggle(std::string_view key, ComputedProperty& property) {
  const Variant now = property.read();
  const bool on = now.is_bool() && now.to_number(regional()) != 0;
  property.write(!on);
  Toolbar1.Buttons(key).Value = pressed(property.read().to_number(regional()) != 0);
}

/// The box shows sizes by the regional setting, and what it shows must read back as the same size: otherwise
/// a caret put into text of 10.5 points would change it.
void MathPad::apply_size() {
  const char16_t separator = regional().decimal_separator;
  const double size = NumberFromText(ReplaceAll(cmbSize.Text.get(), TextView{&separator, 1}, u"."));
  if (rt1.document().sel_font_size() != size) rt1.document().set_sel_font_size(size);
}

void MathPad::raise_characters(MenuItem& chosen, MenuItem& other, double offset) {
  const double size = NumberFromText(cmbSize.Text.get());
  RichText& document = rt1.document();
  if (chosen.Checked) {
    document.set_sel_char_offset(0);
    document.set_sel_font_size(size);
    chosen.Checked = false;
    return;
  }
  document.set_sel_char_offset(offset);
  // Seven tenths, formed so that 12 points give 8.4 to the last digit.
  document.set_sel_font_size(size * 7 / 10);
  chosen.Checked = true;
  other.Checked = false;
}

void MathPad::rt1_SelChange() {
  // While raised or lowered text is written, the box of sizes keeps the size that it is measured by.
  const bool with_size = !mnusuper.Checked && !mnusub.Checked;
  show_selection_format(with_size);
  show_selection_in_toolbar();
  color_tip_from_selection();
}

void MathPad::show_selection_format(bool with_size) {
  Combo1.Text = rt1.document().sel_font_name().value_or(Text{});
  if (!with_size) return;
  const std::optional<double> size = rt1.document().sel_font_size();
  cmbSize.Text = size ? NumberToText(*size, regional()) : Text{};
}

void MathPad::adjust_buttons() {
  const RichText& document = rt1.document();
  Toolbar1.Buttons(bold_button).Value = pressed(document.sel_bold().value_or(false));
  Toolbar1.Buttons(italic_button).Value = pressed(document.sel_italic().value_or(false));
  Toolbar1.Buttons(underline_button).Value = pressed(document.sel_underline().value_or(false));
  mark_raised();
}

void MathPad::adjust_buttons_2() {
  show_selection_format(true);
  show_selection_in_toolbar();
}

void MathPad::show_selection_in_toolbar() {
  if (const std::optional<int> alignment = rt1.document().sel_alignment()) {
    const int button = *alignment == 2 ? center_button : *alignment == 1 ? right_button : left_button;
    Toolbar1.Buttons(button).Value = 1;
  }
  adjust_buttons();
}

void MathPad::mark_raised() {
  const std::optional<double> offset = rt1.document().sel_char_offset();
  if (!offset) return;
  mnusuper.Checked = *offset > 0;
  mnusub.Checked = *offset < 0;
}

void MathPad::clear_toolbar_state() {
  for (int i = left_button; i <= underline_button; ++i) Toolbar1.Buttons(i).Value = 0;
}

void MathPad::reset_sel_format() {
  RichText& document = rt1.document();
  document.set_sel_font_name(u"Tahoma");
  document.set_sel_color(0);
  document.set_sel_alignment(0);
  document.set_sel_font_size(10);
  rt1.FontSize = 10;
}

void MathPad::fill_fonts() {
  for (const Text& each : bench().desk().font_names()) Combo1.AddItem(each);
  const std::optional<Text> name = rt1.document().sel_font_name();
  for (int i = 0; name && i < static_cast<int>(Combo1.items().size()); ++i) {
    if (Combo1.List(i) != *name) continue;
    Combo1.ListIndex = i;
    break;
  }
}

Text MathPad::undo_name(std::int32_t kind) const {
  static constexpr std::array names{u"Last Action", u"Typing", u"Delete", u"Drag Drop", u"Cut", u"Paste"};
  const bool known = kind >= 0 && static_cast<std::size_t>(kind) < names.size();
  return known ? names[static_cast<std::size_t>(kind)] : Text{};
}

void MathPad::update_edit_menu() {
  mnuEditUndo.Enabled = can_undo();
  mnuEditUndo.Caption = u"&Undo";
  mnuEditCut.Enabled = can_copy();
  mnuEditClear.Enabled = can_copy();
  mnuEditCopy.Enabled = can_copy();
  mnuEditPaste.Enabled = can_paste();
}

}  // namespace tarnmill
