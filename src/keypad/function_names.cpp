#include "keypad/function_names.h"

#include "graph/function_names.h"

namespace tarnmill {

std::vector<Text> keypad_function_names() {
  std::vector<Text> names;
  for (const TextView each : graph_function_names()) {
    names.emplace_back(each == u"Pi(1)" ? u"Pi" : each);
    if (each == u"Stef") names.emplace_back(u"n!");
  }
  return names;
}

}  // namespace tarnmill
