#pragma once

#include <QAbstractButton>

#include "desktop/binder/binding.h"

namespace tarnmill::desktop {

/// A control that a person presses, on any button of the toolkit: command buttons, and pictures and labels
/// that the form shows as keys.
class FaceBinding : public Binding {
 public:
  FaceBinding(Control& control, QAbstractButton& button, WindowView& view);
  void start() override;

 protected:
  void show_property(std::string_view name) override;
  [[nodiscard]] bool takes_focus() const override { return takes_focus_; }
  [[nodiscard]] QAbstractButton& button() const { return button_; }

 private:
  [[nodiscard]] bool opens_a_menu() const override;

  QAbstractButton& button_;
  bool takes_focus_;
};

/// A check box or an option button, on a toggle of the toolkit or on a key that is marked as chosen.
class ToggleBinding final : public FaceBinding {
 public:
  using FaceBinding::FaceBinding;
  void start() override;

 protected:
  void show_property(std::string_view name) override;

 private:
  void show_value();
};

}  // namespace tarnmill::desktop
