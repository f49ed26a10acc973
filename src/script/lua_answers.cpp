#include "script/lua_answers.h"

#include <optional>
#include <string_view>

#include "script/lua_value.h"

namespace tarnmill {

namespace {

bool truth_on_top(lua_State* state) {
  luaL_checktype(state, -1, LUA_TBOOLEAN);
  return lua_toboolean(state, -1) != 0;
}

/// Takes the field whose key is at -2 and whose value is at -1.
void take_font_field(lua_State* state, FontAnswer& font) {
  luaL_checktype(state, -2, LUA_TSTRING);
  const std::string_view name = bytes_at(state, -2);
  if (name == "FontName") {
    font.name = from_utf8(bytes_at(state, -1));
  } else if (name == "FontSize") {
    font.size = luaL_checknumber(state, -1);
  } else if (name == "FontBold") {
    font.bold = truth_on_top(state);
  } else if (name == "FontItalic") {
    font.italic = truth_on_top(state);
  } else if (name == "FontUnderline") {
    font.underline = truth_on_top(state);
  } else if (name == "FontStrikethru") {
    font.strike_through = truth_on_top(state);
  } else if (name == "Color") {
    font.color = color_at(state, -1);
  } else {
    luaL_error(state, "a font dialog has no %s", name.data());
  }
}

FontAnswer font_at(lua_State* state, int index) {
  FontAnswer font;
  lua_pushnil(state);
  while (lua_next(state, index) != 0) {
    take_font_field(state, font);
    lua_pop(state, 1);
  }
  return font;
}

bool is_whole(lua_State* state, int index) {
  int whole = 0;
  lua_tointegerx(state, index, &whole);
  return whole != 0;
}

}  // namespace

Answer answer_at(lua_State* state, int index) {
  switch (lua_type(state, index)) {
    case LUA_TSTRING:
      return from_utf8(bytes_at(state, index));
    case LUA_TNUMBER:
      return is_whole(state, index) ? Answer{color_at(state, index)} : Answer{text_at(state, index)};
    case LUA_TTABLE:
      return font_at(state, index);
    default:
      luaL_argcheck(state, lua_isboolean(state, index) && lua_toboolean(state, index) == 0, index,
                    "an answer is a text, a number, a table for the font dialog, or false");
      return Cancelled{};
  }
}

}  // namespace tarnmill
