#include "desktop/picture_data.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QUrl>
#include <QtEndian>
#include <algorithm>
#include <optional>
#include <string>

#include "desktop/metafile.h"
#include "engine/fault.h"
#include "forms/files.h"

namespace tarnmill::desktop {

namespace {

constexpr std::int32_t twips_per_pixel = 15;
constexpr int file_header_size = 14;

QByteArray bytes_of(const rtf::Picture& picture) {
  return {picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size())};
}

template <class Number>
Number number_at(const QByteArray& bytes, qsizetype offset) {
  return bytes.size() < offset + qsizetype{sizeof(Number)}
             ? Number{0}
             : qFromLittleEndian<Number>(bytes.constData() + offset);
}

/// How many bytes stand between the header of a bitmap and its pixels.
quint32 palette_size(const QByteArray& dib) {
  constexpr quint32 bitfields = 3;
  constexpr quint32 most_colors = 256;
  const auto bits = number_at<quint16>(dib, 14);
  if (bits > 8) return number_at<quint32>(dib, 16) == bitfields && number_at<quint32>(dib, 0) == 40 ? 12 : 0;
  const auto used = number_at<quint32>(dib, 32);
  return 4 * std::min(used == 0 ? quint32{1} << bits : used, most_colors);
}

/// A bitmap with the header that files have, without which the toolkit reads none.
QByteArray as_file(const QByteArray& dib) {
  QByteArray header(file_header_size, '\0');
  header[0] = 'B';
  header[1] = 'M';
  qToLittleEndian(static_cast<quint32>(dib.size() + file_header_size), header.data() + 2);
  const auto info = number_at<quint32>(dib, 0);
  qToLittleEndian(file_header_size + info + palette_size(dib), header.data() + 10);
  return header + dib;
}

QImage decoded(QByteArray bytes, const char* format) {
  QBuffer buffer{&bytes};
  buffer.open(QIODevice::ReadOnly);
  return QImageReader{&buffer, format}.read();
}

/// The size in pixels that a picture is shown at; 0 where the document tells none.
QSize size_of(const rtf::Picture& picture) {
  return {rtf::scaled(picture.width, picture.scale_x) / twips_per_pixel,
          rtf::scaled(picture.height, picture.scale_y) / twips_per_pixel};
}

QImage decoded(const rtf::Picture& picture) {
  switch (picture.kind) {
    case rtf::PictureKind::png:
      return decoded(bytes_of(picture), "png");
    case rtf::PictureKind::jpeg:
      return decoded(bytes_of(picture), "jpeg");
    case rtf::PictureKind::dib:
      return decoded(as_file(bytes_of(picture)), "bmp");
    case rtf::PictureKind::wmf:
      return play_metafile(bytes_of(picture), size_of(picture));
    default:
      return {};
  }
}

QImage frame(QSize size) {
  constexpr QSize least{16, 16};
  constexpr QSize most{2000, 2000};
  QImage image{size.expandedTo(least).boundedTo(most), QImage::Format_RGB32};
  image.fill(Qt::white);
  QPainter painter{&image};
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, image.width() - 1, image.height() - 1);
  return image;
}

std::optional<std::string> encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer{&bytes};
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, format)) return std::nullopt;
  return bytes.toStdString();
}

}  // namespace

QImage image_of(const rtf::Picture& picture) {
  QImage image = decoded(picture);
  return image.isNull() ? frame(size_of(picture)) : image;
}

rtf::Picture picture_of(const QImage& image) {
  const auto twips = [](int pixels) { return std::min(pixels * twips_per_pixel, rtf::longest_length); };
  return {.kind = rtf::PictureKind::png,
          .bytes = encoded(image, "PNG").value_or(std::string{}),
          .width = twips(image.width()),
          .height = twips(image.height())};
}

QImage load_image(const std::filesystem::path& path) {
  QFile file{QFile::decodeName(path.c_str())};
  if (!file.open(QIODevice::ReadOnly)) return {};
  // What a file is shows in it, not in its name.
  QImageReader reader{&file};
  reader.setDecideFormatFromContent(true);
  QImage image = reader.read();
  if (!image.isNull() || !file.seek(0)) return image;
  return play_metafile(file.readAll());
}

bool save_image(const QImage& image, const std::filesystem::path& path, const char* format) {
  const std::optional<std::string> bytes = encoded(image, format);
  if (!bytes) return false;
  try {
    write_file(path, *bytes);
  } catch (const Fault&) {
    return false;
  }
  return true;
}

QString keep_picture(QTextDocument& document, PictureStore& pictures, const rtf::Picture& picture,
                     const QImage& image) {
  QString name = QStringLiteral("picture-%1").arg(pictures.size());
  pictures.emplace(name, picture);
  document.addResource(QTextDocument::ImageResource, QUrl{name}, image);
  return name;
}

}  // namespace tarnmill::desktop
