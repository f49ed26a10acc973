// What the desk does with picture files and fonts.
#include <QFontDatabase>

#include "desktop/picture_data.h"
#include "desktop/qt_desk.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_text.h"

namespace tarnmill {

std::unique_ptr<Raster> QtDesk::load_picture(const std::filesystem::path& path) {
  QImage image = desktop::load_image(path);
  if (image.isNull()) return nullptr;
  return std::make_unique<desktop::QtRaster>(std::move(image));
}

std::vector<Text> QtDesk::font_names() {
  std::vector<Text> names;
  for (const QString& each : QFontDatabase::families()) names.push_back(desktop::from_qt(each));
  return names;
}

}  // namespace tarnmill
