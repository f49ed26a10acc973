#pragma once

#include <QFont>
#include <QList>
#include <QString>

namespace tarnmill::desktop {

/// The largest of `sizes` (pixels, falling) at which `text` in `font` is no wider than `width` pixels; the
/// last where none fits. `sizes` must not be empty.
int fitting_size(const QString& text, const QFont& font, const QList<int>& sizes, double width);

}  // namespace tarnmill::desktop
