#pragma once

#include <QString>

namespace tarnmill::desktop {

class Key;

/// Shows on a key what stands for the picture of a name: a key that is down, a lamp, a word on a chip. A name
/// that it knows nothing of leaves the key as the form drew it.
void show_picture(Key& key, const QString& picture);

}  // namespace tarnmill::desktop
