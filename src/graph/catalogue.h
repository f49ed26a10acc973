#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "engine/text.h"

namespace tarnmill {

/// What following the exponent would have left, had a curve been keyed: the texts of `txtY2`, `txtY3` and
/// `txtImenilac`, and the flag of `lblY3`. The evaluator reads the fraction of a power from these very texts,
/// so their strays are part of the curve.
struct ExponentTexts {
  TextView y2;
  TextView y3 = u"1";
  TextView numerator = u"1";
  TextView flag = u"OK";
};

/// A ready-made curve: its menu item, the procedure that draws it, and what that puts in the fields.
struct Curve {
  std::string_view menu_item;
  TextView caption;
  std::string_view procedure;
  /// Pixels per unit, which sets the range of K as well. One that the menus don't have is set by the
  /// procedure.
  TextView zoom;
  TextView y;
  TextView x;
  /// Without a value the curve leaves those fields alone.
  std::optional<ExponentTexts> exponent;
  /// Whether its menu item empties those fields first.
  bool forgets_exponent = true;
};

/// A submenu of the catalogue.
struct CurveMenu {
  std::string_view name;
  TextView caption;
  std::span<const Curve> curves;
};

/// The 111 curves in their five submenus, in the order of the menus.
[[nodiscard]] std::span<const CurveMenu> curve_catalogue();

}  // namespace tarnmill
