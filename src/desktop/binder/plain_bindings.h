#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>

#include "desktop/binder/binding.h"
#include "desktop/binder/control_look.h"

namespace tarnmill::desktop {

/// A control that shows something and takes the mouse for itself: what a label, a picture or a frame does.
class PlainBinding : public Binding {
 public:
  using Binding::Binding;

 protected:
  [[nodiscard]] bool takes_focus() const override { return false; }
  [[nodiscard]] bool uses_mouse() const override { return false; }
};

/// A label: caption, colours, and the font of one that the program gives a font.
class LabelBinding final : public PlainBinding {
 public:
  LabelBinding(Control& control, QLabel& label, WindowView& view);

 protected:
  void show_property(std::string_view name) override;

 private:
  QLabel& label_;
  ControlLook look_;
};

/// A titled group.
class FrameBinding final : public PlainBinding {
 public:
  FrameBinding(Control& control, QGroupBox& group, WindowView& view)
      : PlainBinding{control, group, view}, group_{group} {}

 protected:
  void show_property(std::string_view name) override;

 private:
  QGroupBox& group_;
};

/// A bar of progress, in thousandths of its range.
class ProgressBinding final : public PlainBinding {
 public:
  ProgressBinding(Control& control, QProgressBar& bar, WindowView& view);

 protected:
  void show_property(std::string_view name) override;

 private:
  QProgressBar& bar_;
};

}  // namespace tarnmill::desktop
