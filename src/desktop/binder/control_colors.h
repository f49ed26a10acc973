#pragma once

#include <QColor>
#include <optional>
#include <string_view>

#include "forms/color.h"

class QWidget;

namespace tarnmill::desktop {

/// The colours that a control gives its widget, over those of the skin.
class ControlColors {
 public:
  explicit ControlColors(QWidget& widget) : widget_{widget} {}

  /// Shows `color` as the control's property `name`, ForeColor or BackColor.
  void show(std::string_view name, Color color);

 private:
  QWidget& widget_;
  std::optional<QColor> fore_;
  std::optional<QColor> back_;
};

}  // namespace tarnmill::desktop
