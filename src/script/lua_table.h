#pragma once

#include <lua.hpp>
#include <span>

namespace tarnmill {

/// Makes a type of userdata known under `name`, with the metamethods given, and leaves its metatable on the
/// stack.
void push_new_type(lua_State* state, const char* name, std::span<const luaL_Reg> metamethods);

/// Pushes a table of functions.
void push_functions(lua_State* state, std::span<const luaL_Reg> functions);

/// Makes the functions global.
void set_globals(lua_State* state, std::span<const luaL_Reg> functions);

}  // namespace tarnmill
