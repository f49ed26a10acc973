#include "script/lua_value.h"

#include <cmath>
#include <string>

#include "engine/rounding.h"
#include "script/lua_reference.h"
#include "script/session.h"

namespace tarnmill {

namespace {

/// Up to here every whole number is a Double of its own.
constexpr double greatest_exact_whole = 9007199254740992.0;

}  // namespace

void push_words(lua_State* state, std::string_view words) {
  lua_pushlstring(state, words.data(), words.size());
}

void push_text(lua_State* state, TextView text) { push_words(state, to_utf8(text)); }

void push_number(lua_State* state, double number) {
  if (std::trunc(number) == number && std::fabs(number) <= greatest_exact_whole) {
    lua_pushinteger(state, static_cast<lua_Integer>(number));
  } else {
    lua_pushnumber(state, number);
  }
}

void push_value(lua_State* state, const Variant& value) {
  // Only a conversion of texts and numbers into one another asks for the setting, and none takes place here.
  constexpr Regional any;
  if (value.is_empty()) {
    lua_pushnil(state);
  } else if (value.is_bool()) {
    lua_pushboolean(state, value.to_number(any) != 0 ? 1 : 0);
  } else if (value.is_number()) {
    push_number(state, value.to_number(any));
  } else {
    push_text(state, value.to_text(any));
  }
}

std::string_view bytes_at(lua_State* state, int index) {
  std::size_t length = 0;
  const char* bytes = luaL_checklstring(state, index, &length);
  return {bytes, length};
}

Variant value_at(lua_State* state, int index) {
  switch (lua_type(state, index)) {
    case LUA_TNONE:
    case LUA_TNIL:
      return {};
    case LUA_TBOOLEAN:
      return Variant{lua_toboolean(state, index) != 0};
    case LUA_TNUMBER:
      return Variant{static_cast<double>(lua_tonumber(state, index))};
    case LUA_TSTRING:
      return Variant{from_utf8(bytes_at(state, index))};
    default:
      luaL_typeerror(state, index, "number, string or boolean");
      return {};
  }
}

Variant value_for(lua_State* state, std::string_view member, int index) {
  const bool is_color = member.ends_with("Color") && lua_isinteger(state, index) != 0;
  const lua_Integer number = is_color ? lua_tointeger(state, index) : 0;
  const bool is_unsigned = number > INT32_MAX && number <= UINT32_MAX;
  return is_unsigned ? Variant{color_at(state, index)} : value_at(state, index);
}

std::vector<Variant> values_from(lua_State* state, int first) {
  std::vector<Variant> values;
  for (int i = first; i <= lua_gettop(state); ++i) {
    const void* control = luaL_testudata(state, i, ControlReference::type);
    if (control == nullptr) {
      values.push_back(value_at(state, i));
    } else {
      values.emplace_back(from_utf8(path_of(*static_cast<const ControlReference*>(control))));
    }
  }
  return values;
}

Text text_at(lua_State* state, int index) {
  if (lua_isnoneornil(state, index)) luaL_typeerror(state, index, "string");
  return value_at(state, index).to_text(Session::of(state).desk().regional());
}

double number_at(lua_State* state, int index) {
  if (lua_isnoneornil(state, index)) luaL_typeerror(state, index, "number");
  const Variant value = value_at(state, index);
  double number = 0;
  Session::compute(state, [&] { number = value.to_number(Session::of(state).desk().regional()); });
  return number;
}

std::int32_t long_at(lua_State* state, int index) {
  const double number = number_at(state, index);
  std::int32_t whole = 0;
  Session::compute(state, [&] { whole = ToLong(number); });
  return whole;
}

std::int32_t color_at(lua_State* state, int index) {
  const lua_Integer number = luaL_checkinteger(state, index);
  luaL_argcheck(state, number >= INT32_MIN && number <= UINT32_MAX, index, "a colour number has 32 bits");
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

}  // namespace tarnmill
