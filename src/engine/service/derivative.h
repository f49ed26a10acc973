#pragma once

#include "engine/service/real_function.h"

namespace tarnmill {

/// The first derivative of a function at a point, to at least eight digits for smooth functions.
///
/// The function is called at the point itself first, so that a pole there raises. Then central differences
/// are taken with a step of about 0.3 that shrinks by the golden ratio again and again; each new one is
/// extrapolated with those before it, which takes away the error terms in even powers of the step. The value
/// whose neighbours agree best is the result; shrinking ends when they agree to within the rounding of the
/// function. Where that leaves less than ten digits, as for large values far from 0, steps in proportion to
/// the point are tried as well, and count when they confirm the first result. Steps at which the function
/// faults are passed over, and so are those that it can't tell from the point: a function that reaches 0 by
/// cancellation, such as e^x-1, has equal values there, which agree with each other and say nothing.
///
/// Division-by-zero when the differences settle nowhere, as at a jump or an infinite slope. Faults of the
/// function at the point, and of the smallest steps when it has no value on both sides.
///
/// Sources: L. F. Richardson, The Deferred Approach to the Limit, 1927; C. J. F. Ridders, Accurate
/// computation of F'(x) and F'(x) F''(x), 1982.
double derivative(const RealFunction& function, double x);

}  // namespace tarnmill
