#include "shell/angle_conversion.h"

#include "engine/checked.h"
#include "engine/number_text.h"

namespace tarnmill {

void convert_selected_degrees(Window& window, TextBox& box, Label& kept, const AngleConversion& conversion) {
  constexpr double pi = 3.14159265358979;
  constexpr double half_turn = 180;
  kept.Caption = box.Text.get();
  if (box.sel_length() == 0) {
    window.MsgBox(
        u"Highlight argument of trigonometric function (in Degrees)\r\nyou want to convert to Radians.",
        MessageIcon::information, conversion.refusal_title);
    return;
  }
  const Text degrees = box.SelText.read().to_text(window.regional());
  const Text radians = conversion.to_text(divide(multiply(NumberFromText(degrees), pi), half_turn));
  box.replace_selection(radians);
  const Text question = conversion.before + u"Conversion done: " + conversion.after + degrees + u" Deg  = " +
                        radians + u" Rad\r\n\r\nReplace argument?";
  const MessageResult keep = window.MsgBox(question, conversion.question_icon, u"Conversion",
                                           MessageButtons::yes_no, conversion.default_button);
  if (keep == MessageResult::no) box.Text = kept.Caption.get();
}

}  // namespace tarnmill
