#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/evaluator_host.h"
#include "engine/text.h"

namespace tarnmill {

/// Evaluates prepared text (upper case, no blanks, "," as decimal separator) by cutting it apart recursively.
/// Every operator stays at the front of the piece that follows it. Accepted without error:
///
///   sum      term, then any number of ("+" or "-") term
///   term     signed factor, then any number of ("*" or "/") factor
///   signed   optional one "+" or "-", then factor
///   factor   operand, or operand "^" operand, once only
///   operand  number, or "(" sum ")", or name "(" sum ")"
///   number   digits with at most one "," in or after them
///
/// There is no sign after an operator, no chained power, no implied multiplication.
class Parser {
 public:
  explicit Parser(EvaluatorHost& host) : host_{host} {}

  /// The value of the text; `error` is set to the code that is left, 0 for none. No fault leaves; an
  /// exception that is no Fault passes through.
  double evaluate(TextView text, std::int32_t& error);

 private:
  class Pieces;
  class Nesting;

  double EvaluateSum(TextView text);

  // Appends the pieces of the text to the list, cut in front of every a and b outside brackets.
  void SplitAtLevel(TextView text, char16_t a, char16_t b);

  // The position, from 1, of the first a or b outside brackets and behind the first character; 0 for none. A
  // bracket that closes nothing ends the search with error 8.
  std::size_t FindOperator(TextView text, char16_t a, char16_t b);

  // 0 with error 16 for every fault that was not caught below.
  double EvaluateTerm(TextView text);

  // The value of one or two operands, its sign included; op becomes "+", "*" or "/".
  double EvaluateFactor(TextView text, char16_t& op);

  // The readers cut what they have read off the front of `rest`.
  double ReadOperand(TextView& rest);
  double ReadNumber(TextView& rest);
  TextView ReadBracket(TextView& rest);
  TextView ReadFunctionCall(TextView& rest, TextView& argument);

  double CallFunction(TextView name, TextView argument);

  EvaluatorHost& host_;
  std::int32_t error_ = 0;
  int depth_ = 0;
  std::vector<TextView> pieces_;  // the pieces of all sums and terms under way, innermost last
};

}  // namespace tarnmill
