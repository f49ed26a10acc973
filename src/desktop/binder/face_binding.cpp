#include "desktop/binder/face_binding.h"

#include "desktop/binder/caption_follower.h"
#include "desktop/binder/pictures.h"
#include "desktop/qt_text.h"
#include "desktop/skin/key.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/option_button.h"

namespace tarnmill::desktop {

namespace {

constexpr int left_button = 1;

/// Pictures and labels that act as keys can't have the program's focus; their widgets can be reached by Tab
/// alone.
bool is_focusable(const Control& control) {
  return dynamic_cast<const Button*>(&control) != nullptr ||
         dynamic_cast<const CheckBox*>(&control) != nullptr ||
         dynamic_cast<const OptionButton*>(&control) != nullptr;
}

}  // namespace

FaceBinding::FaceBinding(Control& control, QAbstractButton& button, WindowView& view)
    : Binding{control, button, view}, button_{button}, takes_focus_{is_focusable(control)} {
  if (!takes_focus_) button.setFocusPolicy(Qt::TabFocus);
}

void FaceBinding::start() {
  Binding::start();
  connect(&button_, &QAbstractButton::clicked, this, [this] {
    enter([this] {
      if (opens_a_menu() && !released_by_mouse()) {
        // Its menu opens when the mouse goes down; the keyboard has to do the same.
        control()->MouseDown.raise(left_button, 0, 0, 0);
        if (control() != nullptr) control()->MouseUp.raise(left_button, 0, 0, 0);
      }
      if (control() != nullptr) control()->press();
    });
  });
}

bool FaceBinding::opens_a_menu() const {
  const auto* key = qobject_cast<const Key*>(&button_);
  return key != nullptr && key->has_chevron();
}

void FaceBinding::show_property(std::string_view name) {
  Binding::show_property(name);
  if (name == "Caption") {
    const Text caption = text_property(name);
    if (!is_starting() || !caption.empty()) show_caption(button_, to_qt(caption));
  } else if (name == "Picture") {
    if (auto* key = qobject_cast<Key*>(&button_)) show_picture(*key, to_qt(text_property(name)));
  }
}

void ToggleBinding::start() {
  FaceBinding::start();
  // The widget has toggled by itself before it told of the click; what counts is what the program made of it.
  connect(&button(), &QAbstractButton::clicked, this, [this] {
    if (control() != nullptr) change_widget([this] { show_value(); });
  });
}

void ToggleBinding::show_property(std::string_view name) {
  FaceBinding::show_property(name);
  if (name == "Value") show_value();
}

void ToggleBinding::show_value() {
  const bool on = number_property("Value") != 0;
  if (auto* key = qobject_cast<Key*>(&button())) key->setChosen(on);
  if (button().isCheckable()) button().setChecked(on);
}

}  // namespace tarnmill::desktop
