#include <array>
#include <string>
#include <utility>
#include <vector>

#include "forms/menu_item.h"
#include "script/lua_methods.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

/// The entries of a menu, hidden ones and separators included, in its order.
int items(lua_State* state) {
  const auto& reference = self<ControlReference>(state);
  std::vector<std::pair<std::string, int>> found;
  with_control<MenuItem>(state, reference, "Items", [&found](const MenuItem& menu) {
    for (const MenuItem* each : menu.children()) found.emplace_back(each->name(), each->index());
  });
  lua_createtable(state, static_cast<int>(found.size()), 0);
  lua_Integer position = 0;
  for (const auto& [name, index] : found) {
    push_words(state, name);
    push_control(state, reference.window, lua_gettop(state), index);
    lua_rawseti(state, -3, ++position);
    lua_pop(state, 1);
  }
  return 1;
}

}  // namespace

std::span<const luaL_Reg> menu_methods() {
  static constexpr std::array methods{luaL_Reg{"Items", items}};
  return methods;
}

}  // namespace tarnmill
