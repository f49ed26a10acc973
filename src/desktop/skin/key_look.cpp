#include "desktop/skin/key_look.h"

#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr double kGlossOnDark = 0.20;
constexpr double kGlossOnLight = 0.54;
// A face that is nearly white must gain more of it before an eye sees a difference.
constexpr double kHoverOnWhite = 0.60;
constexpr double kHover = 0.10;

constexpr IconInk kOnDark{palette::cream, palette::display};
constexpr IconInk kOnLight{palette::ink, palette::icon_accent_on_light};
constexpr IconInk kOnAccent{palette::accent_ink, palette::display};

}  // namespace

KeyLook key_look(KeyRole role, bool chosen) {
  if (chosen && !is_flat(role)) {
    return {palette::selected,
            palette::selected_lip,
            {palette::selected_text, palette::display},
            kGlossOnDark,
            kHover,
            QFont::Bold,
            12,
            false};
  }
  switch (role) {
    case KeyRole::digit:
      return {palette::digit, palette::digit_lip, kOnLight, kGlossOnLight,
              kHoverOnWhite,  QFont::Medium,      20,       false};
    case KeyRole::operation:
      return {palette::operation,
              palette::operation_lip,
              kOnLight,
              kGlossOnLight,
              kHover,
              QFont::Medium,
              14,
              false};
    case KeyRole::accent:
      return {palette::accent, palette::accent_lip, kOnAccent, kGlossOnDark, kHover, QFont::Bold, 14, false};
    case KeyRole::clear:
      return {palette::clear,
              palette::clear_lip,
              {palette::cream, palette::icon_accent_on_clear},
              kGlossOnDark,
              kHover,
              QFont::Medium,
              15,
              false};
    case KeyRole::mode:
      return {palette::mode, palette::mode_lip, kOnDark, kGlossOnDark, kHover, QFont::Medium, 12, false};
    case KeyRole::dialog:
      return {palette::paper, palette::line_on_bone, kOnLight, 0, kHoverOnWhite, QFont::Normal, 12, true};
    case KeyRole::primary:
      return {palette::accent, palette::accent_lip, kOnAccent, 0, 0.15, QFont::Bold, 12, true};
    case KeyRole::bar:
    case KeyRole::close:
      return {palette::bar, palette::bar, {palette::cream, palette::display}, 0, kHover, QFont::Normal,
              12,           false};
    case KeyRole::bar_tool:
      return {palette::bone, palette::bone, kOnLight, 0, kHover, QFont::Medium, 12, false};
    default:
      return {
          palette::function, palette::function_lip, kOnDark, kGlossOnDark, kHover, QFont::Medium, 14, false};
  }
}

bool is_flat(KeyRole role) {
  return role == KeyRole::bar || role == KeyRole::close || role == KeyRole::bar_tool;
}

double lip_height(double height) { return height < 34 ? 2 : 3; }

double corner_radius(double height) { return height < 34 ? 6 : 8; }

}  // namespace tarnmill::desktop
