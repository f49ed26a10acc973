#pragma once

#include <span>

#include "engine/evaluator_host.h"
#include "engine/text.h"

namespace tarnmill {

/// A named function of expressions. Exactly one of the two forms is set: `pure` depends on the argument
/// alone, `hosted` needs the program around it and writes its result as soon as it is known, so that a fault
/// behind that point leaves it standing. Both raise the faults of checked arithmetic.
struct FunctionEntry {
  TextView name;
  double (*pure)(double x);
  void (*hosted)(double x, EvaluatorHost& host, double& result);

  /// Calls whichever form is set.
  void call(double x, EvaluatorHost& host, double& result) const;
};

/// All functions in the order in which names are compared.
std::span<const FunctionEntry> function_table();

/// The entry of this exact name, or null.
const FunctionEntry* find_function(TextView name);

}  // namespace tarnmill
