#include "desktop/metafile.h"

#include <libwmf/api.h>
#include <libwmf/gd.h>

#include <algorithm>
#include <cstring>
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

/// The pixels of the library, whose opacity runs backwards from 127 to 0, over white.
QImage over_white(const int* pixels, QSize size) {
  constexpr int transparent = 127;
  constexpr QRgb white = 0xFFFFFFFF;
  QImage image{size, QImage::Format_RGB32};
  for (int y = 0; y < size.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));  // NOLINT: how the toolkit gives lines
    for (int x = 0; x < size.width(); ++x, ++pixels) {
      const auto pixel = static_cast<QRgb>(*pixels);
      line[x] = static_cast<int>(pixel >> 24) == transparent ? white : pixel | 0xFF000000;
    }
  }
  return image;
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
  wmfD_Rect bounds = shown_part(*player, drawn);
  unsigned int width = 0;
  unsigned int height = 0;
  if (wmf_display_size(player.get(), &width, &height, dots_per_inch, dots_per_inch) != wmf_E_None) return {};
  constexpr unsigned int far = 1U << 20U;
  const QSize told{static_cast<int>(std::min(width, far)), static_cast<int>(std::min(height, far))};
  const QSize shown = within_bounds(size.isEmpty() ? told : size);
  wmf_gd_t* canvas = WMF_GD_GetData(player.get());
  canvas->type = wmf_gd_image;
  canvas->width = static_cast<unsigned int>(shown.width());
  canvas->height = static_cast<unsigned int>(shown.height());
  canvas->bbox = bounds;
  const bool played = wmf_play(player.get(), 0, &bounds) == wmf_E_None && canvas->gd_image != nullptr;
  const int* pixels = played ? wmf_gd_image_pixels(canvas->gd_image) : nullptr;
  return pixels == nullptr ? QImage{} : over_white(pixels, shown);
}

}  // namespace tarnmill::desktop
