#pragma once

#include <lua.hpp>
#include <span>
#include <string_view>

namespace tarnmill {

/// A property of `app`.
struct AppProperty {
  std::string_view name;
  /// Pushes the value.
  void (*push)(lua_State* state);
  /// Sets it from the value at an index of the stack; null for one that is only read.
  void (*set)(lua_State* state, int index) = nullptr;
};

/// All properties of `app`. Reading them needs no running program.
[[nodiscard]] std::span<const AppProperty> app_properties();

/// All functions of `app`.
[[nodiscard]] std::span<const luaL_Reg> app_functions();

}  // namespace tarnmill
