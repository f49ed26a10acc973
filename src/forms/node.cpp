#include "forms/node.h"

#include <algorithm>

#include "engine/fault.h"
#include "forms/desk.h"
#include "forms/event.h"
#include "forms/property.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

namespace {

template <class Entry>
Entry* find_named(const std::vector<Entry*>& entries, std::string_view name) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [name](const Entry* each) { return each->name() == name; });
  return found == entries.end() ? nullptr : *found;
}

}  // namespace

Workbench& Node::workbench() { return window().bench(); }

const Regional& Node::regional() { return workbench().desk().regional(); }

PropertyBase* Node::find_property(std::string_view name) const { return find_named(properties_, name); }

EventBase* Node::find_event(std::string_view name) const { return find_named(events_, name); }

void Node::observe(const void* key, Observer observer) { observers_.push_back({key, std::move(observer)}); }

void Node::stop_observing(const void* key) {
  std::erase_if(observers_, [key](const Observation& each) { return each.key == key; });
}

void Node::notify_changed(const PropertyBase& property) {
  // By index and by copy: an observer may add one, or remove itself, while it runs.
  for (std::size_t i = 0; i < observers_.size(); ++i) {  // NOLINT(modernize-loop-convert): it may grow
    const Observer observer = observers_[i].observer;
    observer(property);
  }
  property_changed(property);
}

void Node::property_changed(const PropertyBase& /*property*/) {}

PropertyBase::PropertyBase(Node& owner, std::string_view name) : owner_{owner}, name_{name} {
  owner.properties_.push_back(this);
}

void ComputedProperty::write(const Variant& value) {
  if (!setter_) throw Fault{FaultCode::InvalidArgument};
  setter_(value);
}

EventBase::EventBase(Node& owner, std::string_view name) : owner_{owner}, name_{name} {
  owner.events_.push_back(this);
}

}  // namespace tarnmill
