#include <array>
#include <new>
#include <string>

#include "engine/service/service_evaluator.h"
#include "script/lua_engine.h"
#include "script/lua_reference.h"
#include "script/lua_table.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

/// An evaluator of a script, with random numbers of its own, so that it outlives a restart of the program.
/// Its user value is the script's function for samples.
struct ScriptService {
  static constexpr const char* type = "tarnmill.service";

  RandomSequence random;
  ServiceEvaluator evaluator{random};
};

/// Calls the script's function with each sample while one statement runs. A fault in it stays in it. The
/// first other error ends the calls and is raised when the statement has ended, since it can't pass through
/// the evaluator.
class SampleCalls {
 public:
  SampleCalls(lua_State* state, ScriptService& service) : state_{state}, service_{service} {
    lua_settop(state, 3);
    if (lua_getiuservalue(state, 1, 1) != LUA_TFUNCTION) return;
    service.evaluator.SamplePoint = [this](double x, double y) { call(x, y); };
  }
  ~SampleCalls() { service_.evaluator.SamplePoint = nullptr; }
  SampleCalls(const SampleCalls&) = delete;
  SampleCalls& operator=(const SampleCalls&) = delete;

  /// Whether an error lies on top of the stack.
  [[nodiscard]] bool failed() const { return failed_; }

 private:
  void call(double x, double y) {
    if (failed_) return;
    lua_pushvalue(state_, 4);
    push_number(state_, x);
    push_number(state_, y);
    if (lua_pcall(state_, 2, 0, 0) == LUA_OK) return;
    failed_ = !is_fault(state_, -1);
    if (!failed_) lua_pop(state_, 1);
  }

  lua_State* state_;
  ScriptService& service_;
  bool failed_ = false;
};

void run_statement(lua_State* state, ScriptService& service) {
  const Text statement = text_at(state, 3);
  bool failed = false;
  {
    SampleCalls calls{state, service};
    Session::compute(state, [&] { service.evaluator.formula(statement); });
    failed = calls.failed();
  }
  if (failed) lua_error(state);
}

int service_index(lua_State* state) {
  const auto& service = self<ScriptService>(state);
  const std::string_view name = bytes_at(state, 2);
  if (name == "Result") {
    push_number(state, service.evaluator.Result());
  } else if (name == "formula") {
    push_text(state, service.evaluator.formula());
  } else if (name == "SamplePoint") {
    lua_getiuservalue(state, 1, 1);
  } else {
    luaL_error(state, "a service evaluator has no member %s", name.data());
  }
  return 1;
}

int service_newindex(lua_State* state) {
  auto& service = self<ScriptService>(state);
  const std::string_view name = bytes_at(state, 2);
  if (name == "formula") {
    run_statement(state, service);
  } else if (name == "SamplePoint") {
    if (!lua_isnil(state, 3)) luaL_checktype(state, 3, LUA_TFUNCTION);
    lua_settop(state, 3);
    lua_setiuservalue(state, 1, 1);
  } else {
    luaL_error(state, "%s of a service evaluator can't be set", name.data());
  }
  return 0;
}

int service_collected(lua_State* state) {
  self<ScriptService>(state).~ScriptService();
  return 0;
}

int make_service(lua_State* state) {
  void* place = lua_newuserdatauv(state, sizeof(ScriptService), 1);
  new (place) ScriptService;
  luaL_setmetatable(state, ScriptService::type);
  return 1;
}

}  // namespace

void set_service_global(lua_State* state) {
  static constexpr std::array meta{luaL_Reg{"__index", service_index},
                                   luaL_Reg{"__newindex", service_newindex},
                                   luaL_Reg{"__gc", service_collected}};
  static constexpr std::array functions{luaL_Reg{"Evaluator", make_service}};
  push_new_type(state, ScriptService::type, meta);
  lua_pop(state, 1);
  push_functions(state, functions);
  lua_setglobal(state, "Veldrite");
}

}  // namespace tarnmill
