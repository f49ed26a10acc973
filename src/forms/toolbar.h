#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace tarnmill {

class Toolbar;

/// How a button of a toolbar takes a person's click.
enum class ToolKind {
  /// It does something and springs back.
  plain,
  /// It stays down until it is clicked again.
  check,
  /// It stays down until another of its group, the buttons of this kind beside it, is clicked.
  group,
  /// No button, but a gap between two.
  separator
};

/// What a toolbar is told of one of its buttons.
struct ToolPlan {
  std::string_view key;
  ToolKind kind = ToolKind::plain;
  TextView tooltip = {};
};

/// A button of a toolbar. Its Value is 1 while it is down and 0 otherwise.
class ToolButton final : public Node {
 public:
  ToolButton(Toolbar& bar, const ToolPlan& plan);

  [[nodiscard]] Window& window() override;
  /// The key under which the toolbar knows it; separators have none.
  [[nodiscard]] std::string_view key() const { return name(); }
  [[nodiscard]] ToolKind kind() const { return kind_; }

  /// What a person's click does: the button takes the click into its Value, then raises Click.
  void press();

  Property<std::int16_t> Value{*this, "Value"};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<tarnmill::Text> ToolTipText{*this, "ToolTipText"};
  Event<> Click{*this, "Click"};

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  Toolbar& bar_;
  ToolKind kind_;
};

/// A row of buttons, each known by a key and by an index from 1.
class Toolbar final : public Control {
 public:
  Toolbar(Window& window, std::string_view name, const std::vector<ToolPlan>& plan);

  [[nodiscard]] int size() const { return static_cast<int>(buttons_.size()); }
  /// The button of an index or a key, or null.
  [[nodiscard]] ToolButton* find(int index) const;
  [[nodiscard]] ToolButton* find(std::string_view key) const;
  /// The same; one that isn't there raises Invalid-argument.
  [[nodiscard]] ToolButton& Buttons(int index) const;
  [[nodiscard]] ToolButton& Buttons(std::string_view key) const;

 private:
  friend class ToolButton;
  /// Lets up the other buttons of the group that `button` is in.
  void let_up_others(const ToolButton& button);

  std::vector<std::unique_ptr<ToolButton>> buttons_;
};

}  // namespace tarnmill
