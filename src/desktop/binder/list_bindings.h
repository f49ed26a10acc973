#pragma once

#include <QComboBox>
#include <QListWidget>

#include "desktop/binder/binding.h"
#include "forms/list_control.h"

namespace tarnmill::desktop {

/// A list that drops down. While nothing is chosen it shows the control's own text as a prompt.
class ComboBinding final : public Binding {
 public:
  ComboBinding(ListControl& list, QComboBox& combo, WindowView& view);
  void start() override;

 protected:
  void show_property(std::string_view name) override;

 private:
  void show_items();
  void show_choice();

  ListControl& list_;
  QComboBox& combo_;
};

/// A list that always shows.
class ListBinding final : public Binding {
 public:
  ListBinding(ListControl& list, QListWidget& widget, WindowView& view);
  void start() override;

 protected:
  void show_property(std::string_view name) override;

 private:
  ListControl& list_;
  QListWidget& rows_;
};

}  // namespace tarnmill::desktop
