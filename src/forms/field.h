#pragma once

#include <string_view>
#include <utility>

#include "engine/variant.h"
#include "forms/conversion.h"

namespace tarnmill {

class Window;

/// A state field of a window, reached by name.
class FieldBase {
 public:
  FieldBase(Window& window, std::string_view name);
  virtual ~FieldBase() = default;
  FieldBase(const FieldBase&) = delete;
  FieldBase& operator=(const FieldBase&) = delete;

  [[nodiscard]] std::string_view name() const { return name_; }
  [[nodiscard]] virtual Variant read() const = 0;
  /// Sets it from a value of any type; raises Type-mismatch or Overflow when that can't be converted.
  virtual void write(const Variant& value) = 0;

 protected:
  [[nodiscard]] const Regional& regional() const;

 private:
  Window& window_;
  std::string_view name_;
};

/// A state field of fixed or dynamic (`Variant`) type, used like the value it holds.
template <class T>
class Field final : public FieldBase {
 public:
  Field(Window& window, std::string_view name, T initial = T{})
      : FieldBase{window, name}, value_{std::move(initial)} {}

  [[nodiscard]] const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT: reads like the value it holds
  const T* operator->() const { return &value_; }
  Field& operator=(T value) {
    value_ = std::move(value);
    return *this;
  }
  Field& operator=(const Field& other) {
    value_ = other.value_;
    return *this;
  }

  [[nodiscard]] Variant read() const override { return to_variant(value_); }
  void write(const Variant& value) override { value_ = from_variant<T>(value, regional()); }

 private:
  T value_;
};

}  // namespace tarnmill
