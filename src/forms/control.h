#pragma once

#include <string_view>

#include "engine/text.h"
#include "forms/event.h"
#include "forms/node.h"
#include "forms/property.h"

namespace tarnmill {

/// Whether a control stands on its window or only holds state and has no place on the screen: parked beyond
/// the edge of its window, or hidden, which its `Visible` tells.
enum class Place { on_window, parked, hidden };
/// Shorthands for declarations of state holders: `TextBox txtYs{*this, "txtYs", parked};`
inline constexpr Place parked = Place::parked;
inline constexpr Place hidden = Place::hidden;

/// What a control has in common with all others. Lengths are twips, 15 to the pixel.
class Control : public Node {
 public:
  Control(Window& window, std::string_view name, Place place = Place::on_window);
  ~Control() override;

  [[nodiscard]] Window& window() override { return window_; }
  [[nodiscard]] bool only_holds_state() const { return place_ != Place::on_window; }

  /// The index in its control array, or -1 outside of one.
  [[nodiscard]] int index() const { return index_; }

  /// Gives it the focus of the program: raises LostFocus of the control that had it, then GotFocus.
  void SetFocus();
  /// What a person's click does: the control takes the click into its value, if it has one that a click
  /// changes, and raises Click once.
  virtual void press() { Click.raise(); }
  /// The name that a person with a screen reader hears: the tooltip, else the caption, without the blanks
  /// around it.
  [[nodiscard]] tarnmill::Text accessible_name() const;

  Property<double> Left{*this, "Left"};
  Property<double> Top{*this, "Top"};
  Property<double> Width{*this, "Width"};
  Property<double> Height{*this, "Height"};
  Property<bool> Visible{*this, "Visible", true};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<tarnmill::Text> Tag{*this, "Tag"};
  Property<tarnmill::Text> ToolTipText{*this, "ToolTipText"};

  Event<> Click{*this, "Click"};
  Event<> DblClick{*this, "DblClick"};
  /// Key code and shift state (1 shift, 2 control, 4 alt); the handler may change the code.
  Event<int&, int> KeyDown{*this, "KeyDown"};
  Event<int&, int> KeyUp{*this, "KeyUp"};
  /// Button (1 left, 2 right), shift state, x and y in twips of the control, on a surface in its pixels.
  Event<int, int, float, float> MouseDown{*this, "MouseDown"};
  Event<int, int, float, float> MouseMove{*this, "MouseMove"};
  Event<int, int, float, float> MouseUp{*this, "MouseUp"};
  Event<> GotFocus{*this, "GotFocus"};
  Event<> LostFocus{*this, "LostFocus"};

 private:
  template <class C>
  friend class ControlArray;

  Window& window_;
  Place place_;
  int index_ = -1;
};

}  // namespace tarnmill
