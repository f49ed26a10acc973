#include <array>

#include "engine/number_text.h"
#include "engine/power.h"
#include "engine/random.h"
#include "engine/rounding.h"
#include "engine/text.h"
#include "mathpad/binary_text.h"
#include "script/lua_engine.h"
#include "script/lua_table.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

const Regional& regional(lua_State* state) { return Session::of(state).desk().regional(); }

/// Pushes the number that a computation gives; its fault becomes a Lua error.
template <class Computation>
int give_number(lua_State* state, Computation&& computation) {
  double number = 0;
  Session::compute(state, [&] { number = static_cast<double>(computation()); });
  push_number(state, number);
  return 1;
}

int number_from_text(lua_State* state) {
  const Text text = text_at(state, 1);
  return give_number(state, [&] { return NumberFromText(text); });
}

int is_numeric_text(lua_State* state) {
  lua_pushboolean(state, IsNumericText(text_at(state, 1), regional(state)) ? 1 : 0);
  return 1;
}

int number_from_text_strict(lua_State* state) {
  const Text text = text_at(state, 1);
  return give_number(state, [&] { return NumberFromTextStrict(text, regional(state)); });
}

int number_to_text(lua_State* state) {
  push_text(state, NumberToText(number_at(state, 1), regional(state)));
  return 1;
}

int padded_number_text(lua_State* state) {
  push_text(state, PaddedNumberText(number_at(state, 1)));
  return 1;
}

int round_to(lua_State* state) {
  const double number = number_at(state, 1);
  const std::int32_t digits = long_at(state, 2);
  return give_number(state, [&] { return RoundTo(number, digits); });
}

int dec_to_bin(lua_State* state) {
  const double number = number_at(state, 1);
  Text digits;
  Session::compute(state, [&] { digits = DecToBin(ToInteger(number)); });
  push_text(state, digits);
  return 1;
}

int to_integer(lua_State* state) {
  const double number = number_at(state, 1);
  return give_number(state, [&] { return ToInteger(number); });
}

int to_long(lua_State* state) {
  const double number = number_at(state, 1);
  return give_number(state, [&] { return ToLong(number); });
}

int floor_of(lua_State* state) {
  const double number = number_at(state, 1);
  return give_number(state, [&] { return FloorOf(number); });
}

int trunc_of(lua_State* state) {
  const double number = number_at(state, 1);
  return give_number(state, [&] { return TruncOf(number); });
}

int sign_of(lua_State* state) {
  const double number = number_at(state, 1);
  return give_number(state, [&] { return SignOf(number); });
}

int power(lua_State* state) {
  const double base = number_at(state, 1);
  const double exponent = number_at(state, 2);
  return give_number(state, [&] { return Power(base, exponent); });
}

/// Without an argument it gives the next number, as with one above 0.
int next_random(lua_State* state) {
  const double x = lua_isnoneornil(state, 1) ? 1 : number_at(state, 1);
  return give_number(state, [&] { return Session::of(state).bench().random().NextRandom(x); });
}

int seconds_since_midnight(lua_State* state) {
  return give_number(state, [&] { return Session::of(state).desk().seconds_since_midnight(); });
}

int replace_all(lua_State* state) {
  push_text(state, ReplaceAll(text_at(state, 1), text_at(state, 2), text_at(state, 3)));
  return 1;
}

int find_text(lua_State* state) {
  lua_pushinteger(state, FindText(text_at(state, 1), text_at(state, 2)));
  return 1;
}

}  // namespace

void set_conversion_globals(lua_State* state) {
  static constexpr std::array functions{luaL_Reg{"NumberFromText", number_from_text},
                                        luaL_Reg{"IsNumericText", is_numeric_text},
                                        luaL_Reg{"NumberFromTextStrict", number_from_text_strict},
                                        luaL_Reg{"NumberToText", number_to_text},
                                        luaL_Reg{"PaddedNumberText", padded_number_text},
                                        luaL_Reg{"RoundTo", round_to},
                                        luaL_Reg{"DecToBin", dec_to_bin},
                                        luaL_Reg{"ToInteger", to_integer},
                                        luaL_Reg{"ToLong", to_long},
                                        luaL_Reg{"FloorOf", floor_of},
                                        luaL_Reg{"TruncOf", trunc_of},
                                        luaL_Reg{"SignOf", sign_of},
                                        luaL_Reg{"Power", power},
                                        luaL_Reg{"NextRandom", next_random},
                                        luaL_Reg{"SecondsSinceMidnight", seconds_since_midnight},
                                        luaL_Reg{"ReplaceAll", replace_all},
                                        luaL_Reg{"FindText", find_text}};
  set_globals(state, functions);
}

}  // namespace tarnmill
