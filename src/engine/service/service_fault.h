#pragma once

#include <cstdint>

#include "engine/fault.h"

namespace tarnmill {

/// The number of every failure of a statement that is not arithmetic, so that whoever recovers can tell it
/// from an overflow and from a pole.
inline constexpr std::int32_t statement_fault_number = 1000;

/// A text that is no statement and no expression.
[[noreturn]] void raise_wrong_syntax();

/// A word that is not known, the variable where there is none included.
[[noreturn]] void raise_unknown_name();

/// A bracket without its partner.
[[noreturn]] void raise_unmatched_brackets();

/// A statement that needs more pushed values than there are.
[[noreturn]] void raise_too_few_values();

}  // namespace tarnmill
