#include "desktop/metafile.h"

#include <libwmf/api.h>
#include <libwmf/gd.h>

#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace tarnmill::desktop {

namespace {

constexpr double dots_per_inch = 96;
/// A damaged metafile may tell any size; a picture is no larger than this, as wide and as high.
constexpr int most_pixels = 2000;
constexpr qsizetype most_bytes = qsizetype{16} << 20U;

struct Destroy {
  void operator()(wmfAPI* player) const { wmf_api_destroy(player); }
};
using Player = std::unique_ptr<wmfAPI, Destroy>;

Player make_player() {
  wmfAPI_Options options{};
  options.function = wmf_gd_function;
  wmfAPI* made = nullptr;
  constexpr unsigned long flags =
      WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;
  const wmf_error_t error = wmf_api_create(&made, flags, &options);
  Player player{made};
  return error == wmf_E_None ? std::move(player) : nullptr;
}

/// The size that a picture of this size takes within what is allowed, its shape kept.
QSize within_bounds(QSize size) {
  constexpr QSize bounds{most_pixels, most_pixels};
  const QSize kept = size.boundedTo(bounds) == size ? size : size.scaled(bounds, Qt::KeepAspectRatio);
  return kept.expandedTo({1, 1});
}

/// The part of the plane to show. The library tells where the metafile draws; a metafile with a frame shows
/// the whole of it, unless it draws beyond.
wmfD_Rect shown_part(const wmfAPI& player, const wmfD_Rect& drawn) {
  constexpr float units_per_inch = 72;
  constexpr float tolerance = 1;
  if (player.File->placeable == 0 || player.File->pmh->Inch == 0) return drawn;
  const auto& told = *player.File->pmh;
  const float scale = units_per_inch / static_cast<float>(told.Inch);
  const wmfD_Coord end{static_cast<float>(told.Right - told.Left) * scale,
                       static_cast<float>(told.Bottom - told.Top) * scale};
  const bool holds_all = drawn.TL.x >= -tolerance && drawn.TL.y >= -tolerance &&
                         drawn.BR.x <= end.x + tolerance && drawn.BR.y <= end.y + tolerance;
  return holds_all ? wmfD_Rect{{0, 0}, end} : drawn;
}

/// A file in memory, to be written by a C library.
class MemoryFile {
 public:
  MemoryFile() : file_{open_memstream(&bytes_, &size_)} {}
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() {
    if (file_ != nullptr) std::fclose(file_);
    std::free(bytes_);  // NOLINT: the C library's memory
  }

  /// Null when there is no memory.
  [[nodiscard]] std::FILE* file() const { return file_; }
  /// What has been written; valid as long as this is.
  [[nodiscard]] QByteArray bytes() const {
    std::fflush(file_);
    return QByteArray::fromRawData(bytes_, static_cast<qsizetype>(size_));
  }

 private:
  char* bytes_ = nullptr;
  std::size_t size_ = 0;
  std::FILE* file_;
};

QImage over_white(const QImage& picture) {
  QImage image{picture.size(), QImage::Format_RGB32};
  image.fill(Qt::white);
  QPainter{&image}.drawImage(0, 0, picture);
  return image;
}

/// Plays `part` of the plane into a picture of `size` pixels; a null image when that fails.
QImage play(wmfAPI& player, wmfD_Rect part, QSize size) {
  // As an encoded picture: one that is handed over as pixels the library never frees.
  const MemoryFile encoded;
  if (encoded.file() == nullptr) return {};
  wmf_gd_t* canvas = WMF_GD_GetData(&player);
  canvas->type = wmf_gd_png;
  canvas->flags |= WMF_GD_OUTPUT_FILE;
  canvas->file = encoded.file();
  canvas->width = static_cast<unsigned int>(size.width());
  canvas->height = static_cast<unsigned int>(size.height());
  canvas->bbox = part;
  if (wmf_play(&player, 0, &part) != wmf_E_None) return {};
  const QImage picture = QImage::fromData(encoded.bytes(), "PNG");
  return picture.isNull() ? picture : over_white(picture);
}

}  // namespace

QImage play_metafile(const QByteArray& bytes, QSize size) {
  const Player player = make_player();
  if (!player || bytes.size() > most_bytes) return {};
  // The library takes its input as one that could be written to, and never writes.
  QByteArray input = bytes;
  auto* data = reinterpret_cast<unsigned char*>(input.data());  // NOLINT: bytes are bytes
  if (wmf_mem_open(player.get(), data, static_cast<long>(input.size())) != wmf_E_None) return {};
  wmfD_Rect drawn{};
  if (wmf_scan(player.get(), 0, &drawn) != wmf_E_None) return {};
  unsigned int width = 0;
  unsigned int height = 0;
  if (wmf_display_size(player.get(), &width, &height, dots_per_inch, dots_per_inch) != wmf_E_None) return {};
  constexpr unsigned int far = 1U << 20U;
  const QSize told{static_cast<int>(std::min(width, far)), static_cast<int>(std::min(height, far))};
  return play(*player, shown_part(*player, drawn), within_bounds(size.isEmpty() ? told : size));
}

}  // namespace tarnmill::desktop
