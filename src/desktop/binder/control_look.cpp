#include "desktop/binder/control_look.h"

#include <QWidget>

#include "desktop/qt_raster.h"

namespace tarnmill::desktop {

ControlLook::ControlLook(QWidget& widget, const FontProperties* font)
    : widget_{widget}, form_sheet_{widget.styleSheet()} {
  if (font != nullptr) font_.emplace(*font);
}

void ControlLook::show(std::string_view name, Color color) {
  (name == "ForeColor" ? fore_ : back_) = QColor{to_qt(resolve(color))};
  apply();
}

void ControlLook::show_font(std::string_view property, bool starting) {
  if (font_ && font_->take(property, starting)) apply();
}

/// The skin is a style sheet, and where a sheet speaks, neither palette nor font of the widget is heard: only
/// a sheet of the widget's own is. It names the widget, so that scroll bars and tool tips keep theirs.
void ControlLook::apply() {
  QString look = form_sheet_;
  if (fore_) look += QString{"color: %1;"}.arg(fore_->name());
  if (back_) look += QString{"background: %1;"}.arg(back_->name());
  if (font_) look += font_->declarations();
  widget_.setStyleSheet(QString{"#%1 { %2 }"}.arg(widget_.objectName(), look));
}

}  // namespace tarnmill::desktop
