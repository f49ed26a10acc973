#include <array>

#include "forms/list_control.h"
#include "script/lua_methods.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

int add_item(lua_State* state) {
  const Text item = text_at(state, 2);
  with_control<ListControl>(state, self<ControlReference>(state), "AddItem",
                            [&](ListControl& list) { list.AddItem(item); });
  return 0;
}

int clear(lua_State* state) {
  with_control<ListControl>(state, self<ControlReference>(state), "Clear",
                            [](ListControl& list) { list.Clear(); });
  return 0;
}

int select(lua_State* state) {
  const int index = long_at(state, 2);
  bool there = true;
  with_control<ListControl>(state, self<ControlReference>(state), "Select", [&](ListControl& list) {
    there = index >= 0 && static_cast<std::size_t>(index) < list.items().size();
    if (there) list.choose(index);
  });
  if (!there) luaL_error(state, "the list has no entry %d", index);
  return 0;
}

int list(lua_State* state) {
  if (lua_isuserdata(state, 1) != 0) lua_remove(state, 1);
  const int index = long_at(state, 1);
  const auto& reference =
      *static_cast<ControlReference*>(luaL_checkudata(state, lua_upvalueindex(1), ControlReference::type));
  Text item;
  with_control<ListControl>(state, reference, "List",
                            [&](const ListControl& control) { item = control.List(index); });
  push_text(state, item);
  return 1;
}

}  // namespace

std::span<const luaL_Reg> list_methods() {
  static constexpr std::array methods{luaL_Reg{"AddItem", add_item}, luaL_Reg{"Clear", clear},
                                      luaL_Reg{"Select", select}};
  return methods;
}

std::span<const luaL_Reg> indexed_properties() {
  static constexpr std::array properties{luaL_Reg{"List", list}};
  return properties;
}

}  // namespace tarnmill
