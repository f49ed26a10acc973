#pragma once

#include <functional>
#include <vector>

#include "engine/random.h"
#include "engine/service/function_host.h"
#include "engine/service/program.h"
#include "engine/service/real_function.h"
#include "engine/text.h"

namespace tarnmill {

/// The second evaluator of the program: expressions with a variable, integrals, mean values and derivatives,
/// by statements that are texts. A private stack of numbers carries their operands. Its faults reach whoever
/// assigned the statement; it shows nothing itself. Instances share nothing but the random numbers.
class ServiceEvaluator {
 public:
  /// The sequence must outlive the evaluator.
  explicit ServiceEvaluator(RandomSequence& random) : host_{random} {}

  /// Runs a statement at once. Blanks are skipped, and letters count in either case.
  ///
  ///   Push(e)    pushes the value of an expression without x
  ///   Intg(f)    takes n, a and b (b on top) and gives the integral of f over x from a to b, in n parts
  ///   Avg(f)     takes a and b and gives the integral, in 200 parts, divided by b - a
  ///   diff(f)    takes the point and gives the derivative of f there; a value below it is left alone
  ///   PopAll()   empties the stack and leaves Result as it is
  ///   any other text is an expression without x
  ///
  /// In that last form a zero divisor gives the IEEE quotient, which goes on through + - * and /; anywhere
  /// else it is a Division-by-zero, and 0/0 an Overflow. Raises the faults of arithmetic under their own
  /// numbers, and statement_fault_number for a text that is no statement and for values missing on the stack.
  /// The values that a statement takes are off the stack whether it fails or not, unless some were missing.
  void formula(TextView statement);

  /// The statement last assigned, as it was given; empty at first.
  [[nodiscard]] const Text& formula() const { return formula_; }

  /// The value of the last statement that gave one.
  [[nodiscard]] double Result() const { return result_; }

  /// Raised for every point at which Intg and Avg sample the function, with the point and the value there,
  /// while the statement runs. A fault raised in it ends there. It must not assign a statement to this
  /// evaluator.
  std::function<void(double x, double y)> SamplePoint;

 private:
  void run(TextView statement);
  double constant(TextView expression);
  double integral_of(TextView function);
  double average_of(TextView function);
  double derivative_of(TextView function);
  double sampled_integral(TextView function, double from, double to, std::int32_t parts);
  RealFunction compiled(TextView function);
  void require_values(std::size_t count) const;
  double pop();

  FunctionHost host_;
  Text formula_;
  double result_ = 0;
  std::vector<double> stack_;
};

}  // namespace tarnmill
