#include <array>

#include "script/lua_methods.h"

namespace tarnmill {

namespace {

int click(lua_State* state) {
  with_control<Control>(state, self<ControlReference>(state), "Click",
                        [](Control& control) { control.press(); });
  return 0;
}

int set_focus(lua_State* state) {
  with_control<Control>(state, self<ControlReference>(state), "SetFocus",
                        [](Control& control) { control.SetFocus(); });
  return 0;
}

}  // namespace

std::span<const luaL_Reg> common_methods() {
  static constexpr std::array methods{luaL_Reg{"Click", click}, luaL_Reg{"SetFocus", set_focus}};
  return methods;
}

}  // namespace tarnmill
