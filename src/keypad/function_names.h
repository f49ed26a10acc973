#pragma once

#include <vector>

#include "engine/text.h"

namespace tarnmill {

/// The names that the function list of the keypad offers, in its order: those of graph mode, with the
/// factorial, and pi as the word that evaluating replaces.
[[nodiscard]] std::vector<Text> keypad_function_names();

}  // namespace tarnmill
