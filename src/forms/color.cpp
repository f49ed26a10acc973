#include "forms/color.h"

namespace tarnmill {

Color resolve(Color color) {
  if (color >= 0) return color;
  return color == active_border ? rgb(212, 208, 200) : rgb(0, 0, 0);
}

}  // namespace tarnmill
