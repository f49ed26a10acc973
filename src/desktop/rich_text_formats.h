#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <map>

#include "mathpad/rtf/document.h"

namespace tarnmill::desktop {

/// The pictures of a document as their files brought them, by the names of the toolkit's resources.
using PictureStore = std::map<QString, rtf::Picture>;

/// The family and the size in points of a character format, those of `plain` where it tells none.
[[nodiscard]] QString family_of(const QTextCharFormat& format, const QFont& plain);
[[nodiscard]] double size_of(const QTextCharFormat& format, const QFont& plain);

/// The offset from the base line in twips, which the toolkit counts in percent of the font's size.
[[nodiscard]] double char_offset_of(const QTextCharFormat& format);
void set_char_offset(QTextCharFormat& format, double twips, double size);

/// 0 left, 1 right, 2 centred.
[[nodiscard]] int alignment_of(const QTextBlockFormat& format);
void set_alignment(QTextBlockFormat& format, int alignment);

}  // namespace tarnmill::desktop
