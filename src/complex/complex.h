#pragma once

#include <functional>

#include "engine/regional.h"
#include "engine/text.h"
#include "forms/dialogs.h"

namespace tarnmill {

// Complex numbers are pairs of arguments: z1 = (a, b), z2 = (c, d), each real part first. Results go to `re`
// and `im`; an output that a failure came before keeps its value.
//
// Multiplication, division, the exponential and the two arguments of a number recover from faults: they show
// a message for an Overflow, pass over any other fault in silence, and end with the outputs as they stand.
// What is built on them goes on with zeros for the outputs that were not written. All other faults reach the
// caller.
//
// Angles are in radians, but for ComplexArgDeg.

/// Shows a message box and returns when it is closed.
using MessageSink = std::function<void(const MessageBox&)>;

/// z1 + z2. Overflow.
void ComplexAdd(double a, double b, double c, double d, double& re, double& im);

/// z1 - z2. Overflow.
void ComplexSubtract(double a, double b, double c, double d, double& re, double& im);

/// z1 * z2. Recovers.
void ComplexMultiply(double a, double b, double c, double d, double& re, double& im, const MessageSink& show);

/// z1 / z2: z1 times the conjugate of z2, divided by the square of its magnitude. Recovers; a z2 of zero is
/// the Overflow of 0/0.
void ComplexDivide(double a, double b, double c, double d, double& re, double& im, const MessageSink& show);

/// The magnitude of z1. Overflow, also when only a square on the way is too large.
void ComplexAbs(double a, double b, double& result);

/// e to the power z1. Recovers.
void ComplexExp(double a, double b, double& re, double& im, const MessageSink& show);

/// Natural logarithm: re is the logarithm of the magnitude and im the angle; (0, 0) for zero. The angle lies
/// in 0 to pi above the real axis, between -pi and -pi/2 in the third quadrant, is 3/2 pi on the negative
/// imaginary axis and lies between 3/2 pi and 2 pi in the fourth quadrant. Overflow.
void ComplexLn(double a, double b, double& re, double& im);

/// z1 to the power z2, by way of the logarithm; so zero to any power is 1. Recovers in its exponential;
/// Overflow from the logarithm.
void ComplexPower(double a, double b, double c, double d, double& re, double& im, const MessageSink& show);

/// Logarithm of z1 to the base z2. Recovers in its division; Overflow from the logarithms.
void ComplexLog(double a, double b, double c, double d, double& re, double& im, const MessageSink& show);

/// The sine as this program defines it: re = sin(a) cosh(b), im = cos(a) cosh(b). The imaginary part is not
/// that of the mathematical sine. Recovers in its steps.
void ComplexSin(double a, double b, double& re, double& im, const MessageSink& show);

/// Cosine. Recovers in its steps.
void ComplexCos(double a, double b, double& re, double& im, const MessageSink& show);

/// ComplexSin divided by ComplexCos. Recovers in its steps.
void ComplexTan(double a, double b, double& re, double& im, const MessageSink& show);

/// Hyperbolic sine. Recovers in its steps.
void ComplexSinh(double a, double b, double& re, double& im, const MessageSink& show);

/// Hyperbolic cosine. Recovers in its steps.
void ComplexCosh(double a, double b, double& re, double& im, const MessageSink& show);

/// Hyperbolic tangent. Recovers in its steps.
void ComplexTanh(double a, double b, double& re, double& im, const MessageSink& show);

/// 1 / z1. Overflow, also for the 0/0 of zero.
void ComplexReciprocal(double a, double b, double& re, double& im);

/// The arc tangent of b / a in re, in radians whatever the quadrant, and 0 in im. Recovers.
void ComplexArgRad(double a, double b, double& re, double& im, const MessageSink& show);

/// The arc tangent of b / a in degrees, as text by the regional settings, and 0 in im. Recovers.
void ComplexArgDeg(double a, double b, Text& re, double& im, const Regional& regional,
                   const MessageSink& show);

}  // namespace tarnmill
