#include "script/lua_clock.h"

#include <chrono>
#include <cmath>

#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

/// A field of the table at `index`, or `otherwise` when it is left out.
double field(lua_State* state, int index, const char* name, double otherwise) {
  lua_getfield(state, index, name);
  const double value = luaL_optnumber(state, -1, otherwise);
  lua_pop(state, 1);
  return value;
}

void set_field(lua_State* state, const char* name, double value) {
  push_number(state, value);
  lua_setfield(state, -2, name);
}

std::chrono::sys_days days_of(const DateTime& date) {
  return std::chrono::year{date.year} / date.month / date.day;
}

/// Sunday is 1.
int weekday_of(const DateTime& date) {
  return static_cast<int>(std::chrono::weekday{days_of(date)}.c_encoding()) + 1;
}

int day_of_year(const DateTime& date) {
  const std::chrono::sys_days last_of_former{std::chrono::year{date.year - 1} / 12 / 31};
  return static_cast<int>((days_of(date) - last_of_former).count());
}

}  // namespace

std::optional<FrozenClock> clock_at(lua_State* state, int index) {
  if (lua_isnil(state, index)) return std::nullopt;
  luaL_checktype(state, index, LUA_TTABLE);
  const DateTime today = Session::of(state).desk().now();
  constexpr double noon = 12;
  DateTime date;
  date.year = static_cast<int>(field(state, index, "year", today.year));
  date.month = static_cast<int>(field(state, index, "month", today.month));
  date.day = static_cast<int>(field(state, index, "day", today.day));
  date.hour = static_cast<int>(field(state, index, "hour", noon));
  date.minute = static_cast<int>(field(state, index, "min", 0));
  const double seconds = field(state, index, "sec", 0);
  date.second = static_cast<int>(seconds);
  date.weekday = weekday_of(date);
  return FrozenClock{date, seconds - std::trunc(seconds)};
}

void push_clock(lua_State* state, const std::optional<FrozenClock>& clock) {
  if (!clock) {
    lua_pushnil(state);
    return;
  }
  const DateTime& date = clock->date;
  lua_newtable(state);
  set_field(state, "year", date.year);
  set_field(state, "month", date.month);
  set_field(state, "day", date.day);
  set_field(state, "hour", date.hour);
  set_field(state, "min", date.minute);
  set_field(state, "sec", date.second + clock->fraction);
  set_field(state, "wday", date.weekday);
  set_field(state, "yday", day_of_year(date));
  lua_pushboolean(state, 0);
  lua_setfield(state, -2, "isdst");
}

}  // namespace tarnmill
