#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/text.h"
#include "forms/dialogs.h"
#include "forms/event.h"
#include "forms/node.h"
#include "forms/property.h"

namespace tarnmill {

class Control;
class ControlArrayBase;
class FieldBase;
class MenuItem;
class Procedure;

/// A window of the program, as a model that runs without any toolkit. Windows are singletons of their
/// workbench, made hidden when first touched. Lengths are twips, 15 to the pixel.
class Window : public Node {
 public:
  /// What stands under a name: a control, a control array, a procedure or a state field.
  using Member = std::variant<Control*, ControlArrayBase*, Procedure*, FieldBase*>;

  /// `name` is the class name under which others address the window.
  Window(Workbench& workbench, std::string_view name);
  ~Window() override;

  [[nodiscard]] Window& window() override { return *this; }
  [[nodiscard]] Workbench& bench() { return workbench_; }

  /// Shows it and makes it the active window, which raises Activate.
  void Show();
  /// Shows it and returns when a person has closed or hidden it.
  void ShowModal();
  void Hide();
  /// Asks QueryUnload, which may refuse, then raises Unload and takes the window from the workbench; the next
  /// touch makes a new one.
  void Unload();
  /// What the platform's close box does: unloads it. The program ends when the last visible window closes.
  void close();
  /// Pops up a menu, owned by this window or another, at x, y in twips of this window; returns when it
  /// has closed and the entry's Click has run. Without a place it opens at the mouse.
  void PopupMenu(MenuItem& menu);
  void PopupMenu(MenuItem& menu, double x, double y);

  /// A message box of the program; see Desk. The title is the program's own name unless told.
  MessageResult MsgBox(const Text& text, MessageIcon icon = MessageIcon::none,
                       const Text& title = u"Tarnmill", MessageButtons buttons = MessageButtons::ok,
                       int default_button = 1);

  /// The member of this name; a control hides a procedure of the same name. Null when there is none.
  [[nodiscard]] const Member* find(std::string_view name) const;
  /// The control or control-array element, or null.
  [[nodiscard]] Control* find_control(std::string_view name, int index = -1) const;
  /// The procedure of this name, also where a control has the name; or null.
  [[nodiscard]] Procedure* find_procedure(std::string_view name) const;
  /// All controls, elements of arrays included, in the order in which they were made.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  /// The sorted names of all controls, an array's once.
  [[nodiscard]] std::vector<std::string> control_names() const;
  /// The menu that a handler of this window popped up last, or null.
  [[nodiscard]] const MenuItem* popup_shown() const { return popup_shown_; }

  Property<tarnmill::Text> Caption{*this, "Caption"};
  /// Whether it is on the screen. Show and Hide set it.
  Property<bool> Visible{*this, "Visible"};
  /// 0 normal, 1 minimised, 2 maximised.
  Property<std::int16_t> WindowState{*this, "WindowState"};
  Property<double> Left{*this, "Left"};
  Property<double> Top{*this, "Top"};
  Property<double> Width{*this, "Width"};
  Property<double> Height{*this, "Height"};
  Property<tarnmill::Text> Tag{*this, "Tag"};

  Event<> Load{*this, "Load"};
  Event<> Activate{*this, "Activate"};
  Event<> Resize{*this, "Resize"};
  /// The handler sets the first argument to another value than 0 to keep the window open.
  Event<std::int16_t&> QueryUnload{*this, "QueryUnload"};
  Event<> Unloading{*this, "Unload"};
  Event<> Click{*this, "Click"};
  Event<> DblClick{*this, "DblClick"};
  Event<int&, int> KeyDown{*this, "KeyDown"};
  Event<int&, int> KeyUp{*this, "KeyUp"};
  Event<int, int, float, float> MouseDown{*this, "MouseDown"};
  Event<int, int, float, float> MouseMove{*this, "MouseMove"};
  Event<int, int, float, float> MouseUp{*this, "MouseUp"};

  void add(Control& control);
  void add(ControlArrayBase& array);
  void add(Procedure& procedure);
  void add(FieldBase& field);
  /// Forgets a control that goes.
  void remove(Control& control);

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  Workbench& workbench_;
  std::map<std::string_view, Member> members_;
  std::map<std::string_view, Procedure*> procedures_;
  std::vector<Control*> controls_;
  const MenuItem* popup_shown_ = nullptr;
  bool unloading_ = false;
};

}  // namespace tarnmill
