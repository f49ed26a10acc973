#include "mathpad/rtf/font_name.h"

#include "engine/trim.h"

namespace tarnmill::rtf {

Text font_name(TextView text) {
  Text name{text};
  std::erase_if(name, [](char16_t c) { return c < 0x20 || c == u';'; });
  return Text{trimmed(name)};
}

}  // namespace tarnmill::rtf
