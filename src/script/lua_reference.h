#pragma once

#include <lua.hpp>
#include <string>
#include <string_view>

namespace tarnmill {

class Control;
class Workbench;

// Scripts hold names, never pointers: what a name stands for is looked up at each use, so that a reference
// outlives the unloading of its window and a restart of the program.

/// A window of the program.
struct WindowReference {
  static constexpr const char* type = "tarnmill.window";
  /// A name of the list of windows, which lives as long as the program text.
  std::string_view name;
};

/// A control array of a window.
struct ArrayReference {
  static constexpr const char* type = "tarnmill.array";
  std::string_view window;
  /// Kept alive as the first user value; the second is a table of the elements used so far.
  std::string_view name;
};

/// A control, or an element of a control array.
struct ControlReference {
  static constexpr const char* type = "tarnmill.control";
  std::string_view window;
  /// Kept alive as the first user value.
  std::string_view name;
  /// -1 for a control outside of an array.
  int index = -1;
};

/// Pushes a reference whose name is the string at `name_index` of the stack. The reference's type must have
/// been registered.
void push_control(lua_State* state, std::string_view window, int name_index, int index);
void push_array(lua_State* state, std::string_view window, int name_index);

/// The reference that is argument 1 of a function called with a colon; raises a Lua error for anything else.
template <class Reference>
Reference& self(lua_State* state) {
  return *static_cast<Reference*>(luaL_checkudata(state, 1, Reference::type));
}

/// The stack index of the first argument from `first` on; a procedure called with a colon is handed its
/// window in front of them, which doesn't count.
[[nodiscard]] int first_argument(lua_State* state, int first);

/// The control that a reference stands for, its window made when it isn't there; null when it has no such
/// control. Only within Session::call.
[[nodiscard]] Control* resolve(Workbench& bench, const ControlReference& reference);

/// "frmFunc.txtY" or "Form1.Number[2]".
[[nodiscard]] std::string path_of(const ControlReference& reference);
/// The same of a control.
[[nodiscard]] std::string path_of(Control& control);

}  // namespace tarnmill
