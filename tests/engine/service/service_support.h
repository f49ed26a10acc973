#pragma once

#include <cstdint>
#include <string>

#include "engine/fault_expectation.h"
#include "engine/number_text.h"
#include "engine/random.h"
#include "engine/service/service_evaluator.h"
#include "engine/service/service_fault.h"
#include "engine/text.h"

namespace tarnmill::testing {

/// An evaluator with the sequence it needs, and short ways to drive it.
class Service {
 public:
  /// Runs a statement and gives the Result behind it.
  double run(TextView statement) {
    evaluator.formula(statement);
    return evaluator.Result();
  }

  /// Pushes a number to the bit: by its sixteen digits and more, not by its text of fifteen.
  void push(double value) { run(from_utf8("Push((" + exact_text(value) + "))")); }

  double integral(TextView function, double from, double to, double parts = 200) {
    push(parts);
    push(from);
    push(to);
    return run(Text{u"Intg("}.append(function).append(u")"));
  }

  double average(TextView function, double from, double to) {
    push(from);
    push(to);
    return run(Text{u"Avg("}.append(function).append(u")"));
  }

  double derivative(TextView function, double point) {
    push(point);
    return run(Text{u"diff("}.append(function).append(u")"));
  }

  RandomSequence random;
  ServiceEvaluator evaluator{random};

 private:
  static std::string exact_text(double value) {
    std::string text(32, ' ');
    text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%.17g", value)));
    return text;
  }
};

/// The value of a statement on a fresh evaluator.
inline double value_of(TextView statement) { return Service{}.run(statement); }

/// The text of that value, "." as the separator.
inline std::string text_of(TextView statement) {
  return to_utf8(NumberToText(value_of(statement), Regional{}));
}

/// The number of the fault that the step raises, or 0.
template <typename Step>
std::int32_t number_of_fault(Step step) {
  return fault_number(step).value_or(0);
}

/// The number of the fault that a statement raises on a fresh evaluator, or 0.
inline std::int32_t fault_of(TextView statement) {
  return number_of_fault([statement] { value_of(statement); });
}

inline constexpr std::int32_t invalid_argument = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t division_by_zero = 11;

}  // namespace tarnmill::testing
