#pragma once

#include <vector>

#include "forms/control.h"

namespace tarnmill {

/// A list to choose from: what combo boxes and list boxes share. Indices count from 0; -1 is no choice.
/// A new ListIndex takes the entry's text and raises Click. A text that is set chooses the first entry that
/// reads so, without a Click.
class ListControl : public Control {
 public:
  ListControl(Window& window, std::string_view name, Place place = Place::on_window);

  /// Appends an entry.
  void AddItem(tarnmill::Text item);
  /// Empties the list; the text of an editable one stays.
  void Clear();
  /// The entry at `index`; empty outside of the list.
  [[nodiscard]] tarnmill::Text List(int index) const;
  [[nodiscard]] const std::vector<tarnmill::Text>& items() const { return items_; }

  Property<tarnmill::Text> Text{*this, "Text"};
  Property<int> ListIndex{*this, "ListIndex", -1};
  /// How many entries there are; read-only.
  ComputedProperty ListCount{*this, "ListCount",
                             [this] { return Variant{static_cast<double>(items_.size())}; }};
  Event<> Change{*this, "Change"};

  /// A person's choice of entry `index`: a new ListIndex, and Click also for the one already chosen.
  void choose(int index);

 protected:
  void property_changed(const PropertyBase& property) override;

 private:
  void follow_text();

  std::vector<tarnmill::Text> items_;
};

/// A field with a list that drops down. The field starts with a text of its own, such as a prompt.
class ComboBox final : public ListControl {
 public:
  ComboBox(Window& window, std::string_view name, tarnmill::Text text = {}, Place place = Place::on_window)
      : ListControl{window, name, place} {
    Text.start_as(std::move(text));
  }
};

/// A list that always shows.
class ListBox final : public ListControl {
 public:
  using ListControl::ListControl;
};

}  // namespace tarnmill
