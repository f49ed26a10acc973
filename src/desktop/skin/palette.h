#pragma once

#include <QColor>
#include <cmath>

/// The colours of the windows, each named once.
namespace tarnmill::desktop::palette {

/// The opaque colour of a 0xRRGGBB number.
constexpr QColor rgb(int number) { return {number >> 16 & 0xFF, number >> 8 & 0xFF, number & 0xFF}; }

inline constexpr QColor display{157, 188, 148};
inline constexpr QColor display_off = rgb(0x7E9677);
inline constexpr QColor display_faded = rgb(0x495B47);
inline constexpr QColor display_ink = rgb(0x131F17);
inline constexpr QColor display_dim = rgb(0x2F4433);

/// Bands of the case: this red throughout, no green, blue rising from 0 to 255.
inline constexpr int case_red = 50;
/// Panel under groups of keys; it lets 54 % of the case through.
inline constexpr QColor deck{0x0C, 0x07, 0x10, 117};
inline constexpr QColor deck_line{255, 255, 255, 23};
inline constexpr QColor body_top = rgb(0x332A3D);
inline constexpr QColor body_bottom = rgb(0x241D2B);
inline constexpr QColor body_line = rgb(0x4A3F55);
inline constexpr QColor bar = rgb(0x1B1621);
inline constexpr QColor bar_line = rgb(0x0E0C11);
inline constexpr QColor bezel = rgb(0x0D0A10);
inline constexpr QColor bezel_rim = rgb(0x312F34);
inline constexpr QColor plot_rim = rgb(0x544860);

inline constexpr QColor bone = rgb(0xECE8DF);
inline constexpr QColor bone_hover = rgb(0xD9D6CE);
inline constexpr QColor bone_rule = rgb(0xB0A89C);
inline constexpr QColor paper = rgb(0xFBF9F4);
inline constexpr QColor ink = rgb(0x1F1A24);
/// Ink halfway into bone: captions of what is disabled.
inline constexpr QColor faded_ink = rgb(0x868182);
inline constexpr QColor disabled_box = rgb(0xDAD4C9);
inline constexpr QColor cream = rgb(0xF6F1E7);
/// Second line of a nameplate and other quiet captions on the case.
inline constexpr QColor lilac = rgb(0xE2D9E8);

inline constexpr QColor line_on_bone = rgb(0x8A8278);
inline constexpr QColor line_on_green = rgb(0x4F6B4A);
inline constexpr QColor tick_line = rgb(0x6E665C);
inline constexpr QColor track = rgb(0xD6D0C4);
inline constexpr QColor scroll_handle = rgb(0xA59C8E);

inline constexpr QColor accent{241, 82, 35};
inline constexpr QColor accent_ink = rgb(0x1E0B04);
inline constexpr QColor accent_lip = rgb(0x9A2E0C);
inline constexpr QColor icon_accent_on_light = rgb(0xB8350C);
inline constexpr QColor icon_accent_on_clear = rgb(0xFFC9B8);

inline constexpr QColor selected = rgb(0x334A38);
inline constexpr QColor selected_lip = rgb(0x1C2B20);
inline constexpr QColor selected_text = rgb(0xEAF4E6);
inline constexpr QColor selected_tint = rgb(0xCFDDC8);
inline constexpr QColor focus_on_dark = rgb(0xFFD166);
inline constexpr QColor focus_on_light = rgb(0x1F3FD0);
/// Stands in for the platform's active-border colour.
inline constexpr QColor grid{212, 208, 200};

inline constexpr QColor digit = rgb(0xF1ECE1);
inline constexpr QColor digit_lip = rgb(0xA99E8D);
inline constexpr QColor function = rgb(0x41374B);
inline constexpr QColor function_lip = rgb(0x17101D);
inline constexpr QColor operation = rgb(0xCBBFD6);
inline constexpr QColor operation_lip = rgb(0x7D708C);
inline constexpr QColor clear = rgb(0x7E2131);
inline constexpr QColor clear_lip = rgb(0x3E0C16);
inline constexpr QColor mode = rgb(0x241B2C);
inline constexpr QColor mode_lip = rgb(0x0E0913);
inline constexpr QColor close_hover = rgb(0xB32A24);
inline constexpr QColor bar_hover = rgb(0x3A3241);

inline constexpr QColor lamp_on = rgb(0xFF9A5C);
inline constexpr QColor lamp_off = rgb(0x17101D);
inline constexpr QColor chip_rim = rgb(0x140D19);
/// The two phases of the blinking memory sign; the first is the one at rest.
inline constexpr QColor memory_blue{0, 0, 192};
inline constexpr QColor memory_yellow{255, 255, 0};

/// `share` (0 to 1) of `other` mixed into `base`, each channel by itself, opaque.
inline QColor mix(const QColor& base, const QColor& other, double share) {
  const auto channel = [share](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * share));
  };
  return {channel(base.red(), other.red()), channel(base.green(), other.green()),
          channel(base.blue(), other.blue())};
}

}  // namespace tarnmill::desktop::palette
