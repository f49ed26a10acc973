#include "app/script_options.h"

namespace tarnmill {

std::optional<ScriptOptions> read_script_options(const std::vector<std::string>& words) {
  ScriptOptions options;
  if (words.empty()) return std::nullopt;
  options.interpreter = words.front();
  auto word = words.begin() + 1;
  for (; word != words.end() && word->starts_with('-') && *word != "-"; ++word) {
    if (*word == "--help") {
      options.help = true;
      return options;
    }
    if (*word == "--windows" || *word == "--offscreen") {
      options.windows = *word == "--windows";
    } else if (*word == "--folder" && word + 1 != words.end()) {
      options.folder = *++word;
    } else {
      return std::nullopt;
    }
  }
  if (word == words.end()) return std::nullopt;
  options.file = *word;
  options.arguments.assign(word + 1, words.end());
  return options;
}

}  // namespace tarnmill
