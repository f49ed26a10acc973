#include "script/lua_events.h"

#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/window.h"
#include "script/lua_reference.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

/// Raises an event by name; false when the node has none of this name.
bool raise(Node* node, std::string_view name, const std::vector<Variant>& arguments) {
  EventBase* event = node == nullptr ? nullptr : node->find_event(name);
  if (event != nullptr) event->invoke(arguments);
  return event != nullptr;
}

int raise_event(lua_State* state) {
  const char* name = lua_tostring(state, lua_upvalueindex(1));
  const auto* control = static_cast<ControlReference*>(luaL_testudata(state, 1, ControlReference::type));
  const auto* window = static_cast<WindowReference*>(luaL_testudata(state, 1, WindowReference::type));
  if (control == nullptr && window == nullptr) {
    luaL_error(state, "call the event with a colon, as in control:%s()", name);
  }
  const std::vector<Variant> arguments = values_from(state, 2);
  Session& session = Session::of(state);
  bool missing = false;
  session.call(state, [&] {
    Node* node = nullptr;
    if (control != nullptr) {
      node = resolve(session.bench(), *control);
    } else {
      node = &session.bench().window(window->name);
    }
    missing = !raise(node, name, arguments);
  });
  if (missing) luaL_error(state, "there is no event %s here", name);
  return 0;
}

}  // namespace

void push_event_method(lua_State* state, const char* event) {
  luaL_getsubtable(state, LUA_REGISTRYINDEX, "tarnmill.events");
  if (lua_getfield(state, -1, event) == LUA_TNIL) {
    lua_pop(state, 1);
    lua_pushstring(state, event);
    lua_pushcclosure(state, raise_event, 1);
    lua_pushvalue(state, -1);
    lua_setfield(state, -3, event);
  }
  lua_remove(state, -2);
}

}  // namespace tarnmill
