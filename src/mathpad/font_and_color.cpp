#include <optional>

#include "engine/fault.h"
#include "engine/number_text.h"
#include "forms/desk.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

namespace {

Text hexadecimal(Color color) {
  constexpr TextView digits = u"0123456789ABCDEF";
  Text text;
  auto rest = static_cast<std::uint32_t>(color);
  do {
    text.insert(text.begin(), digits[rest % 16]);
    rest /= 16;
  } while (rest != 0);
  return text;
}

}  // namespace

void MathPad::choose_font() {
  resume_step([&] {
    constexpr std::int32_t screen_and_printer_with_effects = 259;
    rt1.SetFocus();
    RichText& document = rt1.document();
    CommonDialog1.CancelError = true;
    CommonDialog1.DialogTitle = Text{};
    CommonDialog1.Flags = screen_and_printer_with_effects;
    CommonDialog1.FontName = document.sel_font_name().value_or(rt1.FontName);
    CommonDialog1.FontSize = document.sel_font_size().value_or(rt1.FontSize);
    CommonDialog1.ShowFont();
    document.set_sel_bold(CommonDialog1.FontBold);
    document.set_sel_italic(CommonDialog1.FontItalic);
    document.set_sel_font_name(CommonDialog1.FontName);
    document.set_sel_font_size(CommonDialog1.FontSize);
    document.set_sel_strike_through(CommonDialog1.FontStrikethru);
    document.set_sel_underline(CommonDialog1.FontUnderline);
    document.set_sel_color(CommonDialog1.Color);
    adjust_buttons();
    rt1.SetFocus();
    color_tip_from_selection();
    Combo1.Text = CommonDialog1.FontName.get();
    cmbSize.Text = NumberToText(CommonDialog1.FontSize, regional());
  });
}

/// The command goes on after a cancelled dialog: the selection takes the colour that the dialog was last left
/// with.
void MathPad::choose_color() {
  resume_next([&] { pick_text_color(); }, [&] { rt1.document().set_sel_color(CommonDialog1.Color); });
}

void MathPad::pick_text_color() {
  CommonDialog1.CancelError = true;
  CommonDialog1.DialogTitle = Text{};
  CommonDialog1.ShowColor();
  show_color(CommonDialog1.Color);
}

void MathPad::read_sel_color() {
  if (const std::optional<Color> color = rt1.document().sel_color()) show_color(*color);
}

void MathPad::show_color(Color color) {
  const Text digits = pad_left_zeros(hexadecimal(color), u"000000");
  const auto part = [&](std::size_t start) {
    return NumberToText(NumberFromText(u"&H" + digits.substr(start, 2)), regional());
  };
  Text1.Text = part(4);
  Text2.Text = part(2);
  Text3.Text = part(0);
}

void MathPad::color_tip_from_dialog() {
  pick_text_color();
  show_color_tip();
}

void MathPad::color_tip_from_selection() {
  read_sel_color();
  show_color_tip();
}

void MathPad::show_color_tip() {
  Toolbar1.Buttons("Color").ToolTipText =
      u" Text Color: RGB(" + Text1.Text.get() + u", " + Text2.Text.get() + u", " + Text3.Text.get() + u")";
}

void MathPad::show_font_tip(int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  const std::optional<double> size = rt1.document().sel_font_size();
  Toolbar1.Buttons("Font").ToolTipText = u" Selected Font: " +
                                         rt1.document().sel_font_name().value_or(Text{}) + u", " +
                                         (size ? NumberToText(*size, regional()) : Text{});
}

Text MathPad::pad_left_zeros(const Text& text, const Text& mask) const {
  if (text.size() >= mask.size()) return text.substr(text.size() - mask.size());
  return mask.substr(0, mask.size() - text.size()) + text;
}

}  // namespace tarnmill
