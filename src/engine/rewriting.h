#pragma once

#include <span>

#include "engine/text.h"

namespace tarnmill {

/// One literal replacement of a chain.
struct Rule {
  TextView find;
  TextView replacement;

  friend constexpr bool operator==(const Rule&, const Rule&) = default;
};

/// The chains of literal replacements between the loose notation that people type and the notations of the
/// two evaluators. Each rule runs over the whole text before the next one; the order carries meaning.
class Rewriting {
 public:
  /// The full chain of 139 rules: one variable x, bracketed lower-case names, names for fractional powers,
  /// and brackets round every x.
  static Text full(TextView text);

  /// The calculus window's chain: the full one without the brackets round x.
  static Text zam(TextView text);

  /// The analysis window's short chain of 121 rules.
  static Text cmdzam(TextView text);

  /// The graph window's chain from powers of K to function names, once over the text.
  static Text Zamenisve(TextView text);

  /// The rules of each chain in order.
  static std::span<const Rule> full_rules();
  static std::span<const Rule> zam_rules();
  static std::span<const Rule> cmdzam_rules();
  static std::span<const Rule> Zamenisve_rules();

  /// Applies a list of rules one after the other, each with ReplaceAll.
  static Text apply(TextView text, std::span<const Rule> rules);
};

}  // namespace tarnmill
