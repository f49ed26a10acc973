#pragma once

#include <functional>

namespace tarnmill {

/// A function of one variable; it may raise the faults of its arithmetic.
using RealFunction = std::function<double(double x)>;

}  // namespace tarnmill
