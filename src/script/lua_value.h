#pragma once

#include <cstdint>
#include <lua.hpp>
#include <string_view>
#include <vector>

#include "engine/text.h"
#include "engine/variant.h"

namespace tarnmill {

/// \name Values for scripts
///@{
void push_text(lua_State* state, TextView text);
void push_words(lua_State* state, std::string_view words);
/// A whole number as a Lua integer, so that it prints without ".0"; any other as a float.
void push_number(lua_State* state, double number);
/// Nothing becomes nil.
void push_value(lua_State* state, const Variant& value);
///@}

/// \name Values from scripts. Arguments are counted from 1; one of a wrong type raises a Lua error.
///@{
/// nil or nothing, a number, a text or a truth value.
[[nodiscard]] Variant value_at(lua_State* state, int index);
/// The value to assign to a member of this name. A colour may be written without a sign, as 0x8000000A.
[[nodiscard]] Variant value_for(lua_State* state, std::string_view member, int index);
/// All arguments from `first` on; a control as its path, such as "MathPad.rt1".
[[nodiscard]] std::vector<Variant> values_from(lua_State* state, int first);
/// A text; a number gives its text by NumberToText.
[[nodiscard]] Text text_at(lua_State* state, int index);
/// A number; a text is read strictly, with the fault Type-mismatch for one that is none.
[[nodiscard]] double number_at(lua_State* state, int index);
/// A number by the rounding and range of ToLong, with its fault.
[[nodiscard]] std::int32_t long_at(lua_State* state, int index);
/// A colour number, whether written as signed or unsigned.
[[nodiscard]] std::int32_t color_at(lua_State* state, int index);
/// The bytes of a string argument. They live as long as it stands on the stack.
[[nodiscard]] std::string_view bytes_at(lua_State* state, int index);
///@}

}  // namespace tarnmill
