#pragma once

namespace tarnmill {

/// What the machine's regional settings say about numbers.
struct Regional {
  char16_t decimal_separator = u'.';  ///< '.' or ','

  /// The separator of digit groups: the comma under a decimal point, the point under a decimal comma.
  [[nodiscard]] constexpr char16_t group_separator() const { return decimal_separator == u',' ? u'.' : u','; }
};

}  // namespace tarnmill
