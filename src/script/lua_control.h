#pragma once

#include <lua.hpp>

namespace tarnmill {

/// Makes the types of references to controls and control arrays known to a state.
void register_controls(lua_State* state);

}  // namespace tarnmill
