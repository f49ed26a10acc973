#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

class QKeyEvent;
class QMouseEvent;

namespace tarnmill {
class Control;
class Window;
}  // namespace tarnmill

namespace tarnmill::desktop {

class Binding;
class ViewStore;

/// A window's widget, with everything in it bound to the window's controls.
class WindowView : public QObject {
  Q_OBJECT

 public:
  static constexpr double twips_per_pixel = 15;

  /// Binds the widgets of `form` to the controls of `window`. A view that `shows` stands on the screen
  /// whenever the window is visible.
  WindowView(Window& window, ViewStore& store, std::unique_ptr<QWidget> form, bool shows);
  ~WindowView() override;

  [[nodiscard]] QWidget& widget() const { return *widget_; }
  /// Null after the release.
  [[nodiscard]] Window* window() const { return window_; }

  /// Lets go of the window, which goes.
  void release();
  /// Gives the keyboard to the widget of a control of this window.
  void give_focus(const Control& control);
  /// Lets the window move with the mouse until its button is up.
  void start_move();
  void set_on_top(bool on_top);
  /// Does what keys do in every window: F1 opens the help, and the menu key, or Shift+F10, the menu that the
  /// right button opens on the window. True when the key was one of these.
  bool answer_key(int code, int shift);
  /// Holds back the other windows until this one is hidden or gone.
  void run_modal();
  /// Runs what a person did as one entry into the program.
  void enter(const std::function<void()>& entry);
  /// A person has pressed somewhere in the window.
  void touched();

 signals:
  void left_screen();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void bind_controls();
  /// Widgets that the form says fill its width follow it.
  void fill_width();
  /// The keyboard goes to the widget that the form names, where the program gives it to none.
  void start_focus();
  void bind_face(QWidget& key);
  void take_size_of_form();
  void show_property(std::string_view name);
  void show_geometry();
  void show_visible();
  void show_state();
  void take_geometry();
  void take_state();
  bool window_event(QEvent& event);
  bool mouse_event(const QMouseEvent& event);
  bool key_event(const QKeyEvent& event);
  bool drag_event(const QEvent& event);

  Window* window_;
  ViewStore& store_;
  bool shows_;
  bool changing_widget_ = false;
  std::unique_ptr<QWidget> widget_;
  std::vector<Binding*> bindings_;
  /// Where the mouse holds the window, while a person drags it and the platform doesn't.
  std::optional<QPoint> drag_;
};

}  // namespace tarnmill::desktop
