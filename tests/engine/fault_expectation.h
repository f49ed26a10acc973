#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

#include "engine/fault.h"

namespace tarnmill::testing {

/// The number of the fault that the step raises, or nothing.
template <typename Step>
std::optional<std::int32_t> fault_number(Step step) {
  try {
    step();
  } catch (const Fault& fault) {
    return fault.number();
  }
  return std::nullopt;
}

}  // namespace tarnmill::testing

// A macro, so that a failure names the line and the expression.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage)
#define EXPECT_FAULT(expression, code)                                                             \
  EXPECT_EQ(::tarnmill::testing::fault_number([&] { static_cast<void>(expression); }).value_or(0), \
            static_cast<std::int32_t>(FaultCode::code))
