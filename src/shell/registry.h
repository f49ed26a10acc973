#pragma once

#include <cstdint>

#include "engine/text.h"
#include "engine/variant.h"

namespace tarnmill {

class SettingsStore;

/// The number of the branch that belongs to the present user. No other branch holds anything.
inline constexpr std::int64_t current_user_hive = 0x80000001;

/// The path of a key: root and sections parted by a backslash, empty ones left out.
[[nodiscard]] Text registry_path(TextView root, TextView section1, TextView section2);

/// A stored value: a text, or a number for one of 32 bits. An absent value and an empty text give
/// `otherwise`. Raises nothing.
[[nodiscard]] Variant GetRegistrySetting(SettingsStore& store, TextView root, TextView section1,
                                         TextView section2, TextView value_name, const Variant& otherwise,
                                         std::int64_t hive = current_user_hive);

/// Stores a text. Always true: what can't be written is lost without a word.
bool SaveRegistrySetting(SettingsStore& store, TextView root, TextView section1, TextView section2,
                         TextView value_name, TextView value, std::int64_t hive = current_user_hive);

}  // namespace tarnmill
