#include "forms/color.h"

namespace tarnmill {

Color resolve(Color color) {
  if (color >= 0) return color;
  if (color == button_face) return rgb(236, 232, 223);
  return color == active_border ? rgb(212, 208, 200) : rgb(0, 0, 0);
}

}  // namespace tarnmill
