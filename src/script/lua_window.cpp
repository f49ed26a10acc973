#include "script/lua_window.h"

#include <array>
#include <new>
#include <string>
#include <variant>

#include "forms/control_array.h"
#include "forms/control_field.h"
#include "forms/evaluator_field.h"
#include "forms/menu_item.h"
#include "forms/picture_box.h"
#include "script/lua_calls.h"
#include "script/lua_engine.h"
#include "script/lua_events.h"
#include "script/lua_reference.h"
#include "script/lua_table.h"
#include "script/lua_value.h"
#include "script/lua_window_methods.h"
#include "script/session.h"

namespace tarnmill {

namespace {

constexpr std::array<std::string_view, 16> window_names{
    "Form1",       "frmComplex", "frmmenu", "frmTast", "frmFunc",      "frmZoom", "frmunesit", "frmAnaliza",
    "frmIntegral", "frmTabela",  "MathPad", "frmFind", "frmPageSetup", "frmansi", "Help",      "frmAbout"};

/// What a name on a window stands for.
enum class Means { nothing, value, control, named_control, array, procedure, event, handler, evaluator };

struct Found {
  Means means = Means::nothing;
  Variant value;
  /// The own name of a control that is found under another.
  std::string_view name;
};

/// An evaluator that has not been made yet is an empty value.
Found found_field(FieldBase& field) {
  if (const auto* alias = dynamic_cast<ControlField*>(&field)) {
    return {Means::named_control, {}, alias->control().name()};
  }
  auto* evaluator = dynamic_cast<EvaluatorField*>(&field);
  if (evaluator != nullptr && evaluator->made() != nullptr) return {Means::evaluator, {}, {}};
  return {Means::value, field.read(), {}};
}

Found found_member(const Window::Member& member) {
  if (std::holds_alternative<Control*>(member)) return {Means::control, {}, {}};
  if (std::holds_alternative<ControlArrayBase*>(member)) return {Means::array, {}, {}};
  if (const auto* field = std::get_if<FieldBase*>(&member)) return found_field(**field);
  return {Means::procedure, {}, {}};
}

/// The first drawing surface of the window.
const Control* surface_of(const Window& window) {
  for (const Control* each : window.controls()) {
    if (dynamic_cast<const PictureBox*>(each) != nullptr) return each;
  }
  return nullptr;
}

Variant popup_shown(const Window& window) {
  const MenuItem* menu = window.popup_shown();
  if (menu == nullptr) return {};
  return Variant{from_utf8(menu->name())};
}

Found look_up(const Window& window, std::string_view name) {
  if (const Window::Member* member = window.find(name)) return found_member(*member);
  if (const PropertyBase* property = window.find_property(name)) return {Means::value, property->read(), {}};
  if (name == "PopupShown") return {Means::value, popup_shown(window), {}};
  if (window.find_event(name) != nullptr) return {Means::event, {}, {}};
  if (is_handler(window, name)) return {Means::handler, {}, {}};
  const Control* surface = name == "Surface" ? surface_of(window) : nullptr;
  if (surface != nullptr) return {Means::named_control, {}, surface->name()};
  return {};
}

/// Pushes what was found under the name that is argument 2.
void push_found(lua_State* state, const WindowReference& window, const Found& found) {
  const char* name = lua_tostring(state, 2);
  switch (found.means) {
    case Means::value:
      push_value(state, found.value);
      break;
    case Means::control:
      push_control(state, window.name, 2, -1);
      break;
    case Means::array:
      push_array(state, window.name, 2);
      break;
    case Means::procedure:
      push_procedure(state, window.name, name);
      break;
    case Means::event:
      push_event_method(state, name);
      break;
    case Means::handler:
      push_handler(state, window.name, name);
      break;
    case Means::evaluator:
      push_window_evaluator(state, window.name, name);
      break;
    case Means::named_control:
      push_words(state, found.name);
      push_control(state, window.name, -1, -1);
      break;
    case Means::nothing:
      luaL_error(state, "%s has no member %s", std::string{window.name}.c_str(), name);
  }
}

void require_known(lua_State* state, const WindowReference& window) {
  if (Session::of(state).bench().knows(window.name)) return;
  luaL_error(state, "this program has no window %s", std::string{window.name}.c_str());
}

/// Pushes what was kept under the name that is argument 2, and makes the window; false when nothing was kept.
bool push_kept(lua_State* state, const WindowReference& window) {
  lua_getiuservalue(state, 1, 1);
  lua_pushvalue(state, 2);
  if (lua_rawget(state, -2) == LUA_TNIL) {
    lua_settop(state, 2);
    return false;
  }
  Session& session = Session::of(state);
  session.call(state, [&] { static_cast<void>(session.bench().window(window.name)); });
  return true;
}

/// Keeps the value on top of the stack under the name that is argument 2: what a name stands for never
/// changes, except a value.
void keep(lua_State* state) {
  lua_getiuservalue(state, 1, 1);
  lua_pushvalue(state, 2);
  lua_pushvalue(state, -3);
  lua_rawset(state, -3);
  lua_pop(state, 1);
}

int window_index(lua_State* state) {
  const auto& window = self<WindowReference>(state);
  const std::string_view name = bytes_at(state, 2);
  Session& session = Session::of(state);
  require_known(state, window);
  if (name == "Loaded") {
    const bool loaded = !session.bench().ended() && session.bench().find_window(window.name) != nullptr;
    lua_pushboolean(state, loaded ? 1 : 0);
    return 1;
  }
  lua_pushvalue(state, 2);
  if (lua_rawget(state, lua_upvalueindex(1)) != LUA_TNIL) return 1;
  lua_settop(state, 2);
  if (push_kept(state, window)) return 1;
  Found found;
  const bool runs_on =
      session.call(state, [&] { found = look_up(session.bench().window(window.name), name); });
  if (!runs_on) return 0;
  push_found(state, window, found);
  if (found.means != Means::value && found.means != Means::evaluator) keep(state);
  return 1;
}

/// Shows or hides a window whose visibility is set.
void set_visible(Window& window, bool visible) {
  if (visible == window.Visible) return;
  if (visible) {
    window.Show();
  } else {
    window.Hide();
  }
}

/// Sets a state field or property; false when there is none of this name.
bool write(Window& window, std::string_view name, const Variant& value) {
  if (const Window::Member* member = window.find(name)) {
    const auto* field = std::get_if<FieldBase*>(member);
    if (field != nullptr) (*field)->write(value);
    return field != nullptr;
  }
  PropertyBase* property = window.find_property(name);
  if (property == nullptr) return false;
  if (property == &window.Visible) {
    set_visible(window, from_variant<bool>(value, window.regional()));
  } else {
    property->write(value);
  }
  return true;
}

int window_newindex(lua_State* state) {
  const auto& window = self<WindowReference>(state);
  const std::string_view name = bytes_at(state, 2);
  const Variant value = value_for(state, name, 3);
  Session& session = Session::of(state);
  require_known(state, window);
  bool written = true;
  session.call(state, [&] {
    Window& target = session.bench().window(window.name);
    written = true;
    written = write(target, name, value);
  });
  if (!written) {
    luaL_error(state, "%s has no state field or property %s that can be set",
               std::string{window.name}.c_str(), name.data());
  }
  return 0;
}

int window_to_text(lua_State* state) {
  push_words(state, self<WindowReference>(state).name);
  return 1;
}

void push_window(lua_State* state, std::string_view name) {
  void* place = lua_newuserdatauv(state, sizeof(WindowReference), 1);
  new (place) WindowReference{name};
  lua_newtable(state);
  lua_setiuservalue(state, -2, 1);
  luaL_setmetatable(state, WindowReference::type);
}

}  // namespace

void set_window_globals(lua_State* state) {
  static constexpr std::array meta{luaL_Reg{"__newindex", window_newindex},
                                   luaL_Reg{"__tostring", window_to_text}};
  push_new_type(state, WindowReference::type, meta);
  push_functions(state, window_methods());
  lua_pushcclosure(state, window_index, 1);
  lua_setfield(state, -2, "__index");
  lua_pop(state, 1);
  for (const std::string_view name : window_names) {
    push_window(state, name);
    lua_setglobal(state, name.data());
  }
}

}  // namespace tarnmill
