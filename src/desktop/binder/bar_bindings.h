#pragma once

#include "desktop/binder/plain_bindings.h"
#include "forms/status_bar.h"
#include "forms/toolbar.h"

class QAbstractButton;

namespace tarnmill::desktop {

/// A toolbar on a widget that holds its buttons: those with the key in their dynamic property `tool`. The
/// buttons are decoration by their names.
class ToolbarBinding final : public PlainBinding {
 public:
  ToolbarBinding(Toolbar& bar, QWidget& widget, WindowView& view)
      : PlainBinding{bar, widget, view}, bar_{bar} {}
  ~ToolbarBinding() override;
  void start() override;
  void release() override;

 protected:
  /// A press on a button is the button's own as well.
  [[nodiscard]] bool uses_mouse() const override { return true; }

 private:
  void bind(ToolButton& tool, QAbstractButton& button);
  void let_go();

  Toolbar& bar_;
};

/// A status bar on a widget that holds a label for each panel, with its index in the dynamic property
/// `panel`.
class StatusBarBinding final : public PlainBinding {
 public:
  StatusBarBinding(StatusBar& bar, QWidget& widget, WindowView& view)
      : PlainBinding{bar, widget, view}, bar_{bar} {}
  ~StatusBarBinding() override;
  void start() override;
  void release() override;

 private:
  void let_go();

  StatusBar& bar_;
};

}  // namespace tarnmill::desktop
