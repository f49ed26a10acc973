#pragma once

#include <concepts>
#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <utility>

#include "engine/text.h"

namespace tarnmill {

/// The faults that the program itself tells apart. A Fault may carry any other number as well.
enum class FaultCode : std::int32_t {
  InvalidArgument = 5,
  Overflow = 6,
  DivisionByZero = 11,
  TypeMismatch = 13,
  PrinterError = 482,
};

/// The one recoverable failure of the program: a number and a description in words.
class Fault : public std::exception {
 public:
  /// A fault with the description that belongs to its code.
  explicit Fault(FaultCode code) noexcept;

  /// A fault with a number and a description of its own.
  Fault(std::int32_t number, TextView description);

  /// The number of the fault.
  [[nodiscard]] std::int32_t number() const noexcept { return number_; }

  /// True when the fault is of this code.
  [[nodiscard]] bool is(FaultCode code) const noexcept { return number_ == static_cast<std::int32_t>(code); }

  /// The words of the runtime for this fault, such as "Division by zero". Valid as long as the fault lives.
  [[nodiscard]] TextView description() const noexcept { return description_; }

  /// The description in UTF-8.
  [[nodiscard]] const char* what() const noexcept override { return what_; }

 private:
  struct Words {
    Text description;
    std::string utf8;
  };

  std::int32_t number_;
  std::shared_ptr<const Words> own_words_;  // empty for the faults whose words are constants
  TextView description_;
  const char* what_;
};

/// Runs one step and passes over a Fault in it. Every other exception passes through.
template <std::invocable Step>
void resume_step(Step&& step) {
  try {
    std::forward<Step>(step)();
  } catch (const Fault&) {
    // The rest of the procedure goes on; what the step should have set keeps its value.
  }
}

/// Runs the steps in order. A Fault in one of them ends that step alone.
template <std::invocable... Steps>
void resume_next(Steps&&... steps) {
  (resume_step(std::forward<Steps>(steps)), ...);
}

}  // namespace tarnmill
