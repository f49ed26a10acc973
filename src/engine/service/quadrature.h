#pragma once

#include <cstdint>

#include "engine/service/real_function.h"

namespace tarnmill {

/// The most parts that a range is cut into.
inline constexpr std::int32_t most_parts = 100'000;

/// The integral of a function from one point to another, the range cut into equal parts with the 15-point
/// Kronrod rule on each. `from` above `to` gives minus the integral from `to` to `from`, to the bit.
///
/// Parts whose error is large are halved, the worst first, until no error counts against the whole (1E-12 of
/// the integral of the absolute value). A pole shows in that halving does not lessen the error: then
/// Division-by-zero is raised, also where no point falls on the pole. Singularities that have an area, such
/// as ln(x) or 1/sqr(x) at 0, and jumps settle. A bounded function that never settles, such as a random one,
/// gives what the halving has reached when it is called off.
///
/// Faults of the function; Invalid-argument for less than 1 and more than `most_parts` parts; Overflow.
double integral(const RealFunction& function, double from, double to, std::int32_t parts);

}  // namespace tarnmill
