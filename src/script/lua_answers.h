#pragma once

#include <lua.hpp>

#include "script/answer.h"

namespace tarnmill {

/// The answer that an argument stands for: false for Cancel, a text, a number, or a table of font properties.
/// Raises a Lua error for anything else.
[[nodiscard]] Answer answer_at(lua_State* state, int index);

}  // namespace tarnmill
