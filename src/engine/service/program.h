#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/evaluator_host.h"
#include "engine/service/word.h"

namespace tarnmill {

/// What an expression may hold and how it divides.
enum class Dialect : std::uint8_t {
  /// No variable; a zero divisor gives the IEEE quotient, which passes on through + - * and /.
  plain,
  /// No variable; a zero divisor is a fault.
  constant,
  /// The variable x; a zero divisor is a fault.
  function,
};

/// A compiled expression: steps on a stack of numbers, so that one text is read once for many values of x,
/// and nesting costs memory, never the machine's stack.
class Program {
 public:
  explicit Program(Dialect dialect) : dialect_{dialect} {}

  void append_number(double number);
  void append_variable();
  void append_call(const Word& function);
  void append_negation();

  /// One of + - * / ^ on the two values on top.
  void append_operator(char symbol);

  /// The value for x, which a program without a variable ignores. The faults of the arithmetic in it; in the
  /// plain dialect Invalid-argument for a function or a power of a value that is not finite.
  [[nodiscard]] double run(double x, EvaluatorHost& host) const;

 private:
  struct Step {
    enum class Kind : std::uint8_t { number, variable, call, negation, combination };
    Kind kind;
    char symbol = ' ';
    double number = 0;
    const Word* function = nullptr;
  };

  void append_value(const Step& step);
  double run_on(std::span<double> values, double x, EvaluatorHost& host) const;
  [[nodiscard]] double combined(char symbol, double left, double right) const;

  Dialect dialect_;
  std::vector<Step> steps_;
  std::size_t height_ = 0;
  std::size_t greatest_height_ = 0;
};

}  // namespace tarnmill
