#pragma once

#include <QString>

namespace tarnmill::desktop {

/// Dress of the standard widgets on dark ground. A field is a QLineEdit, or a label with the dynamic property
/// `field` set to "green". A `Display` keeps the ink of its palette.
QString instrument_style_sheet();

/// Dress of the standard widgets on bone. Fields are paper, or display green where the dynamic property
/// `field` is "green".
QString bench_style_sheet();

/// Dress of what belongs to no window: tooltips and menus.
QString application_style_sheet();

}  // namespace tarnmill::desktop
