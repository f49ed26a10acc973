#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace tarnmill {

/// One part of a status bar.
class StatusPanel final : public Node {
 public:
  explicit StatusPanel(Control& bar) : Node{"Panel"}, bar_{bar} {}

  [[nodiscard]] Window& window() override { return bar_.window(); }

  Property<tarnmill::Text> Text{*this, "Text"};

 private:
  Control& bar_;
};

/// A row of panels with texts, counted from 1, at the lower edge of a window.
class StatusBar final : public Control {
 public:
  StatusBar(Window& window, std::string_view name, int panels);

  [[nodiscard]] int size() const { return static_cast<int>(panels_.size()); }
  /// The panel, or null when there is none of this index.
  [[nodiscard]] StatusPanel* find(int index) const;
  /// The same; an index outside raises Invalid-argument.
  [[nodiscard]] StatusPanel& Panels(int index) const;

 private:
  std::vector<std::unique_ptr<StatusPanel>> panels_;
};

}  // namespace tarnmill
