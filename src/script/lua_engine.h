#pragma once

#include <lua.hpp>
#include <string_view>

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

/// Pushes the evaluator that a state field of a window holds, looked up anew at each use.
void push_window_evaluator(lua_State* state, std::string_view window, std::string_view field);

}  // namespace tarnmill
