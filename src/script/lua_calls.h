#pragma once

#include <lua.hpp>
#include <string_view>

namespace tarnmill {

class Window;

/// Pushes the function that calls a procedure of a window by its name; it gives what the procedure gives.
void push_procedure(lua_State* state, std::string_view window, const char* name);

/// Whether `name` is the full name of an event handler of the window: a control or array, an underscore and
/// an event, or "Form_" and an event of the window itself.
[[nodiscard]] bool is_handler(const Window& window, std::string_view name);

/// Pushes the function that raises the event of a handler's full name. For an array its first argument is the
/// index of the element.
void push_handler(lua_State* state, std::string_view window, const char* name);

}  // namespace tarnmill
