#include "script/lua_calls.h"

#include <span>
#include <string>
#include <vector>

#include "forms/control_array.h"
#include "forms/procedure.h"
#include "script/lua_reference.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

/// The two halves of "Number_Click". The event has no underscore, while a control's name may.
struct HandlerName {
  std::string_view owner;
  std::string_view event;
};

HandlerName split(std::string_view name) {
  const auto underscore = name.rfind('_');
  if (underscore == std::string_view::npos) return {};
  return {name.substr(0, underscore), name.substr(underscore + 1)};
}

/// Whose event it is; an element of an array for an array.
struct Owner {
  Node* node = nullptr;
  bool is_array = false;
};

Owner find_owner(const Window& window, std::string_view name, int index) {
  const Window::Member* member = window.find(name);
  if (member == nullptr) return {};
  if (const auto* array = std::get_if<ControlArrayBase*>(member)) return {(*array)->find(index), true};
  if (const auto* control = std::get_if<Control*>(member)) return {*control, false};
  return {};
}

constexpr std::string_view form = "Form";

int call_procedure(lua_State* state) {
  const char* window = lua_tostring(state, lua_upvalueindex(1));
  const char* name = lua_tostring(state, lua_upvalueindex(2));
  const std::vector<Variant> arguments = values_from(state, first_argument(state, 1));
  Session& session = Session::of(state);
  std::size_t needed = 0;
  Variant result;
  const bool runs_on = session.call(state, [&] {
    const Procedure* procedure = session.bench().window(window).find_procedure(name);
    needed = procedure->arity();
    if (arguments.size() >= needed) result = (*procedure)(arguments);
  });
  if (!runs_on) return 0;
  if (arguments.size() < needed) {
    return luaL_error(state, "%s.%s needs %d arguments", window, name, static_cast<int>(needed));
  }
  push_value(state, result);
  return 1;
}

/// Raises the event; false when there is no such element.
bool raise_handler(Window& window, std::string_view full_name, std::span<const Variant> arguments,
                   int index) {
  const HandlerName name = split(full_name);
  Owner owner{&window, false};
  if (name.owner != form) owner = find_owner(window, name.owner, index);
  if (owner.node == nullptr) return false;
  EventBase* event = owner.node->find_event(name.event);
  if (event == nullptr) return false;
  event->invoke(owner.is_array ? arguments.subspan(1) : arguments);
  return true;
}

int call_handler(lua_State* state) {
  const char* window = lua_tostring(state, lua_upvalueindex(1));
  const char* name = lua_tostring(state, lua_upvalueindex(2));
  const int first = first_argument(state, 1);
  const std::vector<Variant> arguments = values_from(state, first);
  int is_whole = 0;
  const lua_Integer given = lua_tointegerx(state, first, &is_whole);
  const int index = is_whole != 0 ? static_cast<int>(given) : -1;
  Session& session = Session::of(state);
  bool missing = false;
  session.call(state,
               [&] { missing = !raise_handler(session.bench().window(window), name, arguments, index); });
  if (missing) return luaL_error(state, "%s.%s: the array has no element %d", window, name, index);
  return 0;
}

void push_call(lua_State* state, std::string_view window, const char* name, lua_CFunction call) {
  push_words(state, window);
  lua_pushstring(state, name);
  lua_pushcclosure(state, call, 2);
}

}  // namespace

void push_procedure(lua_State* state, std::string_view window, const char* name) {
  push_call(state, window, name, call_procedure);
}

bool is_handler(const Window& window, std::string_view full_name) {
  const HandlerName name = split(full_name);
  if (name.owner == form) return window.find_event(name.event) != nullptr;
  const Window::Member* member = window.find(name.owner);
  if (member == nullptr) return false;
  const auto* array = std::get_if<ControlArrayBase*>(member);
  const Owner owner = find_owner(window, name.owner, array == nullptr ? -1 : (*array)->first());
  return owner.node != nullptr && owner.node->find_event(name.event) != nullptr;
}

void push_handler(lua_State* state, std::string_view window, const char* name) {
  push_call(state, window, name, call_handler);
}

}  // namespace tarnmill
