#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace tarnmill::desktop {

/// Plays a Windows metafile, with or without the header that gives it a size on paper, on white ground.
/// `size` in pixels; an empty one is the size that the metafile tells, at 96 pixels to the inch. Null when
/// the bytes can't be played.
[[nodiscard]] QImage play_metafile(const QByteArray& bytes, QSize size = {});

}  // namespace tarnmill::desktop
