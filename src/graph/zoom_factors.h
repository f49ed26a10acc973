#pragma once

#include "engine/text.h"

namespace tarnmill {

/// \name The zooms of the menus, in pixels per unit, as `lblzm` holds them
///@{
inline constexpr TextView zoom_in = u"40";
inline constexpr TextView zoom_out = u"10";
inline constexpr TextView default_zoom = u"20";
///@}

/// Whether a text names one of them.
constexpr bool is_zoom_preset(TextView factor) {
  return factor == zoom_in || factor == zoom_out || factor == default_zoom;
}

}  // namespace tarnmill
