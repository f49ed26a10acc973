#pragma once

#include <cstdint>

#include "engine/regional.h"
#include "engine/text.h"

namespace tarnmill {

/// Rounds to a number of decimals: x times 10^digits as Double, to the nearest whole number, half to even,
/// then divided again, so that 0.0005 to three places is 0. A size of 2^52 or more has no decimals and comes
/// back unchanged, and so does a value that is not finite. Invalid-argument for digits below 0; Overflow when
/// the product leaves the range.
double RoundTo(double x, std::int32_t digits);

/// RoundTo of a text read strictly; Type-mismatch when it is no number.
double RoundTo(TextView text, std::int32_t digits, const Regional& regional);

/// Nearest 16-bit whole number, half to even; Overflow out of range.
std::int16_t ToInteger(double x);

/// ToInteger of a text read strictly; Type-mismatch when it is no number.
std::int16_t ToInteger(TextView text, const Regional& regional);

/// Nearest 32-bit whole number, half to even; Overflow out of range.
std::int32_t ToLong(double x);

/// ToLong of a text read strictly; Type-mismatch when it is no number.
std::int32_t ToLong(TextView text, const Regional& regional);

/// The greatest whole number not above x.
double FloorOf(double x);

/// x without its fraction.
double TruncOf(double x);

/// -1, 0 or 1.
std::int16_t SignOf(double x);

}  // namespace tarnmill
