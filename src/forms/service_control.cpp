#include "forms/service_control.h"

#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

ServiceControl::ServiceControl(Window& window, std::string_view name)
    : Control{window, name, parked},
      evaluator_{window.bench().random()},
      formula_property_{*this, "formula", [this] { return Variant{evaluator_.formula()}; },
                        [this](const Variant& statement) { formula(statement.to_text(regional())); }},
      result_property_{*this, "Result", [this] { return Variant{Result()}; }} {
  evaluator_.SamplePoint = [this](double x, double y) { SamplePoint.raise(x, y); };
}

}  // namespace tarnmill
