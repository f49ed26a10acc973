#include "engine/rewriting.h"

namespace tarnmill {

Text Rewriting::full(TextView text) { return apply(text, full_rules()); }

Text Rewriting::zam(TextView text) { return apply(text, zam_rules()); }

Text Rewriting::cmdzam(TextView text) { return apply(text, cmdzam_rules()); }

Text Rewriting::Zamenisve(TextView text) { return apply(text, Zamenisve_rules()); }

Text Rewriting::apply(TextView text, std::span<const Rule> rules) {
  Text result{text};
  for (const Rule& rule : rules) result = ReplaceAll(result, rule.find, rule.replacement);
  return result;
}

}  // namespace tarnmill
