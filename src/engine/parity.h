#pragma once

#include "engine/text.h"

namespace tarnmill {

/// True for the ten digits: of the single characters exactly these are numeric texts.
constexpr bool IsDigitValue(char16_t c) { return c >= u'0' && c <= u'9'; }

/// Oddness of a number in text, read from its last character. Type-mismatch when that is no digit.
bool IsItOdd(TextView text);

}  // namespace tarnmill
