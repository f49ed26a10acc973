#include "script/lua_control.h"

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "forms/control_array.h"
#include "forms/procedure.h"
#include "forms/rich_text_box.h"
#include "script/lua_events.h"
#include "script/lua_methods.h"
#include "script/lua_parts.h"
#include "script/lua_table.h"
#include "script/lua_value.h"

namespace tarnmill {

namespace {

/// Upvalues of the functions that read a member of a control: methods by name, indexed properties by name.
constexpr int methods_upvalue = lua_upvalueindex(1);
constexpr int indexed_upvalue = lua_upvalueindex(2);

struct Looked {
  PropertyBase* property = nullptr;
  EventBase* event = nullptr;
  Variant value;
};

Looked look_up(Control* control, std::string_view name) {
  Looked looked;
  if (control == nullptr) return looked;
  looked.property = control->find_property(name);
  if (looked.property != nullptr) {
    looked.value = looked.property->read();
  } else {
    looked.event = control->find_event(name);
  }
  return looked;
}

/// Pushes the function of this name, if the kinds of controls have one.
bool push_function(lua_State* state, int name_index) {
  lua_pushvalue(state, name_index);
  if (lua_rawget(state, methods_upvalue) != LUA_TNIL) return true;
  lua_pop(state, 1);
  lua_pushvalue(state, name_index);
  if (lua_rawget(state, indexed_upvalue) == LUA_TNIL) return false;
  // The list holds plain functions; each control gets its own closure of it.
  const lua_CFunction read = lua_tocfunction(state, -1);
  lua_pushvalue(state, 1);
  lua_pushcclosure(state, read, 1);
  return true;
}

int control_index(lua_State* state) {
  const auto& reference = self<ControlReference>(state);
  const std::string_view name = bytes_at(state, 2);
  if (push_function(state, 2)) return 1;
  Session& session = Session::of(state);
  Looked looked;
  const bool runs_on =
      session.call(state, [&] { looked = look_up(resolve(session.bench(), reference), name); });
  if (!runs_on) return 0;
  if (looked.property != nullptr) {
    push_value(state, looked.value);
    return 1;
  }
  if (looked.event != nullptr) {
    push_event_method(state, name.data());
    return 1;
  }
  return luaL_error(state, "%s has no property or event %s", path_of(reference).c_str(), name.data());
}

int control_newindex(lua_State* state) {
  const auto& reference = self<ControlReference>(state);
  const std::string_view name = bytes_at(state, 2);
  const Variant value = value_for(state, name, 3);
  Session& session = Session::of(state);
  bool missing = false;
  session.call(state, [&] {
    Control* control = resolve(session.bench(), reference);
    PropertyBase* property = control == nullptr ? nullptr : control->find_property(name);
    missing = property == nullptr;
    if (!missing) property->write(value);
  });
  if (missing) luaL_error(state, "%s has no property %s", path_of(reference).c_str(), name.data());
  return 0;
}

/// A call of the control itself runs it as a click does, or the procedure whose name it hides. An editor has
/// nothing to run and gives itself, so that a name that stands for it may also be called.
int control_call(lua_State* state) {
  const auto& reference = self<ControlReference>(state);
  const std::vector<Variant> arguments = values_from(state, first_argument(state, 2));
  Session& session = Session::of(state);
  Variant result;
  bool is_editor = false;
  session.call(state, [&] {
    const Procedure* beneath = session.bench().window(reference.window).find_procedure(reference.name);
    if (beneath != nullptr && beneath->arity() <= arguments.size()) {
      result = (*beneath)(arguments);
    } else if (Control* control = resolve(session.bench(), reference)) {
      is_editor = dynamic_cast<const RichTextBox*>(control) != nullptr;
      if (!is_editor) control->press();
    }
  });
  if (is_editor) {
    lua_pushvalue(state, 1);
  } else {
    push_value(state, result);
  }
  return 1;
}

int control_to_text(lua_State* state) {
  push_words(state, path_of(self<ControlReference>(state)));
  return 1;
}

ControlArrayBase* resolve_array(Session& session, const ArrayReference& reference) {
  const Window::Member* member = session.bench().window(reference.window).find(reference.name);
  if (member == nullptr || !std::holds_alternative<ControlArrayBase*>(*member)) return nullptr;
  return std::get<ControlArrayBase*>(*member);
}

/// Pushes the element and keeps it for the next use.
void push_new_element(lua_State* state, const ArrayReference& array, int index) {
  lua_getiuservalue(state, 1, 2);
  lua_getiuservalue(state, 1, 1);
  push_control(state, array.window, -1, index);
  lua_replace(state, -2);
  lua_pushvalue(state, -1);
  lua_rawseti(state, -3, index);
  lua_replace(state, -2);
}

int array_index(lua_State* state) {
  const auto& reference = self<ArrayReference>(state);
  const auto index = static_cast<int>(luaL_checkinteger(state, 2));
  lua_getiuservalue(state, 1, 2);
  if (lua_rawgeti(state, -1, index) != LUA_TNIL) return 1;
  lua_settop(state, 2);
  Session& session = Session::of(state);
  int first = 0;
  int last = -1;
  const bool runs_on = session.call(state, [&] {
    if (const ControlArrayBase* array = resolve_array(session, reference)) {
      first = array->first();
      last = array->last();
    }
  });
  if (!runs_on) return 0;
  if (index < first || index > last) {
    const std::string window{reference.window};
    return luaL_error(state, "%s.%s has no element %d, only %d to %d", window.c_str(), reference.name.data(),
                      index, first, last);
  }
  push_new_element(state, reference, index);
  return 1;
}

/// A procedure of the array's name is run; otherwise an element may be named by a call as in other languages:
/// Number(7).
int array_call(lua_State* state) {
  const auto& reference = self<ArrayReference>(state);
  const std::vector<Variant> arguments = values_from(state, first_argument(state, 2));
  Session& session = Session::of(state);
  bool is_procedure = false;
  session.call(state, [&] {
    const Procedure* procedure = session.bench().window(reference.window).find_procedure(reference.name);
    is_procedure = procedure != nullptr;
    if (is_procedure) (*procedure)(arguments);
  });
  return is_procedure ? 0 : array_index(state);
}

int array_length(lua_State* state) {
  const auto& reference = self<ArrayReference>(state);
  Session& session = Session::of(state);
  int size = 0;
  session.call(state, [&] {
    if (const ControlArrayBase* array = resolve_array(session, reference)) size = array->size();
  });
  lua_pushinteger(state, size);
  return 1;
}

int array_to_text(lua_State* state) {
  const auto& reference = self<ArrayReference>(state);
  std::string path{reference.window};
  push_words(state, path.append(".").append(reference.name));
  return 1;
}

int array_newindex(lua_State* state) {
  return luaL_error(state, "an element of a control array can't be replaced");
}

/// Pushes one table of the functions of several lists.
void push_all(lua_State* state, std::initializer_list<std::span<const luaL_Reg>> lists) {
  lua_newtable(state);
  for (const auto list : lists) {
    for (const luaL_Reg& each : list) {
      lua_pushcfunction(state, each.func);
      lua_setfield(state, -2, each.name);
    }
  }
}

}  // namespace

void register_controls(lua_State* state) {
  register_parts(state);
  static constexpr std::array control_meta{luaL_Reg{"__newindex", control_newindex},
                                           luaL_Reg{"__call", control_call},
                                           luaL_Reg{"__tostring", control_to_text}};
  push_new_type(state, ControlReference::type, control_meta);
  push_all(state, {common_methods(), list_methods(), menu_methods(), surface_methods()});
  push_all(state, {indexed_properties(), grid_and_bar_properties(), rich_text_functions()});
  lua_pushcclosure(state, control_index, 2);
  lua_setfield(state, -2, "__index");
  lua_pop(state, 1);

  static constexpr std::array array_meta{
      luaL_Reg{"__index", array_index}, luaL_Reg{"__newindex", array_newindex},
      luaL_Reg{"__call", array_call}, luaL_Reg{"__len", array_length}, luaL_Reg{"__tostring", array_to_text}};
  push_new_type(state, ArrayReference::type, array_meta);
  lua_pop(state, 1);
}

}  // namespace tarnmill
