#pragma once

#include "engine/service/real_function.h"

namespace tarnmill {

/// What one application of the rule tells about one cell of a range.
struct CellEstimate {
  double integral;   ///< of the function
  double magnitude;  ///< of the function's absolute value
  double error;      ///< size of the difference between the rule and the Gauss rule within it
};

/// Applies the 15-point Kronrod rule, which holds the 7-point Gauss rule, to the cell between two finite
/// ends, `from` below or equal to `to`. The function is called for 15 points in ascending order, none of them
/// an end. The rule is exact for polynomials up to degree 23, so its error falls with the 24th power of the
/// cell's width. Faults of the function; Overflow.
///
/// Source: A. S. Kronrod, Nodes and Weights of Quadrature Formulas, 1965.
CellEstimate kronrod_rule(const RealFunction& function, double from, double to);

}  // namespace tarnmill
