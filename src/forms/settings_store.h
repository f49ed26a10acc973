#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "engine/text.h"

namespace tarnmill {

/// The per-user store: keys are paths parted by a backslash, values are texts or numbers of 32 bits under
/// names. Nothing here raises: what can't be read is absent, what can't be written is lost.
class SettingsStore {
 public:
  using Value = std::variant<Text, std::int32_t>;

  virtual ~SettingsStore() = default;
  [[nodiscard]] virtual std::optional<Value> read(TextView key, TextView name) = 0;
  virtual void write(TextView key, TextView name, const Value& value) = 0;
};

}  // namespace tarnmill
