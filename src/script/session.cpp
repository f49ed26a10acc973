#include "script/session.h"

#include <exception>
#include <utility>

#include "script/lua_value.h"

namespace tarnmill {

namespace {

constexpr const char* fault_type = "tarnmill.fault";
constexpr const char* has_ended = "the program has ended; app.restart() starts it again";

int fault_to_text(lua_State* state) {
  lua_getfield(state, 1, "fault");
  lua_getfield(state, 1, "description");
  lua_pushfstring(state, "fault %s: %s", lua_tostring(state, -2), lua_tostring(state, -1));
  return 1;
}

/// Keeps a variable at another value for the life of the object.
template <class T>
class Meanwhile {
 public:
  Meanwhile(T& variable, T value) : variable_{variable}, before_{std::exchange(variable, value)} {}
  ~Meanwhile() { variable_ = before_; }
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;

 private:
  T& variable_;
  T before_;
};

Session*& session_slot(lua_State* state) { return *static_cast<Session**>(lua_getextraspace(state)); }

}  // namespace

void raise_fault(lua_State* state, const Fault& fault) {
  lua_createtable(state, 0, 2);
  lua_pushinteger(state, fault.number());
  lua_setfield(state, -2, "fault");
  push_text(state, fault.description());
  lua_setfield(state, -2, "description");
  if (luaL_newmetatable(state, fault_type) != 0) {
    lua_pushcfunction(state, fault_to_text);
    lua_setfield(state, -2, "__tostring");
  }
  lua_setmetatable(state, -2);
  lua_error(state);
  std::terminate();  // lua_error doesn't return, though its type doesn't say so.
}

bool is_fault(lua_State* state, int index) {
  if (lua_getmetatable(state, index) == 0) return false;
  luaL_getmetatable(state, fault_type);
  const bool same = lua_rawequal(state, -1, -2) != 0;
  lua_pop(state, 2);
  return same;
}

Session::Session(lua_State* state, ScriptedProgram& program) : program_{program}, caller_{state} {
  session_slot(state) = this;
}

Session::~Session() { desk().on_yield = nullptr; }

Session& Session::of(lua_State* state) { return *session_slot(state); }

bool Session::call(lua_State* state, const std::function<void()>& entry) {
  if (bench().ended()) luaL_error(state, has_ended);
  if (depth_ == 0) desk().begin_call();
  bool runs_on = false;
  std::string problem;
  std::optional<Fault> refusal;
  try {
    const Meanwhile deeper{depth_, depth_ + 1};
    const Meanwhile calling{caller_, state};
    runs_on = bench().enter([&] { refusal = bench().attempt(entry); });
  } catch (const std::exception& other) {
    problem = other.what();
  }
  if (!problem.empty()) luaL_error(state, "%s", problem.c_str());
  if (refusal) raise_fault(state, *refusal);
  if (depth_ == 0) raise_errors_put_off(state);
  return runs_on;
}

void Session::compute(lua_State* state, const std::function<void()>& computation) {
  std::optional<Fault> fault;
  try {
    computation();
  } catch (const Fault& raised) {
    fault = raised;
  }
  if (fault) raise_fault(state, *fault);
}

void Session::restart(lua_State* state) {
  if (depth_ > 0) luaL_error(state, "the program can't be restarted while one of its handlers runs");
  program_.restart();
}

void Session::set_on_yield(lua_State* state) {
  luaL_unref(state, LUA_REGISTRYINDEX, on_yield_);
  if (lua_isnil(state, -1)) {
    lua_pop(state, 1);
    on_yield_ = LUA_NOREF;
    desk().on_yield = nullptr;
  } else {
    on_yield_ = luaL_ref(state, LUA_REGISTRYINDEX);
    desk().on_yield = [this] { run_on_yield(); };
  }
}

void Session::push_on_yield(lua_State* state) const {
  if (on_yield_ == LUA_NOREF) {
    lua_pushnil(state);
  } else {
    lua_rawgeti(state, LUA_REGISTRYINDEX, on_yield_);
  }
}

void Session::run_on_yield() {
  lua_State* state = caller_;
  if (depth_ == 0 || put_off_ != LUA_NOREF || on_yield_ == LUA_NOREF) return;
  if (lua_checkstack(state, LUA_MINSTACK) == 0) return;
  lua_rawgeti(state, LUA_REGISTRYINDEX, on_yield_);
  if (lua_pcall(state, 0, 0, 0) != LUA_OK) put_off_error(state);
}

void Session::put_off_error(lua_State* state) { put_off_ = luaL_ref(state, LUA_REGISTRYINDEX); }

void Session::raise_errors_put_off(lua_State* state) {
  const auto complaint = desk().person().take_complaint();
  if (put_off_ != LUA_NOREF) {
    lua_rawgeti(state, LUA_REGISTRYINDEX, put_off_);
    luaL_unref(state, LUA_REGISTRYINDEX, std::exchange(put_off_, LUA_NOREF));
    lua_error(state);
  }
  if (complaint) luaL_error(state, "%s", complaint->c_str());
}

}  // namespace tarnmill
