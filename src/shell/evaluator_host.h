#pragma once

#include <memory>

#include "engine/evaluator_host.h"

namespace tarnmill {

class Workbench;

/// What the evaluators of the program need, met by its windows. They are reached by name, and one whose class
/// is not known reads as having empty fields.
[[nodiscard]] std::unique_ptr<EvaluatorHost> make_evaluator_host(Workbench& bench);

}  // namespace tarnmill
