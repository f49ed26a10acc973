#pragma once

#include <string_view>

#include "engine/service/service_evaluator.h"
#include "forms/control.h"

namespace tarnmill {

/// A service evaluator as the part of a window that it is: assigning its formula runs the statement. It holds
/// only state and is parked.
class ServiceControl final : public Control {
 public:
  ServiceControl(Window& window, std::string_view name);

  /// Runs a statement at once; see ServiceEvaluator::formula, whose faults pass through.
  void formula(TextView statement) { evaluator_.formula(statement); }

  /// The value of the last statement that gave one.
  [[nodiscard]] double Result() const { return evaluator_.Result(); }

  /// Raised for every point at which an integral or an average samples the function, with the point and the
  /// value there. A fault raised in the handler ends there.
  Event<double, double> SamplePoint{*this, "SamplePoint"};

 private:
  ServiceEvaluator evaluator_;

  // What others see of it by name.
  ComputedProperty formula_property_;
  ComputedProperty result_property_;
};

}  // namespace tarnmill
