#pragma once

#include <QObject>
#include <functional>
#include <string_view>

#include "engine/text.h"
#include "forms/color.h"

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace tarnmill {
class Control;
}

namespace tarnmill::desktop {

class WindowView;

/// Ties a control to its widget: what the program sets shows, and what a person does with mouse and keyboard
/// is raised as the control's events. Derived classes know the kind of widget.
class Binding : public QObject {
  Q_OBJECT

 public:
  Binding(Control& control, QWidget& widget, WindowView& view);
  ~Binding() override;

  /// Shows the properties as they stand and follows them from now on.
  virtual void start();
  /// Lets go of the control, which goes; the widget may stay for a while, without a life.
  virtual void release();

  [[nodiscard]] QWidget& widget() const { return widget_; }
  /// Null after the release.
  [[nodiscard]] Control* control() const { return control_; }

 protected:
  /// Shows the property of this name. At the start an empty caption, a colour of 0 or a size of 0 is one that
  /// the program has not set: the form's own stays.
  virtual void show_property(std::string_view name);
  [[nodiscard]] bool is_starting() const { return starting_; }
  /// Runs what a person did as an entry into the program; not while the program itself changes the widget.
  void enter(const std::function<void()>& entry);
  /// Changes the widget without taking its signals for a person's doing.
  void change_widget(const std::function<void()>& change);
  [[nodiscard]] bool is_changing_widget() const { return changing_widget_; }

  /// Whether the control can have the program's focus.
  [[nodiscard]] virtual bool takes_focus() const { return true; }
  /// Whether a press of the mouse on the widget is the widget's own as well: that of buttons, fields and
  /// lists.
  [[nodiscard]] virtual bool uses_mouse() const { return true; }
  /// Whether the press of the mouse opens a menu.
  [[nodiscard]] virtual bool opens_a_menu() const { return false; }
  /// Twips for a pixel in what the mouse tells.
  [[nodiscard]] virtual float mouse_scale() const { return 15; }
  /// The widget that the mouse's events come to.
  void watch(QWidget& part);

  /// Whether the click that arrives came from the mouse rather than from a key.
  [[nodiscard]] bool released_by_mouse() const { return released_by_mouse_; }

  [[nodiscard]] Text text_property(std::string_view name) const;
  [[nodiscard]] double number_property(std::string_view name) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool mouse_event(QMouseEvent& event);
  void raise_mouse(const QMouseEvent& event);
  bool key_event(QKeyEvent& event);
  void show_geometry(std::string_view name);

  Control* control_;
  QWidget& widget_;
  WindowView& view_;
  bool starting_ = false;
  bool changing_widget_ = false;
  bool replacing_key_ = false;
  bool pressed_ = false;
  bool released_by_mouse_ = false;
};

/// The binding that fits the kinds of a control and its widget.
[[nodiscard]] Binding* make_binding(Control& control, QWidget& widget, WindowView& view);

}  // namespace tarnmill::desktop
