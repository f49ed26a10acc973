#pragma once

#include <concepts>

#include "engine/checked.h"

namespace tarnmill {

/// A counted loop on a Double, with bounds fixed on entry: calls `round` with x from `from` on, as long as x
/// is not above `to`, or not below it where the step is negative, and until a round gives true. The step is
/// added again and again, and its roundings stay in x. A step of 0 never ends by itself. Gives whether a
/// round ended the loop. Overflow when x leaves the range; what a round raises passes through.
template <std::predicate<double> Round>
bool counted_loop(double from, double to, double step, Round&& round) {
  for (double x = from; step < 0 ? x >= to : x <= to; x = add(x, step)) {  // NOLINT(cert-flp30-c)
    if (round(x)) return true;
  }
  return false;
}

}  // namespace tarnmill
