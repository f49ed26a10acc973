#pragma once

#include <QImage>
#include <QTextDocument>
#include <filesystem>

#include "desktop/rich_text_formats.h"

namespace tarnmill::desktop {

/// The image of a picture that a document carries; a grey frame of its size for one that can't be shown.
[[nodiscard]] QImage image_of(const rtf::Picture& picture);

/// An image as a document carries it.
[[nodiscard]] rtf::Picture picture_of(const QImage& image);

/// The image of a file: a bitmap, JPEG, GIF or PNG, or a metafile. Null when it can't be read.
[[nodiscard]] QImage load_image(const std::filesystem::path& path);

/// Writes an image in a format of the toolkit ("BMP", "PNG"), whole or not at all; false when it can't be.
[[nodiscard]] bool save_image(const QImage& image, const std::filesystem::path& path, const char* format);

/// Makes a picture known to a document and gives the name that stands for it there.
QString keep_picture(QTextDocument& document, PictureStore& pictures, const rtf::Picture& picture,
                     const QImage& image);

}  // namespace tarnmill::desktop
