#pragma once

#include <lua.hpp>
#include <optional>

#include "script/scripted_desk.h"

namespace tarnmill {

/// The moment that a table as of os.date("*t") names; nothing for nil. A date left out is today's, an hour
/// left out is noon, as for os.time.
[[nodiscard]] std::optional<FrozenClock> clock_at(lua_State* state, int index);

/// Pushes a moment as such a table, or nil.
void push_clock(lua_State* state, const std::optional<FrozenClock>& clock);

}  // namespace tarnmill
