#include "forms/field.h"

#include "forms/window.h"

namespace tarnmill {

FieldBase::FieldBase(Window& window, std::string_view name) : window_{window}, name_{name} {
  window.add(*this);
}

const Regional& FieldBase::regional() const { return window_.regional(); }

}  // namespace tarnmill
