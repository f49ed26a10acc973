#include "forms/evaluator_field.h"

#include "engine/fault.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

EvaluatorField::EvaluatorField(Window& window, std::string_view name)
    : FieldBase{window, name}, owner_{window} {}

Evaluator& EvaluatorField::get() {
  if (!evaluator_) evaluator_.emplace(owner_.workbench().evaluator_host());
  return *evaluator_;
}

void EvaluatorField::write(const Variant& /*value*/) { throw Fault{FaultCode::InvalidArgument}; }

}  // namespace tarnmill
