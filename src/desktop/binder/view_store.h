#pragma once

#include <QPointer>
#include <map>
#include <vector>

#include "desktop/binder/forms.h"
#include "desktop/binder/window_view.h"
#include "desktop/pulse.h"

namespace tarnmill::desktop {

/// The views of the windows of a desk: built when their window first shows, or when asked for.
class ViewStore {
 public:
  /// Gives the widgets of the window of a name.
  using Forms = std::function<std::unique_ptr<QWidget>(std::string_view)>;

  /// A store that `shows` puts the views on the screen.
  ViewStore(Pulse& pulse, bool shows, Forms form = build_form);
  ~ViewStore();
  ViewStore(const ViewStore&) = delete;
  ViewStore& operator=(const ViewStore&) = delete;

  void follow(Window& window);
  void forget(Window& window);
  /// The widget of a window, built when there is none yet.
  [[nodiscard]] QWidget& view(Window& window);
  /// The widget of a window that has one, else null.
  [[nodiscard]] QWidget* find(Window& window) const;

  void bring_forward(Window& window);
  void give_focus(Control* control);
  void run_modal(Window& window);
  void start_move(Window& window);
  void set_on_top(Window& window, bool on_top);

  /// The platform has made the window of `view` the active one.
  void activated(WindowView& view);
  /// A person has pressed in the window of `view`, which so is the active one whatever the platform said.
  void touched(WindowView& view);
  [[nodiscard]] Pulse& pulse() { return pulse_; }

 private:
  WindowView& make(Window& window);
  [[nodiscard]] WindowView& view_of(Window& window);
  [[nodiscard]] WindowView* find_view(Window& window) const;

  Pulse& pulse_;
  bool shows_;
  Forms form_;
  std::map<Window*, WindowView*> views_;
  /// Views let go while one of their own handlers may run.
  std::vector<QPointer<WindowView>> discarded_;
  /// The view that the program brought forward and the platform hasn't made active yet. Until it does, what
  /// it says about others is out of date.
  QPointer<WindowView> awaited_;
};

}  // namespace tarnmill::desktop
