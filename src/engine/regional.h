#pragma once

namespace tarnmill {

/// What the machine's regional settings say about numbers.
struct Regional {
  char16_t decimal_separator = u'.';  ///< '.' or ','
};

}  // namespace tarnmill
