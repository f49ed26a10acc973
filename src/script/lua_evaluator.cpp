#include <array>
#include <new>
#include <string>
#include <utility>
#include <variant>

#include "engine/evaluator.h"
#include "engine/rounding.h"
#include "forms/evaluator_field.h"
#include "forms/window.h"
#include "forms/workbench.h"
#include "script/lua_engine.h"
#include "script/lua_reference.h"
#include "script/lua_table.h"
#include "script/lua_value.h"
#include "script/script_evaluator_host.h"
#include "script/session.h"

namespace tarnmill {

namespace {

/// An evaluator of a script's own.
struct OwnEvaluator {
  explicit OwnEvaluator(Session& session) : host{session} {}

  ScriptEvaluatorHost host;
  Evaluator evaluator{host};
};

/// Where an evaluator lies that belongs to a window.
struct EvaluatorPlace {
  std::string window;
  std::string field;
};

/// An evaluator as scripts hold it: one of their own, or the name of one of a window, which is looked up at
/// each use.
struct ScriptEvaluator {
  static constexpr const char* type = "tarnmill.evaluator";
  explicit ScriptEvaluator(Session& session) : held{std::in_place_type<OwnEvaluator>, session} {}
  explicit ScriptEvaluator(EvaluatorPlace place) : held{std::move(place)} {}

  std::variant<OwnEvaluator, EvaluatorPlace> held;
};

/// The evaluator in a field of a window that exists, or null.
Evaluator* evaluator_at(Workbench& bench, const EvaluatorPlace& place) {
  Window* window = bench.find_window(place.window);
  const Window::Member* member = window == nullptr ? nullptr : window->find(place.field);
  if (member == nullptr || !std::holds_alternative<FieldBase*>(*member)) return nullptr;
  auto* field = dynamic_cast<EvaluatorField*>(std::get<FieldBase*>(*member));
  return field == nullptr ? nullptr : field->made();
}

/// The evaluator that is argument 1 of a method; raises a Lua error when it has gone with its window.
Evaluator& evaluator_of(lua_State* state) {
  auto& script_evaluator = self<ScriptEvaluator>(state);
  if (auto* own = std::get_if<OwnEvaluator>(&script_evaluator.held)) return own->evaluator;
  Session& session = Session::of(state);
  const auto& place = std::get<EvaluatorPlace>(script_evaluator.held);
  Evaluator* evaluator = session.bench().ended() ? nullptr : evaluator_at(session.bench(), place);
  if (evaluator == nullptr) luaL_error(state, "%s has no evaluator now", place.window.c_str());
  return *evaluator;
}

int evaluate(lua_State* state) {
  Evaluator& evaluator = evaluator_of(state);
  const Text text = text_at(state, 2);
  const bool silent = lua_toboolean(state, 3) != 0;
  double value = 0;
  const bool runs_on = Session::of(state).call(state, [&] { value = evaluator.Evaluate(text, silent); });
  if (!runs_on) return 0;
  push_number(state, value);
  return 1;
}

int replace_text(lua_State* state) {
  self<ScriptEvaluator>(state);
  const Text text = text_at(state, 2);
  const Text find = text_at(state, 3);
  const Text replacement = text_at(state, 4);
  Text replaced;
  Session::compute(state, [&] { replaced = Evaluator::ReplaceText(text, find, replacement); });
  push_text(state, replaced);
  return 1;
}

int is_it_odd(lua_State* state) {
  const Evaluator& evaluator = evaluator_of(state);
  const Text text = text_at(state, 2);
  bool odd = false;
  Session::compute(state, [&] { odd = evaluator.IsItOdd(text); });
  lua_pushboolean(state, odd ? 1 : 0);
  return 1;
}

int mid_mbcs(lua_State* state) {
  self<ScriptEvaluator>(state);
  const Text text = text_at(state, 2);
  const std::int32_t start = long_at(state, 3);
  const std::int32_t length = long_at(state, 4);
  Text middle;
  Session::compute(state, [&] { middle = Evaluator::MidMbcs(text, start, length); });
  push_text(state, middle);
  return 1;
}

int factorial2(lua_State* state) {
  self<ScriptEvaluator>(state);
  const double n = number_at(state, 2);
  double value = 0;
  Session::compute(state, [&] { value = Evaluator::factorial2(ToInteger(n)); });
  push_number(state, value);
  return 1;
}

int push_result(lua_State* state, Evaluator& evaluator) {
  double value = 0;
  if (!Session::of(state).call(state, [&] { value = evaluator.Result(); })) return 0;
  push_number(state, value);
  return 1;
}

int evaluator_index(lua_State* state) {
  Evaluator& evaluator = evaluator_of(state);
  const std::string_view name = bytes_at(state, 2);
  if (name == "Result") return push_result(state, evaluator);
  if (name == "Expression") {
    push_text(state, evaluator.Expression());
  } else if (name == "error") {
    lua_pushinteger(state, evaluator.error());
  } else if (name == "Assigned") {
    lua_pushboolean(state, evaluator.Assigned() ? 1 : 0);
  } else {
    lua_pushvalue(state, 2);
    if (lua_rawget(state, lua_upvalueindex(1)) == LUA_TNIL) {
      luaL_error(state, "an evaluator has no member %s", name.data());
    }
  }
  return 1;
}

int evaluator_newindex(lua_State* state) {
  Evaluator& evaluator = evaluator_of(state);
  if (bytes_at(state, 2) != "Expression") {
    luaL_error(state, "%s of an evaluator can't be set", lua_tostring(state, 2));
  }
  evaluator.Expression(text_at(state, 3));
  return 0;
}

int evaluator_collected(lua_State* state) {
  self<ScriptEvaluator>(state).~ScriptEvaluator();
  return 0;
}

template <class Held>
void push_evaluator(lua_State* state, Held&& held) {
  void* place = lua_newuserdatauv(state, sizeof(ScriptEvaluator), 0);
  new (place) ScriptEvaluator{std::forward<Held>(held)};
  luaL_setmetatable(state, ScriptEvaluator::type);
}

int make_evaluator(lua_State* state) {
  push_evaluator(state, Session::of(state));
  return 1;
}

}  // namespace

void push_window_evaluator(lua_State* state, std::string_view window, std::string_view field) {
  push_evaluator(state, EvaluatorPlace{std::string{window}, std::string{field}});
}

void set_evaluator_global(lua_State* state) {
  static constexpr std::array meta{luaL_Reg{"__newindex", evaluator_newindex},
                                   luaL_Reg{"__gc", evaluator_collected}};
  static constexpr std::array methods{luaL_Reg{"Evaluate", evaluate}, luaL_Reg{"ReplaceText", replace_text},
                                      luaL_Reg{"IsItOdd", is_it_odd}, luaL_Reg{"MidMbcs", mid_mbcs},
                                      luaL_Reg{"factorial2", factorial2}};
  push_new_type(state, ScriptEvaluator::type, meta);
  push_functions(state, methods);
  lua_pushcclosure(state, evaluator_index, 1);
  lua_setfield(state, -2, "__index");
  lua_pop(state, 1);
  lua_register(state, "Evaluator", make_evaluator);
}

}  // namespace tarnmill
