#pragma once

#include <lua.hpp>

namespace tarnmill {

/// Makes `app` global: the desk, as scripts see and play it.
void set_app_global(lua_State* state);

}  // namespace tarnmill
