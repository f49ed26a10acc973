#pragma once

#include <QTextDocument>

#include "desktop/rich_text_formats.h"

namespace tarnmill::desktop {

/// A document of the toolkit as plain data.
[[nodiscard]] rtf::Document export_rtf(const QTextDocument& document, const PictureStore& pictures);
/// The positions `start` to `end` of it. The last paragraph is left open, since its end is not part of them.
[[nodiscard]] rtf::Document export_rtf(const QTextDocument& document, int start, int end,
                                       const PictureStore& pictures);

}  // namespace tarnmill::desktop
