#include <array>

#include "script/lua_answers.h"
#include "script/lua_app_members.h"
#include "script/lua_sheet.h"
#include "script/session.h"

namespace tarnmill {

namespace {

int answer(lua_State* state) {
  for (int i = 1; i <= lua_gettop(state); ++i) Session::of(state).desk().answer(answer_at(state, i));
  return 0;
}

int forget(lua_State* state) {
  Session::of(state).desk().forget();
  return 0;
}

int restart(lua_State* state) {
  Session::of(state).restart(state);
  return 0;
}

int tick(lua_State* state) {
  const double milliseconds = luaL_checknumber(state, 1);
  constexpr double longest = 1e9;
  luaL_argcheck(state, milliseconds >= 0, 1, "time passes forward only");
  luaL_argcheck(state, milliseconds <= longest, 1, "no more than 1E+09 milliseconds at once");
  Session& session = Session::of(state);
  session.call(state, [&] { session.desk().tick(milliseconds); });
  return 0;
}

int do_events(lua_State* state) {
  Session& session = Session::of(state);
  session.call(state, [&] { session.desk().turn(); });
  return 0;
}

}  // namespace

std::span<const luaL_Reg> app_functions() {
  static constexpr std::array functions{luaL_Reg{"answer", answer},      luaL_Reg{"forget", forget},
                                        luaL_Reg{"restart", restart},    luaL_Reg{"tick", tick},
                                        luaL_Reg{"doEvents", do_events}, luaL_Reg{"sheet", sheet}};
  return functions;
}

}  // namespace tarnmill
