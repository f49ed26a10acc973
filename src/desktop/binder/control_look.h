#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <string_view>

#include "desktop/binder/told_font.h"
#include "forms/color.h"

class QWidget;

namespace tarnmill::desktop {

/// The colours and the font that a control gives its widget, over those of the skin.
class ControlLook {
 public:
  /// `font` is null for a control that has none of its own.
  ControlLook(QWidget& widget, const FontProperties* font);

  /// Shows `color` as the control's property `name`, ForeColor or BackColor.
  void show(std::string_view name, Color color);
  /// Shows the font when a property of it has been told; see ToldFont.
  void show_font(std::string_view property, bool starting);

 private:
  void apply();

  QWidget& widget_;
  /// What the form itself says of the widget.
  QString form_sheet_;
  std::optional<ToldFont> font_;
  std::optional<QColor> fore_;
  std::optional<QColor> back_;
};

}  // namespace tarnmill::desktop
