#include "script/script.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "script/lua_app.h"
#include "script/lua_control.h"
#include "script/lua_engine.h"
#include "script/lua_value.h"
#include "script/lua_window.h"

namespace tarnmill {

namespace {

/// Turns an error value into a message with a traceback.
int describe_error(lua_State* state) {
  const char* message = luaL_tolstring(state, 1, nullptr);
  luaL_traceback(state, state, message, 1);
  return 1;
}

int exit_status(lua_State* state) {
  if (lua_isboolean(state, 1)) return lua_toboolean(state, 1) != 0 ? EXIT_SUCCESS : EXIT_FAILURE;
  return static_cast<int>(luaL_optinteger(state, 1, EXIT_SUCCESS));
}

int leave_process(lua_State* state) {
  const int status = exit_status(state);
  const auto& leave = *static_cast<std::function<void()>*>(lua_touserdata(state, lua_upvalueindex(1)));
  if (leave) leave();
  // Handlers of the program may be running, so nothing of it is taken down in order.
  std::fflush(nullptr);
  std::_Exit(status);
}

void open_libraries(lua_State* state) {
  luaL_openlibs(state);
  set_conversion_globals(state);
  set_evaluator_global(state);
  set_service_global(state);
  set_complex_global(state);
  set_rewriting_global(state);
  set_settings_globals(state);
  register_controls(state);
  set_window_globals(state);
  set_app_global(state);
}

}  // namespace

Script::Script(ScriptedProgram& program, std::function<void()> leave)
    : leave_{std::move(leave)}, state_{luaL_newstate()}, session_{state_.get(), program} {
  open_libraries(state_.get());
  replace_exit();
}

Script::~Script() = default;

void Script::replace_exit() {
  lua_State* state = state_.get();
  lua_getglobal(state, "os");
  lua_pushlightuserdata(state, &leave_);
  lua_pushcclosure(state, leave_process, 1);
  lua_setfield(state, -2, "exit");
  lua_pop(state, 1);
}

std::string Script::run(const std::string& interpreter, const std::string& file,
                        const std::vector<std::string>& arguments) {
  lua_State* state = state_.get();
  lua_newtable(state);
  push_words(state, interpreter);
  lua_rawseti(state, -2, -1);
  push_words(state, file);
  lua_rawseti(state, -2, 0);
  lua_Integer position = 0;
  for (const std::string& each : arguments) {
    push_words(state, each);
    lua_rawseti(state, -2, ++position);
  }
  lua_setglobal(state, "arg");
  return run_loaded(luaL_loadfile(state, file == "-" ? nullptr : file.c_str()), arguments);
}

std::string Script::run_text(const std::string& text) {
  return run_loaded(luaL_loadbuffer(state_.get(), text.data(), text.size(), "=script"), {});
}

std::string Script::run_loaded(int load_status, const std::vector<std::string>& arguments) {
  lua_State* state = state_.get();
  int status = load_status;
  if (status == LUA_OK) {
    const int chunk = lua_gettop(state);
    lua_pushcfunction(state, describe_error);
    lua_insert(state, chunk);
    luaL_checkstack(state, static_cast<int>(arguments.size()), "too many arguments");
    for (const std::string& each : arguments) push_words(state, each);
    status = lua_pcall(state, static_cast<int>(arguments.size()), 0, chunk);
  }
  std::string message;
  if (status != LUA_OK) message = lua_tostring(state, -1);
  lua_settop(state, 0);
  return message;
}

}  // namespace tarnmill
