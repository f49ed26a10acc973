#pragma once

#include <lua.hpp>

namespace tarnmill {

/// \name What the engine gives to scripts, as globals
///@{
/// The conversions of numbers and texts.
void set_conversion_globals(lua_State* state);
/// `Evaluator()`.
void set_evaluator_global(lua_State* state);
/// `Veldrite.Evaluator()`.
void set_service_global(lua_State* state);
/// `Complex`.
void set_complex_global(lua_State* state);
/// `Rewriting`.
void set_rewriting_global(lua_State* state);
/// GetRegistrySetting and SaveRegistrySetting.
void set_settings_globals(lua_State* state);
///@}

}  // namespace tarnmill
