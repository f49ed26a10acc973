#include "complex/operations.h"

#include <algorithm>
#include <array>

namespace tarnmill {

namespace {

constexpr const char16_t* logarithm_error = u"Logarithm Error";

bool first_is_zero(const ComplexOperands& z) { return z.a == 0 && z.b == 0; }
bool second_is_zero(const ComplexOperands& z) { return z.c == 0 && z.d == 0; }
bool second_is_one(const ComplexOperands& z) { return z.c == 1 && z.d == 0; }

/// The module's power knows no zero; its result stands for a complex exponent.
std::optional<Refusal> power(const ComplexOperands& z, double& re, double& im, const MessageSink& show) {
  ComplexPower(z.a, z.b, z.c, z.d, re, im, show);
  if (!first_is_zero(z) || z.d != 0) return std::nullopt;
  if (z.c < 0) return Refusal{u"You Cannot Raise <0,0> To A Negative Power", u"Power Error"};
  re = z.c == 0 ? 1 : 0;
  im = 0;
  return std::nullopt;
}

std::optional<Refusal> logarithm(const ComplexOperands& z, double& re, double& im,
                                 const MessageSink& /*show*/) {
  if (first_is_zero(z)) return Refusal{u"Log <0,0> Is Undefined", logarithm_error};
  ComplexLn(z.a, z.b, re, im);
  return std::nullopt;
}

std::optional<Refusal> logarithm_to_base(const ComplexOperands& z, double& re, double& im,
                                         const MessageSink& show) {
  if (first_is_zero(z)) return Refusal{u"Log <0,0> Is Undefined In Any Base", logarithm_error};
  if (second_is_zero(z)) return Refusal{u"Log (Base <0,0>) Is Undefined", logarithm_error};
  if (second_is_one(z)) return Refusal{u"Log (Base <1,0>) Is Undefined", logarithm_error};
  ComplexLog(z.a, z.b, z.c, z.d, re, im, show);
  return std::nullopt;
}

constexpr std::array<ComplexFunction, 12> functions{{
    {u"Addition", u"(a+i*b)+(c+i*d) = (a+c)+i*(b+d)", false, of_two<ComplexAdd>},
    {u"Subtraction", u"(a+i*b)-(c+i*d) = (a-c)+i*(b-d)", false, of_two<ComplexSubtract>},
    {u"Multiplication", u"(a+i*b)*(c+i*d) = a*c-b*d + i*(a*d+b*c)", false, of_two<ComplexMultiply>},
    {u"Division", u"(a+i*b)/(c+i*d) = [(a+i*b)*(c-i*d)]/(c^2+d^2)", false, guarded_division},
    {u"Magnitude of Complex 1", u"|a+i*b| = sqrt(a^2+b^2)", true, magnitude},
    {u"e ^ (Complex 1)", u"e ^ (a+i*b) = (e ^ a)[Cos(b)+i*Sin(b)]", true, of_one<ComplexExp>},
    {u"(Complex 1) ^ (Complex 2)", u"(a+i*b)^(c+i*d) = e ^ [(c+i*d)*log(a+i*b)]", false, power},
    {u"Log (Complex 1)", u"log(|a+i*b|) + i*arctan(b/a)", true, logarithm},
    {u"Log (Complex 1) [base (Complex 2)]",
     u"Log (Complex 1) [base (Complex 2)] = [Log (Complex 1)]/[Log (Complex 2)]", false, logarithm_to_base},
    {u"Sin (Complex 1)", u"Sin(a+i*b) = {e^[i*(a+i*b)]-e^[-i*(a+i*b)]}/(2*i)", true, of_one<ComplexSin>},
    // The words end in another divisor than the one that is computed with.
    {u"Cos (Complex 1)", u"Cos(a+i*b) = {e^[i*(a+i*b)]+e^[-i*(a+i*b)]}/i", true, of_one<ComplexCos>},
    {u"Tan (Complex 1)", u"Tan(a+i*b) = Sin(a+i*b)/Cos(a+i*b)", true, of_one<ComplexTan>},
}};

}  // namespace

std::span<const ComplexFunction> complex_functions() { return functions; }

const ComplexFunction* find_complex_function(TextView name) {
  const auto* found = std::find_if(functions.begin(), functions.end(),
                                   [name](const ComplexFunction& each) { return each.name == name; });
  return found == functions.end() ? nullptr : found;
}

std::optional<Refusal> guarded_division(const ComplexOperands& z, double& re, double& im,
                                        const MessageSink& show) {
  if (second_is_zero(z)) return Refusal{u"Divide by zero?", u"Undefined"};
  ComplexDivide(z.a, z.b, z.c, z.d, re, im, show);
  return std::nullopt;
}

std::optional<Refusal> power_by_key(const ComplexOperands& z, double& re, double& im,
                                    const MessageSink& show) {
  if (first_is_zero(z)) {
    re = 0;
    im = 0;
  } else {
    ComplexPower(z.a, z.b, z.c, z.d, re, im, show);
  }
  return std::nullopt;
}

std::optional<Refusal> logarithm_by_key(const ComplexOperands& z, double& re, double& im,
                                        const MessageSink& /*show*/) {
  if (first_is_zero(z)) return Refusal{u"Log of 0 + i0 is undefined.", logarithm_error};
  ComplexLn(z.a, z.b, re, im);
  return std::nullopt;
}

std::optional<Refusal> logarithm_to_base_by_key(const ComplexOperands& z, double& re, double& im,
                                                const MessageSink& show) {
  if (first_is_zero(z)) return Refusal{u"Log  of 0 + i0 is undefined.", logarithm_error};
  if (second_is_zero(z)) return Refusal{u"Base  0 + i0 . Undefined.", logarithm_error};
  if (second_is_one(z)) return Refusal{u"Base 1 + i0 . Undefined.", logarithm_error};
  ComplexLog(z.a, z.b, z.c, z.d, re, im, show);
  return std::nullopt;
}

std::optional<Refusal> magnitude(const ComplexOperands& z, double& re, double& im,
                                 const MessageSink& /*show*/) {
  ComplexAbs(z.a, z.b, re);
  im = 0;
  return std::nullopt;
}

}  // namespace tarnmill
