#include "script/lua_sheet.h"

#include <string>
#include <vector>

#include "desktop/picture_sheet.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

using desktop::SheetLayout;
using desktop::SheetPicture;

constexpr int default_side = 400;
/// The sheet itself stays within what an image can be.
constexpr int most_columns = 100;
constexpr int most_pixels = 4096;

int count_at(lua_State* state, int index, int otherwise, int most) {
  const lua_Integer count = luaL_optinteger(state, index, otherwise);
  luaL_argcheck(state, count >= 1 && count <= most, index, "a count out of range");
  return static_cast<int>(count);
}

/// The table of a file and a caption on top of the stack.
SheetPicture picture_on_top(lua_State* state) {
  luaL_argcheck(state, lua_istable(state, -1), 2, "tables of a file and a caption expected");
  lua_rawgeti(state, -1, 1);
  lua_rawgeti(state, -2, 2);
  SheetPicture picture{text_at(state, -2), text_at(state, -1)};
  lua_pop(state, 2);
  return picture;
}

std::vector<SheetPicture> pictures_at(lua_State* state, int index) {
  luaL_checktype(state, index, LUA_TTABLE);
  std::vector<SheetPicture> pictures;
  for (lua_Integer i = 1; lua_rawgeti(state, index, i) != LUA_TNIL; ++i) {
    pictures.push_back(picture_on_top(state));
    lua_pop(state, 1);
  }
  lua_pop(state, 1);
  return pictures;
}

}  // namespace

int sheet(lua_State* state) {
  const std::filesystem::path path{text_at(state, 1)};
  const std::vector<SheetPicture> pictures = pictures_at(state, 2);
  const SheetLayout layout{count_at(state, 3, 1, most_columns),
                           count_at(state, 4, default_side, most_pixels)};
  if (!desktop::save_picture_sheet(path, pictures, layout)) {
    luaL_error(state, "the sheet can't be written to %s", path.c_str());
  }
  return 0;
}

}  // namespace tarnmill
