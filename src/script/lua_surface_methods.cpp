#include <array>
#include <cmath>
#include <filesystem>
#include <variant>

#include "forms/picture_box.h"
#include "script/lua_methods.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

/// Sets a field of the table on top of the stack.
void set_number(lua_State* state, const char* name, double value) {
  push_number(state, value);
  lua_setfield(state, -2, name);
}

/// Pushes an operation as a table with its name and what belongs to it.
struct PushOperation {
  lua_State* state;

  void named(const char* name) const {
    lua_newtable(state);
    lua_pushstring(state, name);
    lua_setfield(state, -2, "op");
  }
  void operator()(const PictureBox::LineDrawn& line) const {
    named("line");
    set_number(state, "x1", static_cast<double>(line.x1));
    set_number(state, "y1", static_cast<double>(line.y1));
    set_number(state, "x2", static_cast<double>(line.x2));
    set_number(state, "y2", static_cast<double>(line.y2));
    set_number(state, "color", line.color);
  }
  void operator()(const PictureBox::Cleared& /*unused*/) const { named("cls"); }
  void operator()(const PictureBox::BackColorSet& back) const {
    named("back");
    set_number(state, "color", back.color);
  }
  void operator()(const PictureBox::Printed& print) const {
    named("print");
    set_number(state, "x", static_cast<double>(print.x));
    set_number(state, "y", static_cast<double>(print.y));
    push_text(state, print.text);
    lua_setfield(state, -2, "text");
  }
};

/// The pixel at a coordinate; -1, outside, for what is no pixel of any surface.
int pixel(double coordinate) {
  constexpr double farthest = 1e6;
  return std::fabs(coordinate) <= farthest ? static_cast<int>(std::lround(coordinate)) : -1;
}

int point(lua_State* state) {
  const int x = pixel(number_at(state, 2));
  const int y = pixel(number_at(state, 3));
  Color color = 0;
  with_control<PictureBox>(state, self<ControlReference>(state), "Point",
                           [&](const PictureBox& surface) { color = surface.Point(x, y); });
  lua_pushinteger(state, color);
  return 1;
}

int record(lua_State* state) {
  const bool on = lua_toboolean(state, 2) != 0;
  with_control<PictureBox>(state, self<ControlReference>(state), "Record",
                           [on](PictureBox& surface) { surface.Record(on); });
  return 0;
}

int operations(lua_State* state) {
  std::vector<PictureBox::Operation> recorded;
  with_control<PictureBox>(state, self<ControlReference>(state), "Ops",
                           [&](const PictureBox& surface) { recorded = surface.Ops(); });
  lua_createtable(state, static_cast<int>(recorded.size()), 0);
  lua_Integer position = 0;
  for (const auto& each : recorded) {
    std::visit(PushOperation{state}, each);
    lua_rawseti(state, -2, ++position);
  }
  return 1;
}

int save(lua_State* state) {
  const std::filesystem::path path{text_at(state, 2)};
  bool saved = false;
  with_control<PictureBox>(state, self<ControlReference>(state), "Save",
                           [&](const PictureBox& surface) { saved = surface.raster().save(path); });
  if (!saved) luaL_error(state, "the picture can't be written to %s", path.c_str());
  return 0;
}

}  // namespace

std::span<const luaL_Reg> surface_methods() {
  static constexpr std::array methods{luaL_Reg{"Point", point}, luaL_Reg{"Record", record},
                                      luaL_Reg{"Ops", operations}, luaL_Reg{"Save", save}};
  return methods;
}

}  // namespace tarnmill
