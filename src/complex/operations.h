#pragma once

#include <optional>
#include <span>
#include <type_traits>

#include "complex/complex.h"

namespace tarnmill {

/// The two operands of the complex calculator: a + i b and c + i d.
struct ComplexOperands {
  double a;
  double b;
  double c;
  double d;
};

/// Why an operation has no result for its operands, in the words of a message box.
struct Refusal {
  const char16_t* text;
  const char16_t* title;
};

/// Computes into re and im. What comes back is a refusal; the outputs may have been written all the same.
using ComplexOperation = std::optional<Refusal> (*)(const ComplexOperands& z, double& re, double& im,
                                                    const MessageSink& show);

/// A function of the drop-down.
struct ComplexFunction {
  const char16_t* name;
  /// The rule as people are told it.
  const char16_t* rule;
  /// Whether it leaves the second operand out.
  bool of_one;
  ComplexOperation run;
};

/// The function of this name, or null.
[[nodiscard]] const ComplexFunction* find_complex_function(TextView name);
/// The functions in the order of the drop-down.
[[nodiscard]] std::span<const ComplexFunction> complex_functions();

/// \name Operations of the keys; where the drop-down has its own, that one refuses in other words
///@{
std::optional<Refusal> guarded_division(const ComplexOperands& z, double& re, double& im,
                                        const MessageSink& show);
/// Zero to any power is zero here, where the drop-down tells the powers of zero apart.
std::optional<Refusal> power_by_key(const ComplexOperands& z, double& re, double& im,
                                    const MessageSink& show);
std::optional<Refusal> logarithm_by_key(const ComplexOperands& z, double& re, double& im,
                                        const MessageSink& show);
std::optional<Refusal> logarithm_to_base_by_key(const ComplexOperands& z, double& re, double& im,
                                                const MessageSink& show);
/// The magnitude, with an imaginary part of 0.
std::optional<Refusal> magnitude(const ComplexOperands& z, double& re, double& im, const MessageSink& show);
///@}

/// One of the operations of the module on both operands, as an operation that refuses nothing.
template <auto Function>
std::optional<Refusal> of_two(const ComplexOperands& z, double& re, double& im, const MessageSink& show) {
  if constexpr (std::is_invocable_v<decltype(Function), double, double, double, double, double&, double&>) {
    Function(z.a, z.b, z.c, z.d, re, im);
  } else {
    Function(z.a, z.b, z.c, z.d, re, im, show);
  }
  return std::nullopt;
}

/// The same for those on the first operand alone.
template <auto Function>
std::optional<Refusal> of_one(const ComplexOperands& z, double& re, double& im, const MessageSink& show) {
  if constexpr (std::is_invocable_v<decltype(Function), double, double, double&, double&>) {
    Function(z.a, z.b, re, im);
  } else {
    Function(z.a, z.b, re, im, show);
  }
  return std::nullopt;
}

}  // namespace tarnmill
