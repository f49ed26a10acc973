#include "desktop/picture_sheet.h"

#include <QFontMetrics>
#include <QPainter>

#include "desktop/picture_data.h"
#include "desktop/qt_text.h"
#include "desktop/skin/fonts.h"
#include "desktop/skin/palette.h"

namespace tarnmill::desktop {

namespace {

constexpr int gap = 16;
constexpr int caption_height = 24;
constexpr int caption_pixels = 13;

void paint_picture(QPainter& painter, const QRect& square, const SheetPicture& picture) {
  const QImage image = load_image(picture.file);
  if (!image.isNull()) {
    const QImage fitted = image.scaled(square.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(square.topLeft(), fitted);
  }
  painter.setPen(palette::line_on_bone);
  painter.drawRect(square.adjusted(-1, -1, 0, 0));

  const QRect below{square.left(), square.bottom() + 1, square.width(), caption_height};
  const QString caption =
      painter.fontMetrics().elidedText(to_qt(picture.caption), Qt::ElideRight, below.width());
  painter.setPen(palette::ink);
  painter.drawText(below, Qt::AlignCenter | Qt::TextSingleLine, caption);
}

}  // namespace

bool save_picture_sheet(const std::filesystem::path& path, const std::vector<SheetPicture>& pictures,
                        const SheetLayout& layout) {
  const int count = static_cast<int>(pictures.size());
  const int rows = (count + layout.columns - 1) / layout.columns;
  const QSize step{layout.side + gap, layout.side + caption_height + gap};
  QImage sheet{gap + layout.columns * step.width(), gap + rows * step.height(), QImage::Format_RGB32};
  if (sheet.isNull()) return false;
  sheet.fill(palette::bone);

  register_fonts();
  QPainter painter{&sheet};
  painter.setFont(caption_font(caption_pixels));
  for (int i = 0; i < count; ++i) {
    const QPoint corner{gap + i % layout.columns * step.width(), gap + i / layout.columns * step.height()};
    paint_picture(painter, {corner, QSize{layout.side, layout.side}}, pictures[static_cast<std::size_t>(i)]);
  }
  painter.end();

  return save_image(sheet, path, "PNG");
}

}  // namespace tarnmill::desktop
