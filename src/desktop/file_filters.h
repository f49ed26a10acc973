#pragma once

#include <QStringList>

#include "engine/text.h"

namespace tarnmill::desktop {

/// The filters of a file dialog, given as caption and patterns in turn, parted by "|" with ";" between
/// patterns, as the toolkit writes them: "Caption (*.a *.b)". A pattern of "*.*" stands for every file.
[[nodiscard]] QStringList name_filters(TextView filter);

}  // namespace tarnmill::desktop
