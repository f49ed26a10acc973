#include "script/lua_table.h"

namespace tarnmill {

namespace {

/// Adds functions to the table on top of the stack.
void add_functions(lua_State* state, std::span<const luaL_Reg> functions) {
  for (const luaL_Reg& each : functions) {
    lua_pushcfunction(state, each.func);
    lua_setfield(state, -2, each.name);
  }
}

}  // namespace

void push_new_type(lua_State* state, const char* name, std::span<const luaL_Reg> metamethods) {
  luaL_newmetatable(state, name);
  add_functions(state, metamethods);
  // No script gets hold of the functions that trust their argument.
  lua_pushboolean(state, 0);
  lua_setfield(state, -2, "__metatable");
}

void push_functions(lua_State* state, std::span<const luaL_Reg> functions) {
  lua_createtable(state, 0, static_cast<int>(functions.size()));
  add_functions(state, functions);
}

void set_globals(lua_State* state, std::span<const luaL_Reg> functions) {
  lua_pushglobaltable(state);
  add_functions(state, functions);
  lua_pop(state, 1);
}

}  // namespace tarnmill
