#include "script/lua_window_methods.h"

#include <QPixmap>
#include <QWidget>
#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "desktop/picture_data.h"
#include "forms/window.h"
#include "script/lua_reference.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

bool with_window(lua_State* state, const std::function<void(Window&)>& use) {
  const auto& reference = self<WindowReference>(state);
  Session& session = Session::of(state);
  return session.call(state, [&] { use(session.bench().window(reference.name)); });
}

int show(lua_State* state) {
  with_window(state, [](Window& window) { window.Show(); });
  return 0;
}

int hide(lua_State* state) {
  with_window(state, [](Window& window) { window.Hide(); });
  return 0;
}

/// The window may refuse, and the program ends when a person could see nothing of it any more.
int unload(lua_State* state) {
  const auto& reference = self<WindowReference>(state);
  Session& session = Session::of(state);
  session.call(state, [&] {
    if (Window* window = session.bench().find_window(reference.name)) window->close();
  });
  return 0;
}

int controls(lua_State* state) {
  std::vector<std::string> names;
  with_window(state, [&](const Window& window) { names = window.control_names(); });
  lua_createtable(state, static_cast<int>(names.size()), 0);
  lua_Integer position = 0;
  for (const std::string& each : names) {
    push_words(state, each);
    lua_rawseti(state, -2, ++position);
  }
  return 1;
}

int screenshot(lua_State* state) {
  const std::filesystem::path path{bytes_at(state, 2)};
  Session& session = Session::of(state);
  bool saved = false;
  const bool runs_on = with_window(state, [&](Window& window) {
    saved = desktop::save_image(session.desk().view(window).grab().toImage(), path, "PNG");
  });
  if (runs_on && !saved) luaL_error(state, "the picture can't be written to %s", lua_tostring(state, 2));
  return 0;
}

}  // namespace

std::span<const luaL_Reg> window_methods() {
  static constexpr std::array methods{luaL_Reg{"Show", show}, luaL_Reg{"Hide", hide},
                                      luaL_Reg{"Unload", unload}, luaL_Reg{"Controls", controls},
                                      luaL_Reg{"Screenshot", screenshot}};
  return methods;
}

}  // namespace tarnmill
