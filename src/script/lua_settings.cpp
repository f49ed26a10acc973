#include <array>

#include "script/lua_engine.h"
#include "script/lua_table.h"
#include "script/lua_value.h"
#include "script/session.h"
#include "shell/registry.h"

namespace tarnmill {

namespace {

std::int64_t hive_at(lua_State* state, int index) {
  return luaL_optinteger(state, index, static_cast<lua_Integer>(current_user_hive));
}

int get_registry_setting(lua_State* state) {
  push_value(state,
             GetRegistrySetting(Session::of(state).desk().settings(), text_at(state, 1), text_at(state, 2),
                                text_at(state, 3), text_at(state, 4), value_at(state, 5), hive_at(state, 6)));
  return 1;
}

int save_registry_setting(lua_State* state) {
  const bool saved =
      SaveRegistrySetting(Session::of(state).desk().settings(), text_at(state, 1), text_at(state, 2),
                          text_at(state, 3), text_at(state, 4), text_at(state, 5), hive_at(state, 6));
  lua_pushboolean(state, saved ? 1 : 0);
  return 1;
}

}  // namespace

void set_settings_globals(lua_State* state) {
  static constexpr std::array functions{luaL_Reg{"GetRegistrySetting", get_registry_setting},
                                        luaL_Reg{"SaveRegistrySetting", save_registry_setting}};
  set_globals(state, functions);
}

}  // namespace tarnmill
