#include "forms/picture_key.h"

namespace tarnmill {

PictureKey::PictureKey(Image& key, const Image& normal, const Image& pressed) : key_{key}, normal_{normal} {
  key.MouseDown.handle([&key, &pressed](int, int, float, float) { key.Picture = pressed.Picture; });
  key.MouseUp.handle([this](int, int, float, float) { release(); });
}

void PictureKey::release() { key_.Picture = normal_.Picture; }

}  // namespace tarnmill
