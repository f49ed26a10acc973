#include "script/lua_app.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "script/lua_app_members.h"
#include "script/lua_table.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

const AppProperty* find(std::string_view name) {
  const auto properties = app_properties();
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [name](const AppProperty& each) { return each.name == name; });
  return found == properties.end() ? nullptr : &*found;
}

/// Functions are plain fields of the table, so only properties come by here.
int app_index(lua_State* state) {
  const std::string_view name = bytes_at(state, 2);
  const AppProperty* property = find(name);
  if (property == nullptr) return luaL_error(state, "app has no member %s", name.data());
  property->push(state);
  return 1;
}

int app_newindex(lua_State* state) {
  const std::string_view name = bytes_at(state, 2);
  const AppProperty* property = find(name);
  if (property == nullptr || property->set == nullptr) {
    return luaL_error(state, "app.%s can't be set", name.data());
  }
  property->set(state, 3);
  return 0;
}

}  // namespace

void set_app_global(lua_State* state) {
  static constexpr std::array meta{luaL_Reg{"__index", app_index}, luaL_Reg{"__newindex", app_newindex}};
  push_functions(state, app_functions());
  push_functions(state, meta);
  lua_setmetatable(state, -2);
  lua_setglobal(state, "app");
}

}  // namespace tarnmill
