#include "script/lua_dialogs.h"

#include <array>
#include <string_view>
#include <variant>

#include "script/lua_value.h"
#include "script/message_words.h"
#include "script/session.h"

namespace tarnmill {

namespace {

using Kind = DialogShown::Kind;

constexpr const char* kept_records = "tarnmill.dialogs";
constexpr const char* times_forgotten = "forgotten";

std::string_view word_of(Kind kind) {
  static constexpr std::array<std::string_view, 7> words{"message", "input", "open",   "save",
                                                         "color",   "font",  "printer"};
  return words.at(static_cast<std::size_t>(kind));
}

/// Writes the fields of the table on top of the stack.
class RecordWriter {
 public:
  explicit RecordWriter(lua_State* state) : state_{state} {}

  void words(const char* name, std::string_view value) const {
    push_words(state_, value);
    lua_setfield(state_, -2, name);
  }
  void text(const char* name, const Text& value) const {
    push_text(state_, value);
    lua_setfield(state_, -2, name);
  }
  void number(const char* name, double value) const {
    push_number(state_, value);
    lua_setfield(state_, -2, name);
  }
  void truth(const char* name, bool value) const {
    lua_pushboolean(state_, value ? 1 : 0);
    lua_setfield(state_, -2, name);
  }

 private:
  lua_State* state_;
};

struct PushAnswer {
  lua_State* state;

  void operator()(std::monostate /*cancelled*/) const { lua_pushboolean(state, 0); }
  void operator()(MessageResult button) const { push_words(state, word_of(button)); }
  void operator()(const Text& text) const { push_text(state, text); }
  void operator()(Color color) const { lua_pushinteger(state, color); }
  void operator()(const FontChoice& choice) const {
    lua_newtable(state);
    const RecordWriter table{state};
    table.text("FontName", choice.font.name);
    table.number("FontSize", choice.font.size);
    table.truth("FontBold", choice.font.bold);
    table.truth("FontItalic", choice.font.italic);
    table.truth("FontUnderline", choice.font.underline);
    table.truth("FontStrikethru", choice.font.strike_through);
    table.number("Color", choice.color);
  }

 private:
  static std::string_view word_of(MessageResult button) { return tarnmill::word_of(button); }
};

void push_record(lua_State* state, const DialogShown& dialog) {
  lua_newtable(state);
  const RecordWriter table{state};
  table.words("kind", word_of(dialog.kind));
  table.text("title", dialog.title);
  table.text("text", dialog.text);
  if (dialog.kind == Kind::message) {
    table.words("icon", word_of(dialog.icon));
    table.words("buttons", word_of(dialog.buttons));
    table.number("default", dialog.default_button);
  } else if (dialog.kind != Kind::input) {
    table.number("flags", dialog.flags);
  }
  if (dialog.kind == Kind::open || dialog.kind == Kind::save) {
    table.text("filter", dialog.filter);
    table.number("filterIndex", dialog.filter_index);
  }
  std::visit(PushAnswer{state}, dialog.answer);
  lua_setfield(state, -2, "answer");
}

/// Pushes the list of the records made so far, an empty one when they were forgotten since.
void push_kept(lua_State* state, int forgotten) {
  if (lua_getfield(state, LUA_REGISTRYINDEX, kept_records) == LUA_TTABLE) {
    lua_getfield(state, -1, times_forgotten);
    const bool current = lua_tointeger(state, -1) == forgotten;
    lua_pop(state, 1);
    if (current) return;
  }
  lua_pop(state, 1);
  lua_newtable(state);
  lua_pushinteger(state, forgotten);
  lua_setfield(state, -2, times_forgotten);
  lua_pushvalue(state, -1);
  lua_setfield(state, LUA_REGISTRYINDEX, kept_records);
}

}  // namespace

void push_dialogs(lua_State* state) {
  PlayedPerson& person = Session::of(state).desk().person();
  const auto& dialogs = person.dialogs();
  push_kept(state, person.times_forgotten());
  for (auto made = lua_rawlen(state, -1); made < dialogs.size(); ++made) {
    push_record(state, dialogs[made]);
    lua_rawseti(state, -2, static_cast<lua_Integer>(made) + 1);
  }
  lua_createtable(state, static_cast<int>(dialogs.size()), 0);
  for (lua_Integer i = 1; i <= static_cast<lua_Integer>(dialogs.size()); ++i) {
    lua_rawgeti(state, -2, i);
    lua_rawseti(state, -2, i);
  }
  lua_remove(state, -2);
}

}  // namespace tarnmill
