#include "desktop/skin/fonts.h"

#include <QDir>
#include <QFontDatabase>

#include "desktop/skin/resources.h"

namespace tarnmill::desktop {

namespace {

QFont font_of(const QStringList& families, int pixels, QFont::Weight weight) {
  QFont font;
  font.setFamilies(families);
  font.setPixelSize(pixels);
  font.setWeight(weight);
  // Hinted outlines would change the widths between one and two pixels a unit.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QStringList load_fonts() {
  load_resources();
  QStringList families;
  const QDir folder(":/tarnmill/fonts");
  for (const QString& name : folder.entryList({"*.otf", "*.ttf"})) {
    families +=
        QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(folder.filePath(name)));
  }
  families.removeDuplicates();
  return families;
}

}  // namespace

QStringList caption_families() { return {"Inter", "DejaVu Sans"}; }

QStringList number_families() { return {"JetBrains Mono", "DejaVu Sans Mono"}; }

QStringList register_fonts() {
  static const QStringList families = load_fonts();
  return families;
}

QFont caption_font(int pixels, QFont::Weight weight) { return font_of(caption_families(), pixels, weight); }

QFont number_font(int pixels, QFont::Weight weight) { return font_of(number_families(), pixels, weight); }

}  // namespace tarnmill::desktop
