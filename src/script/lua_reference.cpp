#include "script/lua_reference.h"

#include <new>

#include "forms/control.h"
#include "forms/window.h"
#include "forms/workbench.h"

namespace tarnmill {

namespace {

/// Pushes a new reference, with the string at `name_index` kept alive, and gives its place and that string.
template <class Reference>
Reference& push_reference(lua_State* state, int name_index) {
  name_index = lua_absindex(state, name_index);
  // The name, and for an array its elements.
  void* place = lua_newuserdatauv(state, sizeof(Reference), 2);
  auto* made = new (place) Reference{};
  std::size_t length = 0;
  const char* bytes = lua_tolstring(state, name_index, &length);
  made->name = {bytes, length};
  lua_pushvalue(state, name_index);
  lua_setiuservalue(state, -2, 1);
  luaL_setmetatable(state, Reference::type);
  return *made;
}

std::string path_of(std::string_view window, std::string_view name, int index) {
  std::string path{window};
  path.append(".").append(name);
  if (index >= 0) path.append("[").append(std::to_string(index)).append("]");
  return path;
}

}  // namespace

void push_control(lua_State* state, std::string_view window, int name_index, int index) {
  auto& made = push_reference<ControlReference>(state, name_index);
  made.window = window;
  made.index = index;
}

void push_array(lua_State* state, std::string_view window, int name_index) {
  push_reference<ArrayReference>(state, name_index).window = window;
  lua_newtable(state);
  lua_setiuservalue(state, -2, 2);
}

int first_argument(lua_State* state, int first) {
  return luaL_testudata(state, first, WindowReference::type) == nullptr ? first : first + 1;
}

Control* resolve(Workbench& bench, const ControlReference& reference) {
  return bench.window(reference.window).find_control(reference.name, reference.index);
}

std::string path_of(const ControlReference& reference) {
  return path_of(reference.window, reference.name, reference.index);
}

std::string path_of(Control& control) {
  return path_of(control.window().name(), control.name(), control.index());
}

}  // namespace tarnmill
