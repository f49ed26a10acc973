#pragma once

#include <cstdint>

namespace tarnmill {

class EvaluatorHost;

/// base to the exponent, real; 0 to the power 0 is 1. Invalid-argument for a negative base with a fractional
/// exponent and for 0 to a negative exponent; Overflow beyond the range.
double Power(double base, double exponent);

/// The power operator of expressions: Power, helped for negative bases by the exponents that the graph window
/// and the keypad hold as numerator and denominator. Reads the graph's hint, then, unless a fault came
/// before, the keypad's; may call Boje3. Sets `error` to 4 for a hint of two different even last digits.
/// Faults of Power.
double hinted_power(double base, double exponent, EvaluatorHost& host, std::int32_t& error);

}  // namespace tarnmill
