#include "engine/trim.h"

namespace tarnmill {

TextView trimmed(TextView text, TextView characters) {
  const std::size_t first = text.find_first_not_of(characters);
  if (first == TextView::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace tarnmill
