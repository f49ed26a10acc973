#pragma once

#include <QTextDocument>

#include "desktop/rich_text_formats.h"

namespace tarnmill::desktop {

/// The positions `start` to `end` of a document of the toolkit as plain data. Its last paragraph is left open
/// when the part ends within one.
[[nodiscard]] rtf::Document export_rtf(const QTextDocument& document, int start, int end,
                                       const PictureStore& pictures);

}  // namespace tarnmill::desktop
