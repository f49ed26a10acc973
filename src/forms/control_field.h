#pragma once

#include <string_view>

#include "engine/fault.h"
#include "forms/control.h"
#include "forms/field.h"

namespace tarnmill {

/// A name of a window that stands for one of its controls. It has no value of its own that could be read or
/// written: readers take it for empty, and scripts reach the control itself.
class ControlField final : public FieldBase {
 public:
  ControlField(Window& window, std::string_view name, Control& control)
      : FieldBase{window, name}, control_{control} {}

  [[nodiscard]] Control& control() const { return control_; }

  [[nodiscard]] Variant read() const override { return {}; }
  /// Raises Invalid-argument.
  void write(const Variant& /*value*/) override { throw Fault{FaultCode::InvalidArgument}; }

 private:
  Control& control_;
};

}  // namespace tarnmill
