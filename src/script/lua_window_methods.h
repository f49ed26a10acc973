#pragma once

#include <lua.hpp>
#include <span>

namespace tarnmill {

/// The methods of a window beside its events: Show, Hide, Unload, Controls, Screenshot.
[[nodiscard]] std::span<const luaL_Reg> window_methods();

}  // namespace tarnmill
