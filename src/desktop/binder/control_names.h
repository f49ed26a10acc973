#pragma once

#include <QString>

namespace tarnmill {
class Control;
class Window;
}  // namespace tarnmill

namespace tarnmill::desktop {

/// The control that a widget of this object name stands for: `Name`, or `Name_index` in a control array. Null
/// when the window has none.
[[nodiscard]] Control* control_named(const Window& window, const QString& object_name);

/// The object name of a control's widget.
[[nodiscard]] QString widget_name(const Control& control);

/// Whether a widget of this name stands for a control, and is neither decoration nor a part of another
/// widget.
[[nodiscard]] bool names_a_control(const QString& object_name);

}  // namespace tarnmill::desktop
