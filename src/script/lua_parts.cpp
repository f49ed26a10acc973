#include "script/lua_parts.h"

#include <array>
#include <new>
#include <string>
#include <type_traits>

#include "forms/status_bar.h"
#include "forms/toolbar.h"
#include "script/lua_methods.h"
#include "script/lua_table.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

/// A part of a control by its index. The control's name is kept alive by the control's own reference, which
/// is the first user value.
struct PartReference {
  static constexpr const char* type = "tarnmill.part";
  ControlReference control;
  int index = 0;
};
static_assert(std::is_trivially_destructible_v<PartReference>);

Node* resolve_part(Control* control, int index) {
  if (auto* bar = dynamic_cast<Toolbar*>(control)) return bar->find(index);
  if (auto* bar = dynamic_cast<StatusBar*>(control)) return bar->find(index);
  return nullptr;
}

/// Runs `use` on the part that argument 1 stands for. False when the program has ended in it.
bool with_part(lua_State* state, const std::function<void(Node&)>& use) {
  const auto& reference = self<PartReference>(state);
  Session& session = Session::of(state);
  bool there = true;
  const bool runs_on = session.call(state, [&] {
    Node* part = resolve_part(resolve(session.bench(), reference.control), reference.index);
    there = part != nullptr;
    if (there) use(*part);
  });
  if (!there) luaL_error(state, "%s has no part %d", path_of(reference.control).c_str(), reference.index);
  return runs_on;
}

int part_click(lua_State* state) {
  with_part(state, [](Node& part) {
    if (auto* button = dynamic_cast<ToolButton*>(&part)) button->press();
  });
  return 0;
}

int part_index(lua_State* state) {
  const std::string_view name = bytes_at(state, 2);
  if (name == "Click") {
    lua_pushcfunction(state, part_click);
    return 1;
  }
  Variant value;
  bool known = true;
  const bool runs_on = with_part(state, [&](Node& part) {
    const PropertyBase* property = part.find_property(name);
    known = property != nullptr;
    if (known) value = property->read();
  });
  if (!runs_on) return 0;
  if (!known) return luaL_error(state, "a part of a bar has no property %s", name.data());
  push_value(state, value);
  return 1;
}

int part_newindex(lua_State* state) {
  const std::string_view name = bytes_at(state, 2);
  const Variant value = value_at(state, 3);
  bool known = true;
  with_part(state, [&](Node& part) {
    PropertyBase* property = part.find_property(name);
    known = property != nullptr;
    if (known) property->write(value);
  });
  if (!known) return luaL_error(state, "a part of a bar has no property %s", name.data());
  return 0;
}

int push_part(lua_State* state, int index) {
  const auto& control = *static_cast<ControlReference*>(lua_touserdata(state, lua_upvalueindex(1)));
  if (index < 1) return luaL_error(state, "%s has no such part", path_of(control).c_str());
  void* place = lua_newuserdatauv(state, sizeof(PartReference), 1);
  new (place) PartReference{control, index};
  lua_pushvalue(state, lua_upvalueindex(1));
  lua_setiuservalue(state, -2, 1);
  luaL_setmetatable(state, PartReference::type);
  return 1;
}

/// The stack index of the key, whether the property was called with a dot or a colon.
int key_argument(lua_State* state) {
  return luaL_testudata(state, 1, ControlReference::type) == nullptr ? 1 : 2;
}

template <class Bar>
bool with_bar(lua_State* state, const char* property, const std::function<void(Bar&)>& use) {
  const auto& reference = *static_cast<ControlReference*>(lua_touserdata(state, lua_upvalueindex(1)));
  return with_control<Bar>(state, reference, property, use);
}

}  // namespace

void register_parts(lua_State* state) {
  static constexpr std::array meta{luaL_Reg{"__index", part_index}, luaL_Reg{"__newindex", part_newindex}};
  push_new_type(state, PartReference::type, meta);
  lua_pop(state, 1);
}

int push_toolbar_button(lua_State* state) {
  const int argument = key_argument(state);
  int index = 0;
  const bool by_index = lua_type(state, argument) == LUA_TNUMBER;
  const int given = by_index ? long_at(state, argument) : 0;
  const std::string key{by_index ? std::string_view{} : bytes_at(state, argument)};
  with_bar<Toolbar>(state, "Buttons", [&](const Toolbar& bar) {
    for (int i = 1; i <= bar.size(); ++i) {
      if (by_index ? i == given : bar.find(i) == bar.find(key)) index = i;
    }
  });
  return push_part(state, index);
}

int push_status_panel(lua_State* state) {
  const int given = long_at(state, key_argument(state));
  int index = 0;
  with_bar<StatusBar>(state, "Panels", [&](const StatusBar& bar) {
    if (bar.find(given) != nullptr) index = given;
  });
  return push_part(state, index);
}

}  // namespace tarnmill
