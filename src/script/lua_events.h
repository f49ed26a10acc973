#pragma once

#include <lua.hpp>

namespace tarnmill {

/// Pushes the method that raises the event of this name on the window or control it is called on. The
/// program's handler runs whether or not the control is visible or enabled; arguments left out are 0.
void push_event_method(lua_State* state, const char* event);

}  // namespace tarnmill
