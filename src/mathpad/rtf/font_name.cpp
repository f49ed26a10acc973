#include "mathpad/rtf/font_name.h"

namespace tarnmill::rtf {

Text font_name(TextView text) {
  Text name{text};
  std::erase_if(name, [](char16_t c) { return c < 0x20 || c == u';'; });
  const std::size_t first = name.find_first_not_of(u' ');
  if (first == Text::npos) return {};
  return name.substr(first, name.find_last_not_of(u' ') - first + 1);
}

}  // namespace tarnmill::rtf
