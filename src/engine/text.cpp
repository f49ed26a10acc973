#include "engine/text.h"

namespace tarnmill {

Text ReplaceAll(TextView text, TextView find, TextView replacement) {
  Text result;
  if (find.empty()) return result.assign(text);
  std::size_t from = 0;
  for (std::size_t at = text.find(find); at != TextView::npos; at = text.find(find, from)) {
    result.append(text.substr(from, at - from)).append(replacement);
    from = at + find.size();
  }
  return result.append(text.substr(from));
}

std::int32_t FindText(TextView text, TextView find) {
  if (text.empty()) return 0;
  const std::size_t at = text.find(find);
  return at == TextView::npos ? 0 : static_cast<std::int32_t>(at + 1);
}

}  // namespace tarnmill
