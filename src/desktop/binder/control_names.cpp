#include "desktop/binder/control_names.h"

#include "desktop/qt_text.h"
#include "forms/control.h"
#include "forms/window.h"

namespace tarnmill::desktop {

Control* control_named(const Window& window, const QString& object_name) {
  if (Control* alone = window.find_control(object_name.toStdString())) return alone;
  const qsizetype underscore = object_name.lastIndexOf('_');
  bool number = false;
  const int index = object_name.mid(underscore + 1).toInt(&number);
  if (underscore < 0 || !number) return nullptr;
  return window.find_control(object_name.left(underscore).toStdString(), index);
}

QString widget_name(const Control& control) {
  const QString name = to_qt(control.name());
  return control.index() < 0 ? name : name + '_' + QString::number(control.index());
}

bool names_a_control(const QString& object_name) {
  return !object_name.isEmpty() && !object_name.startsWith("deco_") && !object_name.startsWith("qt_");
}

}  // namespace tarnmill::desktop
