#include "desktop/binder/plain_bindings.h"

#include <algorithm>
#include <cmath>

#include "desktop/qt_text.h"
#include "forms/control.h"

namespace tarnmill::desktop {

LabelBinding::LabelBinding(Control& control, QLabel& label, WindowView& view)
    : PlainBinding{control, label, view},
      label_{label},
      look_{label, dynamic_cast<const FontProperties*>(&control)} {
  label.setTextFormat(Qt::PlainText);
}

void LabelBinding::show_property(std::string_view name) {
  PlainBinding::show_property(name);
  if (name == "Caption") {
    const Text caption = text_property(name);
    if (!is_starting() || !caption.empty()) label_.setText(lines_to_qt(caption));
  } else if (name == "ForeColor" || name == "BackColor") {
    const auto color = static_cast<Color>(number_property(name));
    if (!is_starting() || color != 0) look_.show(name, color);
  } else {
    look_.show_font(name, is_starting());
  }
}

void FrameBinding::show_property(std::string_view name) {
  PlainBinding::show_property(name);
  if (name == "Caption" && !(is_starting() && text_property(name).empty())) {
    group_.setTitle(to_qt(text_property(name)));
  }
}

namespace {

constexpr int thousandths = 1000;

}  // namespace

ProgressBinding::ProgressBinding(Control& control, QProgressBar& bar, WindowView& view)
    : PlainBinding{control, bar, view}, bar_{bar} {
  bar.setRange(0, thousandths);
}

void ProgressBinding::show_property(std::string_view name) {
  PlainBinding::show_property(name);
  if (name != "Min" && name != "Max" && name != "Value") return;
  const double least = number_property("Min");
  const double range = number_property("Max") - least;
  const double share = range > 0 ? (number_property("Value") - least) / range : 0;
  bar_.setValue(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * thousandths)));
}

}  // namespace tarnmill::desktop
