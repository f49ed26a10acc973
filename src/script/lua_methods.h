#pragma once

#include <functional>
#include <lua.hpp>
#include <span>

#include "forms/control.h"
#include "forms/workbench.h"
#include "script/lua_reference.h"
#include "script/session.h"

namespace tarnmill {

/// \name Methods of controls beside their events, one list a kind; they are called with a colon
///@{
[[nodiscard]] std::span<const luaL_Reg> common_methods();
[[nodiscard]] std::span<const luaL_Reg> list_methods();
[[nodiscard]] std::span<const luaL_Reg> menu_methods();
[[nodiscard]] std::span<const luaL_Reg> surface_methods();
///@}

/// Properties that take an index, called with a dot: `list.List(i)`. The control is the first upvalue, and
/// the index the first argument.
[[nodiscard]] std::span<const luaL_Reg> indexed_properties();
[[nodiscard]] std::span<const luaL_Reg> grid_and_bar_properties();
/// What an editor is asked with several arguments, called with a dot or a colon.
[[nodiscard]] std::span<const luaL_Reg> rich_text_functions();

/// Runs `use` on the control that a reference stands for, as the event loop runs a handler. Raises a Lua
/// error when it is not of the kind C, which has no method of this name. False when the program has ended in
/// it.
template <class C>
bool with_control(lua_State* state, const ControlReference& reference, const char* method,
                  const std::function<void(C&)>& use) {
  Session& session = Session::of(state);
  bool fits = true;
  const bool runs_on = session.call(state, [&] {
    auto* control = dynamic_cast<C*>(resolve(session.bench(), reference));
    fits = control != nullptr;
    if (fits) use(*control);
  });
  if (!fits) luaL_error(state, "%s has no %s", path_of(reference).c_str(), method);
  return runs_on;
}

}  // namespace tarnmill
