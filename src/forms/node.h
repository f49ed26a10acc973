#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace tarnmill {

class EventBase;
class PropertyBase;
class Window;
class Workbench;
struct Regional;

/// Something with a name, properties and events: a window or one of its controls.
///
/// Properties and events are members of the class that derives from Node and enter themselves here when
/// they are constructed, so that a name is written once and views, scripts and tests find all of them.
class Node {
 public:
  explicit Node(std::string_view name) : name_{name} {}
  virtual ~Node() = default;
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  /// The name under which the owner knows it; elements of a control array share the array's.
  [[nodiscard]] std::string_view name() const { return name_; }

  /// The window it belongs to: itself for a window.
  [[nodiscard]] virtual Window& window() = 0;
  /// The workbench of that window.
  [[nodiscard]] Workbench& workbench();
  /// The regional setting by which its texts and numbers convert.
  [[nodiscard]] const Regional& regional();

  /// The property of this name, or null.
  [[nodiscard]] PropertyBase* find_property(std::string_view name) const;
  /// The event of this name, or null.
  [[nodiscard]] EventBase* find_event(std::string_view name) const;
  [[nodiscard]] const std::vector<PropertyBase*>& properties() const { return properties_; }

  using Observer = std::function<void(const PropertyBase&)>;
  /// Calls `observer` after each change of one of the properties, before the program's own handler, until
  /// `stop_observing` is called with the same key. A view observes; it reads the current values.
  void observe(const void* key, Observer observer);
  void stop_observing(const void* key);

  /// Raised by a property that took a new value: tells the observers, then raises the event that the
  /// platform raises for it. Called by properties only.
  void notify_changed(const PropertyBase& property);

 protected:
  /// Raises the event that belongs to a change of `property`; the base raises nothing.
  virtual void property_changed(const PropertyBase& property);

 private:
  friend class PropertyBase;
  friend class EventBase;

  struct Observation {
    const void* key;
    Observer observer;
  };

  std::string_view name_;
  std::vector<PropertyBase*> properties_;
  std::vector<EventBase*> events_;
  std::vector<Observation> observers_;
};

}  // namespace tarnmill
