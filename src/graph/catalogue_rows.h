#pragma once

#include <array>

#include "graph/catalogue.h"

namespace tarnmill::detail {

/// \name How the rows of the catalogue are written
///@{

/// The fields of a curve without a power to follow.
inline constexpr ExponentTexts plain{};
/// Those of a curve that leaves them as nothing keyed at all would.
inline constexpr ExponentTexts untyped{u"", u"", u"", u""};
/// The same with the flag up.
inline constexpr ExponentTexts untyped_but_flagged{u"", u"", u"", u"OK"};

/// The fields of a curve with a power that was keyed as far as these texts go.
constexpr ExponentTexts typed(TextView y2, TextView y3, TextView numerator) { return {y2, y3, numerator}; }
/// The same where all three are one.
constexpr ExponentTexts typed(TextView text) { return {text, text, text}; }

/// A curve with a name of its own in the menu.
constexpr Curve named(std::string_view menu_item, TextView caption, std::string_view procedure, TextView zoom,
                      TextView y, TextView x, std::optional<ExponentTexts> exponent = plain) {
  return {menu_item, caption, procedure, zoom, y, x, exponent};
}

/// A function of K, whose name in the menu is its text.
constexpr Curve standard(std::string_view menu_item, std::string_view procedure, TextView zoom, TextView y,
                         const ExponentTexts& exponent = plain) {
  return named(menu_item, y, procedure, zoom, y, u"K", exponent);
}

/// The same curve, its menu item leaving the exponent's fields to the procedure.
constexpr Curve keeping_exponent(Curve curve) {
  curve.forgets_exponent = false;
  return curve;
}

///@}

/// \name The rows of each submenu
///@{
[[nodiscard]] std::span<const Curve> common_functions();
[[nodiscard]] std::span<const Curve> predefined_functions();
[[nodiscard]] std::span<const Curve> powers();
[[nodiscard]] std::span<const Curve> first_complex_functions();
[[nodiscard]] std::span<const Curve> second_complex_functions();
///@}

}  // namespace tarnmill::detail
