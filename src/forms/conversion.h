#pragma once

#include <concepts>
#include <cstdint>

#include "engine/number_text.h"
#include "engine/regional.h"
#include "engine/rounding.h"
#include "engine/text.h"
#include "engine/variant.h"

namespace tarnmill {

/// The dynamic value that stands for a value of fixed type: True and False stay Boolean, every number
/// becomes a Double.
template <class T>
[[nodiscard]] Variant to_variant(const T& value) {
  if constexpr (std::integral<T> && !std::same_as<T, bool>) {
    return Variant{static_cast<double>(value)};
  } else if constexpr (std::same_as<T, float>) {
    return Variant{static_cast<double>(value)};
  } else {
    return Variant{value};
  }
}

/// A dynamic value as one of fixed type, by the conversions of assignment: a number for a text is
/// written by `NumberToText`, a text for a number is read strictly (Type-mismatch), whole numbers round
/// half to even and check their range (Overflow).
template <class T>
[[nodiscard]] T from_variant(const Variant& value, const Regional& regional) {
  if constexpr (std::same_as<T, Variant>) {
    return value;
  } else if constexpr (std::same_as<T, Text>) {
    return value.to_text(regional);
  } else if constexpr (std::same_as<T, bool>) {
    return value.to_number(regional) != 0;
  } else if constexpr (std::same_as<T, std::int16_t>) {
    return ToInteger(value.to_number(regional));
  } else if constexpr (std::integral<T>) {
    return static_cast<T>(ToLong(value.to_number(regional)));
  } else {
    return static_cast<T>(value.to_number(regional));
  }
}

}  // namespace tarnmill
