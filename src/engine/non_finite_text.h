#pragma once

#include <algorithm>
#include <array>

#include "engine/text.h"

namespace tarnmill {

/// Whether a text is one of those by which a number that is not finite reads.
[[nodiscard]] inline bool is_non_finite_text(TextView text) {
  static constexpr std::array<TextView, 5> words{u"-1.#INF", u"1.#INF", u"1.#IND", u"-1.#IND", u"1.#QNAN"};
  return std::ranges::find(words, text) != words.end();
}

}  // namespace tarnmill
