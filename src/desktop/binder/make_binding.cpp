#include "desktop/binder/bar_bindings.h"
#include "desktop/binder/binding.h"
#include "desktop/binder/face_binding.h"
#include "desktop/binder/grid_binding.h"
#include "desktop/binder/list_bindings.h"
#include "desktop/binder/plain_bindings.h"
#include "desktop/binder/rich_text_binding.h"
#include "desktop/binder/surface_binding.h"
#include "desktop/binder/text_bindings.h"
#include "desktop/binder/up_down_binding.h"
#include "forms/check_box.h"
#include "forms/option_button.h"

namespace tarnmill::desktop {

namespace {

Binding* bind_text(TextBox& box, QWidget& widget, WindowView& view) {
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) return new LineBinding{box, *line, view};
  if (auto* edit = qobject_cast<QPlainTextEdit*>(&widget)) return new LinesBinding{box, *edit, view};
  return nullptr;
}

Binding* bind_list(ListControl& list, QWidget& widget, WindowView& view) {
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return new ComboBinding{list, *combo, view};
  if (auto* rows = qobject_cast<QListWidget*>(&widget)) return new ListBinding{list, *rows, view};
  return nullptr;
}

Binding* bind_button(Control& control, QAbstractButton& button, WindowView& view) {
  const bool toggles =
      dynamic_cast<CheckBox*>(&control) != nullptr || dynamic_cast<OptionButton*>(&control) != nullptr;
  if (toggles) return new ToggleBinding{control, button, view};
  return new FaceBinding{control, button, view};
}

/// By the kind of the widget alone.
Binding* bind_shown(Control& control, QWidget& widget, WindowView& view) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return bind_button(control, *button, view);
  if (auto* label = qobject_cast<QLabel*>(&widget)) return new LabelBinding{control, *label, view};
  if (auto* group = qobject_cast<QGroupBox*>(&widget)) return new FrameBinding{control, *group, view};
  if (auto* bar = qobject_cast<QProgressBar*>(&widget)) return new ProgressBinding{control, *bar, view};
  return new PlainBinding{control, widget, view};
}

}  // namespace

Binding* make_binding(Control& control, QWidget& widget, WindowView& view) {
  Binding* special = nullptr;
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    special = bind_text(*box, widget, view);
  } else if (auto* list = dynamic_cast<ListControl*>(&control)) {
    special = bind_list(*list, widget, view);
  } else if (auto* rich = dynamic_cast<RichTextBox*>(&control)) {
    if (auto* edit = qobject_cast<QTextEdit*>(&widget)) special = new RichTextBinding{*rich, *edit, view};
  } else if (auto* grid = dynamic_cast<FlexGrid*>(&control)) {
    if (auto* table = qobject_cast<QTableWidget*>(&widget)) special = new GridBinding{*grid, *table, view};
  } else if (auto* tools = dynamic_cast<Toolbar*>(&control)) {
    special = new ToolbarBinding{*tools, widget, view};
  } else if (auto* status = dynamic_cast<StatusBar*>(&control)) {
    special = new StatusBarBinding{*status, widget, view};
  } else if (auto* arrows = dynamic_cast<UpDown*>(&control)) {
    if (auto* stepper = qobject_cast<Stepper*>(&widget)) special = new UpDownBinding{*arrows, *stepper, view};
  } else if (auto* surface = dynamic_cast<PictureBox*>(&control)) {
    auto* shown = qobject_cast<SurfaceView*>(&widget);
    if (shown != nullptr) special = new SurfaceBinding{*surface, *shown, view};
  }
  return special != nullptr ? special : bind_shown(control, widget, view);
}

}  // namespace tarnmill::desktop
