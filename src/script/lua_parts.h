#pragma once

#include <lua.hpp>

namespace tarnmill {

/// Makes the type of references to parts of controls, buttons of toolbars and panels of status bars, known to
/// a state.
void register_parts(lua_State* state);

/// \name Functions of the properties `Buttons` and `Panels`, called with a dot or a colon: they push a
/// reference to the part of this key or index.
///@{
int push_toolbar_button(lua_State* state);
int push_status_panel(lua_State* state);
///@}

}  // namespace tarnmill
