#pragma once

#include <vector>

#include "engine/service/lexer.h"
#include "engine/service/program.h"
#include "engine/text.h"

namespace tarnmill {

/// Turns an expression without blanks into a program. Accepted:
///
///   sum      product, then any number of ("+" or "-") product
///   product  signed, then any number of ("*", "/" or nothing at all) signed; with nothing between, the
///   second
///            one begins without a sign
///   signed   any number of "+" and "-", then power
///   power    operand, or operand "^" signed power; "2^3^2" is 2^(3^2)
///   operand  signed number, or "x", or "pi", or "e", or "(" sum ")", or function "(" sum ")"
///
/// A sign straight before a number belongs to the number, where no operator is expected: "-1^2" is 1, "2*-1"
/// is -2, "1--1" is 2. Before a bracket or a word it binds looser than "^" and tighter than "*": "-x^2" is
/// -(x^2).
///
/// A multiplication that is not written binds like one that is: "2x" is 2*x, "2(3)^2" is 2*(3^2), and "1/2x"
/// is (1/2)*x.
///
/// Raises statement_fault_number for any other text, and Overflow for a number beyond the range.
Program compile(TextView expression, Dialect dialect);

}  // namespace tarnmill
