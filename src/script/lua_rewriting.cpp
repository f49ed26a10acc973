#include <array>

#include "engine/rewriting.h"
#include "script/lua_engine.h"
#include "script/lua_table.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

template <Text (*chain)(TextView)>
int rewrite(lua_State* state) {
  push_text(state, chain(text_at(state, 1)));
  return 1;
}

}  // namespace

void set_rewriting_global(lua_State* state) {
  static constexpr std::array chains{
      luaL_Reg{"full", rewrite<Rewriting::full>}, luaL_Reg{"zam", rewrite<Rewriting::zam>},
      luaL_Reg{"cmdzam", rewrite<Rewriting::cmdzam>}, luaL_Reg{"Zamenisve", rewrite<Rewriting::Zamenisve>}};
  push_functions(state, chains);
  lua_setglobal(state, "Rewriting");
}

}  // namespace tarnmill
