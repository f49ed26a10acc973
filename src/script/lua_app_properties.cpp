#include <array>
#include <filesystem>
#include <string_view>

#include "script/lua_app_members.h"
#include "script/lua_clock.h"
#include "script/lua_dialogs.h"
#include "script/lua_reference.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

ScriptedDesk& desk(lua_State* state) { return Session::of(state).desk(); }
Workbench& bench(lua_State* state) { return Session::of(state).bench(); }

void push_ended(lua_State* state) { lua_pushboolean(state, bench(state).ended() ? 1 : 0); }

void push_fault(lua_State* state) {
  if (const auto fault = bench(state).fault()) {
    lua_pushinteger(state, *fault);
  } else {
    lua_pushnil(state);
  }
}

void push_clipboard(lua_State* state) { push_text(state, desk(state).clipboard_text()); }
void set_clipboard(lua_State* state, int index) { desk(state).set_clipboard_text(text_at(state, index)); }

void push_clipboard_has_picture(lua_State* state) {
  lua_pushboolean(state, desk(state).clipboard_has_picture() ? 1 : 0);
}

void push_frozen_clock(lua_State* state) { push_clock(state, desk(state).frozen_clock()); }
void set_frozen_clock(lua_State* state, int index) { desk(state).freeze_clock(clock_at(state, index)); }

void push_decimal_separator(lua_State* state) {
  push_text(state, TextView{&desk(state).regional().decimal_separator, 1});
}
void set_decimal_separator(lua_State* state, int index) {
  const std::string_view separator = bytes_at(state, index);
  luaL_argcheck(state, separator == "." || separator == ",", index, "\".\" or \",\" expected");
  desk(state).decimal_separator(separator == "," ? u',' : u'.');
}

void push_folder(lua_State* state) { push_words(state, desk(state).folder().string()); }

void push_mouse_pointer(lua_State* state) { lua_pushinteger(state, bench(state).MousePointer()); }

void push_focus(lua_State* state) {
  if (Control* control = bench(state).focus()) {
    push_words(state, path_of(*control));
  } else {
    lua_pushnil(state);
  }
}

void push_printer(lua_State* state) {
  if (const auto& file = desk(state).printer()) {
    push_words(state, file->string());
  } else {
    lua_pushnil(state);
  }
}
void set_printer(lua_State* state, int index) {
  if (lua_isnil(state, index)) {
    desk(state).printer(std::nullopt);
  } else {
    desk(state).printer(std::filesystem::path{text_at(state, index)});
  }
}

void push_opened(lua_State* state) {
  lua_newtable(state);
  lua_Integer position = 0;
  for (const Text& each : desk(state).opened()) {
    push_text(state, each);
    lua_rawseti(state, -2, ++position);
  }
}

void push_on_yield(lua_State* state) { Session::of(state).push_on_yield(state); }
void set_on_yield(lua_State* state, int index) {
  if (!lua_isnil(state, index)) luaL_checktype(state, index, LUA_TFUNCTION);
  lua_pushvalue(state, index);
  Session::of(state).set_on_yield(state);
}

}  // namespace

std::span<const AppProperty> app_properties() {
  static constexpr std::array properties{
      AppProperty{"dialogs", push_dialogs},
      AppProperty{"ended", push_ended},
      AppProperty{"fault", push_fault},
      AppProperty{"clipboard", push_clipboard, set_clipboard},
      AppProperty{"clipboardHasPicture", push_clipboard_has_picture},
      AppProperty{"clock", push_frozen_clock, set_frozen_clock},
      AppProperty{"decimalSeparator", push_decimal_separator, set_decimal_separator},
      AppProperty{"folder", push_folder},
      AppProperty{"mousePointer", push_mouse_pointer},
      AppProperty{"focus", push_focus},
      AppProperty{"printer", push_printer, set_printer},
      AppProperty{"opened", push_opened},
      AppProperty{"onYield", push_on_yield, set_on_yield},
  };
  return properties;
}

}  // namespace tarnmill
