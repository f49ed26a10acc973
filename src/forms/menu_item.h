#pragma once

#include <vector>

#include "forms/control.h"

namespace tarnmill {

/// An entry of a menu, which may hold a menu itself. A caption of "-" is a separator; an "&" in a caption
/// marks its access key. Menus live on the window that owns them, which need not be the one that pops
/// them up.
class MenuItem final : public Control {
 public:
  /// A top-level menu, shown as a popup.
  MenuItem(Window& window, std::string_view name, tarnmill::Text caption = {});
  /// An entry of `parent`.
  MenuItem(Window& window, MenuItem& parent, std::string_view name, tarnmill::Text caption = {});
  /// An element of a control array; `adopt` gives it its place in a menu.
  MenuItem(Window& window, std::string_view name, Place place);

  Property<tarnmill::Text> Caption{*this, "Caption"};
  Property<bool> Checked{*this, "Checked"};

  /// Appends an entry that was made without a parent.
  void adopt(MenuItem& child) { children_.push_back(&child); }
  [[nodiscard]] const std::vector<MenuItem*>& children() const { return children_; }
  [[nodiscard]] bool is_separator() const { return Caption.get() == u"-"; }

 private:
  std::vector<MenuItem*> children_;
};

}  // namespace tarnmill
