#include "engine/power.h"

#include <cmath>

#include "engine/checked.h"
#include "engine/evaluator_host.h"
#include "engine/parity.h"

namespace tarnmill {
namespace {

constexpr std::int32_t symbols_error = 4;

bool ends_in_digit(TextView text) { return !text.empty() && IsDigitValue(text.back()); }

// Whether the fraction of a hint counts. The keypad's must have been taken over as well.
bool is_active(const ExponentHint& hint) {
  return hint.txtImenilac != hint.txtY3 && hint.lblY3 == u"OK" && ends_in_digit(hint.txtY3) &&
         ends_in_digit(hint.txtImenilac);
}

bool is_active_on_keypad(const ExponentHint& hint) { return is_active(hint) && hint.lblGot == u"GOT"; }

// Two different even ends are a fraction that is not in lowest terms.
bool has_two_even_ends(const ExponentHint& hint) {
  return !IsItOdd(hint.txtY3) && !IsItOdd(hint.txtImenilac) && hint.txtY3.back() != hint.txtImenilac.back();
}

double signed_power(double base, double exponent, const ExponentHint& hint) {
  const bool sign_matters = base < 0 && base != -1 && exponent != 0 && IsItOdd(hint.txtY3);
  if (!sign_matters) return Power(base, exponent);
  const double size = Power(-base, exponent);
  return IsItOdd(hint.txtImenilac) ? -size : size;
}

void take_graph_hint(double base, double exponent, const ExponentHint& hint, EvaluatorHost& host,
                     std::int32_t& error) {
  const bool odd_denominator = IsItOdd(hint.txtImenilac);
  // For its fault: with equal odd ends a negative base is refused here already.
  if (odd_denominator && hint.txtY3.back() == hint.txtImenilac.back()) Power(base, exponent);
  if (has_two_even_ends(hint)) error = symbols_error;
  signed_power(base, exponent, hint);
  if (base > 0 && base < 1 && odd_denominator && !IsItOdd(hint.txtY3)) host.Boje3();
}

}  // namespace

double Power(double base, double exponent) {
  const bool fractional = std::trunc(exponent) != exponent;
  if ((base < 0 && fractional) || (base == 0 && exponent < 0)) throw Fault{FaultCode::InvalidArgument};
  return finite(std::pow(base, exponent));
}

// The keypad's outcome always replaces the graph's, whose part is only to fault before it, to set the error
// and to ask for the plain colour. So the graph's fraction serves a negative base while the keypad holds one
// too.
double hinted_power(double base, double exponent, EvaluatorHost& host, std::int32_t& error) {
  const ExponentHint graph = host.graph_hint();
  if (is_active(graph)) {
    take_graph_hint(base, exponent, graph, host, error);
  } else {
    Power(base, exponent);
  }
  const ExponentHint keypad = host.keypad_hint();
  if (!is_active_on_keypad(keypad)) return Power(base, exponent);
  if (has_two_even_ends(keypad)) error = symbols_error;
  return signed_power(base, exponent, keypad);
}

}  // namespace tarnmill
