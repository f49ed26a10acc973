#pragma once

#include <span>

#include "engine/text.h"

namespace tarnmill {

/// The names that the function list of graph mode offers, in its order.
[[nodiscard]] std::span<const TextView> graph_function_names();

/// The names that the analysis and calculus windows offer: the same without the first.
[[nodiscard]] std::span<const TextView> analysis_function_names();

}  // namespace tarnmill
