#pragma once

#include "engine/text.h"

namespace tarnmill {

/// What a statement asks for.
struct Statement {
  enum class Kind { expression, push, integral, average, derivative, empty_stack };

  Kind kind = Kind::expression;
  /// The text between the brackets of a named statement, or the whole expression. A view of the text given.
  TextView argument;
};

/// Recognises, in a text without blanks, "Push(...)", "Intg(...)", "Avg(...)", "diff(...)" and "PopAll()" in
/// any case of their letters; every other text is an expression. Raises statement_fault_number when the
/// closing bracket of a named statement is missing and when PopAll is given an argument.
Statement read_statement(TextView text);

}  // namespace tarnmill
