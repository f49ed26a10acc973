#include "mathpad/frm_ansi.h"

#include <string>

#include "engine/fault.h"
#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/binary_text.h"
#include "mathpad/math_pad.h"
#include "mathpad/rtf/encoding.h"

namespace tarnmill {

namespace {

constexpr int code_page = 1252;
constexpr int columns = 22;
constexpr int rows = 13;
constexpr int last_code = 255;
constexpr TextView symbol_font = u"Marrow";

/// The character of a code; empty for the five codes that the code page leaves open.
Text character_of(int code) {
  switch (code) {
    case 0x81:
    case 0x8D:
    case 0x8F:
    case 0x90:
    case 0x9D:
      return {};
    default: {
      Text text;
      rtf::decode(std::string(1, static_cast<char>(code)), rtf::encoding_of_page(code_page), text);
      return text;
    }
  }
}

/// Hexadecimal with at least two digits.
Text hexadecimal(int code) {
  constexpr TextView digits = u"0123456789ABCDEF";
  return {digits[static_cast<std::size_t>(code / 16)], digits[static_cast<std::size_t>(code % 16)]};
}

}  // namespace

frmansi::frmansi(Workbench& workbench) : Window{workbench, class_name} {
  Caption.start_as(u"Insert Symbol");
  Width.start_as(9000);
  Height.start_as(7410);
  Check1.Value.start_as(1);
  Label4.ToolTipText.start_as(u"Click to Copy the Alphanumeric Character to the Clipboard");
  Load.handle(this, &frmansi::Form_Load);
  Combo1.Click.handle(this, &frmansi::Combo1_Click);
  Grid1.Click.handle(this, &frmansi::Grid1_Click);
  Grid1.DblClick.handle(this, &frmansi::insert);
  Grid1.EnterCell.handle(this, &frmansi::enter_cell);
  Grid1.LeaveCell.handle(this, &frmansi::leave_cell);
  Text1.Change.handle([this] { Label2.Caption = Text1.Text.get(); });
  lblcodes.Change.handle([this] {
    SB1.Panels(1).Text = Grid1.FontName.get();
    SB1.Panels(2).Text = lblcodes.Caption.get();
  });
  Check1.Click.handle([this] { bench().desk().set_on_top(*this, Check1.Value != 0); });
  Command2.Click.handle(this, &frmansi::insert);
  Command3.Click.handle([this] { Unload(); });
  Label3.DblClick.handle([this] {
    resume_step([this] {
      bench().desk().clear_clipboard();
      const Text selected = Text1.SelText.read().to_text(regional());
      bench().desk().set_clipboard_text(NumberToText(code_of(selected), regional()));
    });
  });
  Label4.DblClick.handle([this] {
    bench().desk().clear_clipboard();
    bench().desk().set_clipboard_text(Text1.SelText.read().to_text(regional()));
  });
  colors_while_pressed(Label3);
  colors_while_pressed(Label4);
}

void frmansi::colors_while_pressed(Label& label) {
  constexpr Color pressed = rgb(0, 0, 255);
  constexpr int left_button = 1;
  label.MouseDown.handle([&label](int button, int, float, float) {
    if (button == left_button) label.ForeColor = pressed;
  });
  label.MouseUp.handle([&label](int button, int, float, float) {
    if (button == left_button) label.ForeColor = 0;
  });
}

void frmansi::Form_Load() {
  constexpr double preview_size = 36;
  bench().desk().set_on_top(*this, true);
  fill_chart();
  show_panels();
  Label2.FontSize = preview_size;
  lblinfo.Caption = Text{};
  bench().desk().clear_clipboard();
  if (!Combo1.Text->empty()) return;
  MsgBox(
      u"Font Marrow.TTF not found.\r\nExtract it from installation package Hollin.zip to temporary folder "
      u"and\r\n"
      u"install it as a font.",
      MessageIcon::exclamation);
}

void frmansi::fill_chart() {
  constexpr int hourglass = 11;
  constexpr double font_size = 12;
  constexpr int column_width = 300;
  bench().MousePointer(hourglass);
  for (const Text& each : bench().desk().font_names()) {
    Combo1.AddItem(each);
    bench().do_events();
  }
  bench().MousePointer(0);
  Caption = u"Insert Symbol";
  Grid1.Cols = columns;
  Grid1.Rows = rows;
  Grid1.FontSize = font_size;
  for (int i = 0; i < columns; ++i) Grid1.ColWidth(i, column_width);
  for (int code = 1; code <= last_code; ++code) {
    Grid1.TextMatrix((code - 1) / columns, (code - 1) % columns, character_of(code));
  }
  for (int i = 0; i < static_cast<int>(Combo1.items().size()); ++i) {
    if (Combo1.List(i) == symbol_font) Combo1.ListIndex = i;
  }
}

void frmansi::Combo1_Click() {
  const Text& font = Combo1.Text;
  Label2.FontName = font;
  Grid1.FontName = font;
  Text1.FontName = font;
  SB1.Panels(1).Text = font;
}

void frmansi::enter_cell() {
  constexpr Color yellow = 65535;
  resume_next(
      [&] {
        lblinfo.Caption = u"ASCII Code: 0" + NumberToText(code_of(cell()), regional()) +
                          u"   Alphanumeric Representation: " + cell();
      },
      [&] { Label2.Caption = cell(); }, [&] { Grid1.CellBackColor.write(yellow); });
}

void frmansi::leave_cell() {
  constexpr Color white = 16777215;
  Grid1.CellBackColor.write(white);
}

void frmansi::Grid1_Click() {
  Text1.Text = Text1.Text.get() + cell();
  show_panels();
}

void frmansi::insert() {
  RichText& document = bench().window<MathPad>().rt1.document();
  document.set_sel_font_name(Combo1.Text);
  document.replace_selection(Text1.Text);
}

void frmansi::show_panels() {
  resume_step([&] {
    const std::int16_t code = code_of(cell());
    SB1.Panels(1).Text = Grid1.FontName.get();
    SB1.Panels(3).Text = key_line(code);
    lblcodes.Caption = code_line(code);
  });
}

std::int16_t frmansi::code_of(const Text& text) const {
  constexpr std::int16_t unknown = u'?';
  if (text.empty()) throw Fault{FaultCode::InvalidArgument};
  const char16_t first = text.front();
  if (first < 0x80) return static_cast<std::int16_t>(first);
  const std::optional<std::uint8_t> byte = rtf::byte_of_page_1252(first);
  return byte ? *byte : unknown;
}

Text frmansi::code_line(std::int16_t code) {
  return u"Dec: " + NumberToText(code, regional()) + u" Hex: " + hexadecimal(code) + u" Bin: " +
         DecToBin(code);
}

Text frmansi::key_line(std::int16_t code) {
  const TextView zeros = code < 10 ? u"000" : code < 100 ? u"00" : u"0";
  return u"ALT + " + Text{zeros} + NumberToText(code, regional()) + u"  (Num Key only)";
}

}  // namespace tarnmill
