#pragma once

#include <functional>
#include <lua.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "engine/fault.h"
#include "script/scripted_program.h"

namespace tarnmill {

/// What the Lua functions of one script share: the program it drives and the way into it.
///
/// Lua is built as C++ and unwinds by exceptions of its own, so an error raised here runs destructors. The
/// other way round no exception of the program may reach Lua, which would take it for one of its own.
class Session {
 public:
  /// The state must not outlive the session, nor the session the program.
  Session(lua_State* state, ScriptedProgram& program);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The session of a state or coroutine.
  [[nodiscard]] static Session& of(lua_State* state);

  [[nodiscard]] ScriptedDesk& desk() { return program_.desk(); }
  [[nodiscard]] Workbench& bench() { return program_.bench(); }

  /// Runs `entry` as the event loop would: a fault that leaves a handler or procedure of the program ends it,
  /// any other, such as that of a value that a property refuses, becomes a Lua error. False when the program
  /// has ended in it. Raises a Lua error when the program had ended before, and the errors that were put off
  /// until this call returned.
  bool call(lua_State* state, const std::function<void()>& entry);

  /// Runs a function of the engine that reaches into no window: a fault becomes a Lua error, with its number
  /// and description. The program needs not run.
  static void compute(lua_State* state, const std::function<void()>& computation);

  /// Starts the program again. Raises a Lua error within a call.
  void restart(lua_State* state);

  /// Sets the function for each turn that a handler gives the event loop: the value on top of the stack,
  /// which it takes off; nil for none.
  void set_on_yield(lua_State* state);
  /// Pushes that function, or nil.
  void push_on_yield(lua_State* state) const;

 private:
  void run_on_yield();
  void put_off_error(lua_State* state);
  void raise_errors_put_off(lua_State* state);

  ScriptedProgram& program_;
  /// The state or coroutine that made the innermost call.
  lua_State* caller_;
  int depth_ = 0;
  int on_yield_ = LUA_NOREF;
  /// The first error of a function called back during the outermost call.
  int put_off_ = LUA_NOREF;
};

/// Raises a Lua error whose value is a table with the number and description of a fault.
[[noreturn]] void raise_fault(lua_State* state, const Fault& fault);
/// Whether the value at this index is such a table.
[[nodiscard]] bool is_fault(lua_State* state, int index);

}  // namespace tarnmill
