#include "engine/service/service_evaluator.h"

#include "engine/checked.h"
#include "engine/rounding.h"
#include "engine/service/compiler.h"
#include "engine/service/derivative.h"
#include "engine/service/quadrature.h"
#include "engine/service/service_fault.h"
#include "engine/service/statement.h"

namespace tarnmill {
namespace {

constexpr std::int32_t average_parts = 200;

}  // namespace

void ServiceEvaluator::formula(TextView statement) {
  formula_ = statement;
  run(ReplaceAll(statement, u" ", u""));
}

void ServiceEvaluator::run(TextView statement) {
  const auto [kind, argument] = read_statement(statement);
  switch (kind) {
    case Statement::Kind::expression:
      result_ = compile(argument, Dialect::plain).run(0, host_);
      break;
    case Statement::Kind::push:
      result_ = constant(argument);
      stack_.push_back(result_);
      break;
    case Statement::Kind::integral:
      result_ = integral_of(argument);
      break;
    case Statement::Kind::average:
      result_ = average_of(argument);
      break;
    case Statement::Kind::derivative:
      result_ = derivative_of(argument);
      break;
    case Statement::Kind::empty_stack:
      stack_.clear();
      break;
  }
}

double ServiceEvaluator::constant(TextView expression) {
  return compile(expression, Dialect::constant).run(0, host_);
}

double ServiceEvaluator::integral_of(TextView function) {
  require_values(3);
  const double to = pop();
  const double from = pop();
  const double parts = pop();
  return sampled_integral(function, from, to, ToLong(parts));
}

double ServiceEvaluator::average_of(TextView function) {
  require_values(2);
  const double to = pop();
  const double from = pop();
  return divide(sampled_integral(function, from, to, average_parts), subtract(to, from));
}

double ServiceEvaluator::derivative_of(TextView function) {
  require_values(1);
  const double point = pop();
  return derivative(compiled(function), point);
}

double ServiceEvaluator::sampled_integral(TextView function, double from, double to, std::int32_t parts) {
  const RealFunction value_at = compiled(function);
  // A copy, so that a listener may take itself off while it is called.
  const auto listener = SamplePoint;
  if (!listener) return integral(value_at, from, to, parts);
  const auto told = [&](double x) {
    const double y = value_at(x);
    resume_step([&] { listener(x, y); });
    return y;
  };
  return integral(told, from, to, parts);
}

RealFunction ServiceEvaluator::compiled(TextView function) {
  return [this, program = compile(function, Dialect::function)](double x) { return program.run(x, host_); };
}

void ServiceEvaluator::require_values(std::size_t count) const {
  if (stack_.size() < count) raise_too_few_values();
}

double ServiceEvaluator::pop() {
  const double value = stack_.back();
  stack_.pop_back();
  return value;
}

}  // namespace tarnmill
