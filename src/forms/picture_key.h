#pragma once

#include "forms/image.h"

namespace tarnmill {

/// A picture that acts as a key: its two states lie in hidden images, the press shows the one and the
/// release the other.
class PictureKey {
 public:
  PictureKey(Image& key, const Image& normal, const Image& pressed);

  /// Shows the normal picture again, for a key that lost the mouse while it was down.
  void release();

 private:
  Image& key_;
  const Image& normal_;
};

}  // namespace tarnmill
