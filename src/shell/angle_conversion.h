#pragma once

#include <functional>

#include "forms/label.h"
#include "forms/text_box.h"
#include "forms/window.h"

namespace tarnmill {

/// In what two windows differ that convert the selected degrees of an expression.
struct AngleConversion {
  /// The title of the message that nothing is selected.
  Text refusal_title = u"Tarnmill";
  /// What stands before and after the words "Conversion done: " of the question.
  Text before;
  Text after;
  MessageIcon question_icon = MessageIcon::none;
  int default_button = 1;
  /// The text of the radians, exact as computed, in its five decimals.
  std::function<Text(double)> to_text;
};

/// Puts radians in place of the degrees that are selected in `box`, and asks whether they shall stay; on No
/// the text comes back, which `kept` has held meanwhile. A selection that is no number counts as 0 degrees.
/// Tells the person when nothing is selected.
void convert_selected_degrees(Window& window, TextBox& box, Label& kept, const AngleConversion& conversion);

}  // namespace tarnmill
