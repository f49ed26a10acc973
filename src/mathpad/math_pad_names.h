#pragma once

#include <vector>

#include "engine/text.h"
#include "forms/toolbar.h"

namespace tarnmill {

/// What stands in the caption before the path, and alone while the document has no name.
inline constexpr TextView unnamed_caption = u"MathPad    ";

/// The buttons of the editor's toolbar in the order of their indices.
[[nodiscard]] inline std::vector<ToolPlan> math_pad_tools() {
  return {{"New", ToolKind::plain, u" New "},
          {"Open", ToolKind::plain, u" Open "},
          {"Save", ToolKind::plain, u" Save "},
          {"Print", ToolKind::plain, u" Print "},
          {"Insert", ToolKind::plain, u" Insert Graph Image "},
          {"Font", ToolKind::plain, u" Selected Font: "},
          {"simbol", ToolKind::plain, u" Insert Symbol "},
          {"Find", ToolKind::plain, u" Find "},
          {"Left", ToolKind::group, u" Align Left "},
          {"Center", ToolKind::group, u" Center "},
          {"Right", ToolKind::group, u" Align Right "},
          {"", ToolKind::separator, u""},
          {"Bold", ToolKind::check, u" Bold "},
          {"Italic", ToolKind::check, u" Italic "},
          {"Underline", ToolKind::check, u" Underline "},
          {"Color", ToolKind::plain, u" Text Color: "}};
}

}  // namespace tarnmill
