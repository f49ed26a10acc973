#pragma once

namespace tarnmill {

class Evaluator;
class TextBox;

/// Puts the value of the expression in a field of a range in its place. Pi counts there as 3.1416, and every
/// "e" of the text as the constant, an exponent's included. A text that can't be evaluated gives the
/// evaluator's message and leaves what it returned.
void evaluate_limit(TextBox& field, Evaluator& evaluator);

}  // namespace tarnmill
