#include "desktop/binder/control_colors.h"

#include <QWidget>

#include "desktop/qt_raster.h"

namespace tarnmill::desktop {

void ControlColors::show(std::string_view name, Color color) {
  (name == "ForeColor" ? fore_ : back_) = QColor{to_qt(resolve(color))};
  // The skin is a style sheet, and where a sheet speaks, no palette is heard: only a sheet of the widget's
  // own is. It names the widget, so that scroll bars and tool tips keep theirs.
  QString colors;
  if (fore_) colors += QString{"color: %1;"}.arg(fore_->name());
  if (back_) colors += QString{"background: %1;"}.arg(back_->name());
  widget_.setStyleSheet(QString{"#%1 { %2 }"}.arg(widget_.objectName(), colors));
}

}  // namespace tarnmill::desktop
