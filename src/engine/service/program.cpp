#include "engine/service/program.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "engine/checked.h"
#include "engine/power.h"

namespace tarnmill {
namespace {

// Values that fit here need no memory of their own; ordinary expressions do.
constexpr std::size_t small_height = 32;

void require_finite(double value) {
  if (!std::isfinite(value)) throw Fault{FaultCode::InvalidArgument};
}

// The not-a-number value of an invalid operation has its sign set, whatever the processor does.
double with_indefinite_sign(double value) {
  return std::isnan(value) ? -std::numeric_limits<double>::quiet_NaN() : value;
}

double ieee_combined(char symbol, double left, double right) {
  switch (symbol) {
    case '+':
      return with_indefinite_sign(left + right);
    case '-':
      return with_indefinite_sign(left - right);
    case '*':
      return with_indefinite_sign(left * right);
    case '/':
      return with_indefinite_sign(left / right);
    default:
      throw Fault{FaultCode::InvalidArgument};
  }
}

double checked_combined(char symbol, double left, double right) {
  switch (symbol) {
    case '+':
      return add(left, right);
    case '-':
      return subtract(left, right);
    case '*':
      return multiply(left, right);
    case '/':
      return divide(left, right);
    default:
      return Power(left, right);
  }
}

}  // namespace

void Program::append_value(const Step& step) {
  steps_.push_back(step);
  greatest_height_ = std::max(greatest_height_, ++height_);
}

void Program::append_number(double number) { append_value({.kind = Step::Kind::number, .number = number}); }

void Program::append_variable() { append_value({.kind = Step::Kind::variable}); }

void Program::append_call(const Word& function) {
  steps_.push_back({.kind = Step::Kind::call, .function = &function});
}

void Program::append_negation() { steps_.push_back({.kind = Step::Kind::negation}); }

void Program::append_operator(char symbol) {
  steps_.push_back({.kind = Step::Kind::combination, .symbol = symbol});
  --height_;
}

double Program::combined(char symbol, double left, double right) const {
  const bool zero_divisor = symbol == '/' && right == 0;
  const bool ieee =
      dialect_ == Dialect::plain && (zero_divisor || !std::isfinite(left) || !std::isfinite(right));
  return ieee ? ieee_combined(symbol, left, right) : checked_combined(symbol, left, right);
}

double Program::run_on(std::span<double> values, double x, EvaluatorHost& host) const {
  std::size_t height = 0;
  for (const Step& step : steps_) {
    switch (step.kind) {
      case Step::Kind::number:
        values[height++] = step.number;
        break;
      case Step::Kind::variable:
        values[height++] = x;
        break;
      case Step::Kind::call:
        require_finite(values[height - 1]);
        values[height - 1] = step.function->call(values[height - 1], host);
        break;
      case Step::Kind::negation:
        values[height - 1] = with_indefinite_sign(-values[height - 1]);
        break;
      case Step::Kind::combination:
        --height;
        values[height - 1] = combined(step.symbol, values[height - 1], values[height]);
        break;
    }
  }
  return values[0];
}

double Program::run(double x, EvaluatorHost& host) const {
  if (greatest_height_ <= small_height) {
    std::array<double, small_height> values{};
    return run_on(values, x, host);
  }
  std::vector<double> values(greatest_height_);
  return run_on(values, x, host);
}

}  // namespace tarnmill
