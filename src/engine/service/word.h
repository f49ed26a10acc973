#pragma once

#include <cstddef>

#include "engine/evaluator_host.h"
#include "engine/function_table.h"
#include "engine/service/fractional_power.h"
#include "engine/text.h"

namespace tarnmill {

/// A word of the notation that statements are written in.
struct Word {
  enum class Kind { variable, constant, function };

  TextView name;
  Kind kind = Kind::variable;
  double value = 0;                        ///< of a constant
  const FunctionEntry* entry = nullptr;    ///< of a function that the other evaluator shares
  const FractionalPower* power = nullptr;  ///< of a fractional power

  /// The value of a function word; the faults of its arithmetic.
  [[nodiscard]] double call(double x, EvaluatorHost& host) const;
};

/// The longest word that stands at the front of the text, in any case of its letters, or null. So "xsin(x)"
/// is "x" and then "sin", while "exp(1)" is not "e" and a rest.
const Word* longest_word(TextView text);

}  // namespace tarnmill
