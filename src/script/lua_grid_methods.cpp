#include <array>

#include "forms/flex_grid.h"
#include "forms/rich_text_box.h"
#include "script/lua_methods.h"
#include "script/lua_parts.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

/// The control that an indexed property belongs to.
const ControlReference& owner(lua_State* state) {
  return *static_cast<ControlReference*>(luaL_checkudata(state, lua_upvalueindex(1), ControlReference::type));
}

/// Takes the control away that a call with a colon hands over in front of the arguments.
void drop_self(lua_State* state) {
  if (lua_isuserdata(state, 1) != 0) lua_remove(state, 1);
}

int text_matrix(lua_State* state) {
  drop_self(state);
  const int row = long_at(state, 1);
  const int column = long_at(state, 2);
  Text text;
  with_control<FlexGrid>(state, owner(state), "TextMatrix",
                         [&](const FlexGrid& grid) { text = grid.TextMatrix(row, column); });
  push_text(state, text);
  return 1;
}

int col_width(lua_State* state) {
  drop_self(state);
  const int column = long_at(state, 1);
  int width = 0;
  with_control<FlexGrid>(state, owner(state), "ColWidth",
                         [&](const FlexGrid& grid) { width = grid.ColWidth(column); });
  lua_pushinteger(state, width);
  return 1;
}

int find(lua_State* state) {
  drop_self(state);
  const Text text = text_at(state, 1);
  const int start = lua_isnoneornil(state, 2) ? 0 : long_at(state, 2);
  const int options = lua_isnoneornil(state, 4) ? 0 : long_at(state, 4);
  int found = -1;
  with_control<RichTextBox>(state, owner(state), "Find",
                            [&](RichTextBox& box) { found = box.Find(text, start, options); });
  lua_pushinteger(state, found);
  return 1;
}

/// The file of the first argument, in the format of the second.
int exchange_file(lua_State* state, const char* method,
                  void (RichTextBox::*exchange)(const std::filesystem::path&, RichTextBox::Format)) {
  drop_self(state);
  const std::filesystem::path path{bytes_at(state, 1)};
  const bool plain = !lua_isnoneornil(state, 2) && long_at(state, 2) == RichTextBox::rtfText;
  with_control<RichTextBox>(state, owner(state), method, [&](RichTextBox& box) {
    (box.*exchange)(path, plain ? RichTextBox::rtfText : RichTextBox::rtfRTF);
  });
  return 0;
}

int load_file(lua_State* state) { return exchange_file(state, "LoadFile", &RichTextBox::LoadFile); }

int save_file(lua_State* state) { return exchange_file(state, "SaveFile", &RichTextBox::SaveFile); }

}  // namespace

std::span<const luaL_Reg> rich_text_functions() {
  static constexpr std::array functions{luaL_Reg{"Find", find}, luaL_Reg{"LoadFile", load_file},
                                        luaL_Reg{"SaveFile", save_file}};
  return functions;
}

std::span<const luaL_Reg> grid_and_bar_properties() {
  static constexpr std::array properties{luaL_Reg{"TextMatrix", text_matrix}, luaL_Reg{"ColWidth", col_width},
                                         luaL_Reg{"Buttons", push_toolbar_button},
                                         luaL_Reg{"Panels", push_status_panel}};
  return properties;
}

}  // namespace tarnmill
