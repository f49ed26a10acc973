#pragma once

#include <lua.hpp>

namespace tarnmill {

/// Makes every window of the program a global of its own name.
void set_window_globals(lua_State* state);

}  // namespace tarnmill
