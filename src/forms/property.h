#pragma once

#include <functional>
#include <string_view>
#include <utility>

#include "engine/variant.h"
#include "forms/conversion.h"
#include "forms/node.h"

namespace tarnmill {

/// A named value of a Node as scripts and views see it.
class PropertyBase {
 public:
  PropertyBase(Node& owner, std::string_view name);
  virtual ~PropertyBase() = default;
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] Node& owner() const { return owner_; }

  /// The value, for a reader that knows no types.
  [[nodiscard]] virtual Variant read() const = 0;
  /// Sets the value from one of any type. Raises Type-mismatch or Overflow when it can't be converted.
  virtual void write(const Variant& value) = 0;

 protected:
  void notify() const { owner_.notify_changed(*this); }

 private:
  Node& owner_;
  std::string_view name_;
};

/// Whether setting a property to the value that it has does nothing, or all that a new value does.
enum class Repeat { ignored, counts };

/// A property that holds its value. Setting it to a new value raises the events that go with it before
/// the setter returns; setting it to the value it has raises nothing, unless repeats count.
template <class T>
class Property final : public PropertyBase {
 public:
  Property(Node& owner, std::string_view name, T initial = T{}, Repeat repeat = Repeat::ignored)
      : PropertyBase{owner, name}, value_{std::move(initial)}, repeat_{repeat} {}

  [[nodiscard]] const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT: reads like the value it holds
  const T* operator->() const { return &value_; }

  Property& operator=(T value) {
    set(std::move(value));
    return *this;
  }
  Property& operator=(const Property& other) {
    if (&other != this || repeat_ == Repeat::counts) set(other.value_);
    return *this;
  }

  void set(T value) {
    if (repeat_ == Repeat::ignored && value == value_) return;
    value_ = std::move(value);
    notify();
  }

  /// Sets the value as it stands at the start of a window, raising nothing.
  void start_as(T value) { value_ = std::move(value); }

  [[nodiscard]] Variant read() const override { return to_variant(value_); }
  void write(const Variant& value) override { set(from_variant<T>(value, owner().regional())); }

 private:
  T value_;
  Repeat repeat_;
};

/// A property whose value lies elsewhere: a getter and, unless it is read-only, a setter that itself
/// notifies where that is due. Writing a read-only one raises Invalid-argument.
class ComputedProperty final : public PropertyBase {
 public:
  using Getter = std::function<Variant()>;
  using Setter = std::function<void(const Variant&)>;
  ComputedProperty(Node& owner, std::string_view name, Getter getter, Setter setter = {})
      : PropertyBase{owner, name}, getter_{std::move(getter)}, setter_{std::move(setter)} {}

  [[nodiscard]] Variant read() const override { return getter_(); }
  void write(const Variant& value) override;
  /// Tells the observers that the value is another one now.
  void changed() const { notify(); }

 private:
  Getter getter_;
  Setter setter_;
};

}  // namespace tarnmill
