#pragma once

#include <lua.hpp>

namespace tarnmill {

/// Pushes a new list of all dialogs shown so far, the oldest first, each as a table.
void push_dialogs(lua_State* state);

}  // namespace tarnmill
