#pragma once

#include <lua.hpp>

namespace tarnmill {

/// `app.sheet(path, pictures, columns, side)`: writes a PNG of pictures in rows, each a table of a file and a
/// caption, fitted into a square of `side` pixels.
int sheet(lua_State* state);

}  // namespace tarnmill
