#pragma once

#include <cstdint>

#include "engine/evaluator_host.h"
#include "engine/parser.h"
#include "engine/text.h"

namespace tarnmill {

/// Turns expression text into one number and tells failures in fixed words. Knows no variables: whoever calls
/// puts a bracketed number in place of X or K first. Each window owns its own.
///
/// Error codes: 0 none, 1 a second decimal separator, 2 syntax, 4 symbols, 8 brackets, 16 a fault in
/// arithmetic. Codes replace one another, so the one that is left is that of the last assignment.
class Evaluator {
 public:
  /// The value that stands for "undefined", whether a function gives it or a sum happens to.
  static constexpr double undefined_marker = 100;

  /// The host must outlive the evaluator.
  explicit Evaluator(EvaluatorHost& host);

  /// Prepares and stores the text: no blanks (a tab stays), upper case, "," for ".". Raises nothing; a text
  /// of more than 32767 characters fails when it is evaluated.
  void Expression(TextView text);

  /// The prepared text.
  [[nodiscard]] const Text& Expression() const { return expression_; }

  /// Evaluates the stored text anew on every read and stores value, error code and Assigned. Raises no fault.
  double Result();

  /// The error code of the last evaluation.
  [[nodiscard]] std::int32_t error() const { return error_; }

  /// True when the last read of Result ended without error.
  [[nodiscard]] bool Assigned() const { return assigned_; }

  /// Stores the text, evaluates it and returns the value. Unless Silent, a failure and the undefined marker
  /// show a message, and any other value goes to a visible keypad.
  double Evaluate(TextView text, bool Silent);

  /// Replaces the first occurrence of `find` until there is none, searching from the start each time. The
  /// empty text when `find` is empty or equals `replacement`. Overflow when an occurrence stands beyond
  /// position 32767, and at once when the replacement itself holds `find`, since the text would grow until
  /// then.
  static Text ReplaceText(TextView text, TextView find, TextView replacement);

  /// True when the last character is an odd digit. Type-mismatch when it is no digit or the text is empty.
  [[nodiscard]] bool IsItOdd(TextView text) const;

  /// `length` bytes from byte `start` (from 1) of the text in the Western single-byte code page, as text.
  /// Characters outside the code page become "?". Invalid-argument for a start below 1 or a negative length.
  static Text MidMbcs(TextView text, std::int32_t start, std::int32_t length);

  /// n factorial. Overflow above 170 and for a negative n, whose recursion would never reach 0.
  static double factorial2(std::int16_t n);

 private:
  static Text RemoveSpaces(TextView text);
  void report(double value);

  EvaluatorHost& host_;
  Parser parser_;
  Text expression_;
  double result_ = 0;
  std::int32_t error_ = 0;
  bool assigned_ = false;
};

}  // namespace tarnmill
