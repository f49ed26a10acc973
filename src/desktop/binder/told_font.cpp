#include "desktop/binder/told_font.h"

#include "desktop/qt_text.h"
#include "desktop/raster_text.h"

namespace tarnmill::desktop {

namespace {

/// What each control's font is before the program tells one.
const Font first_font{u"Arial", 8.25};

bool is_as_first(std::string_view property, const Font& font) {
  if (property == "FontName") return font.name == first_font.name;
  if (property == "FontSize") return font.size == first_font.size;
  if (property == "FontBold") return !font.bold;
  if (property == "FontItalic") return !font.italic;
  return property == "FontUnderline" ? !font.underline : !font.strike_through;
}

}  // namespace

bool ToldFont::take(std::string_view property, bool starting) {
  if (!property.starts_with("Font") || (starting && is_as_first(property, font_.get()))) return false;
  told_.insert(property);
  return true;
}

QFont ToldFont::over(QFont form) const {
  const QFont told = printed_font(font_.get());
  if (is_told("FontName")) form.setFamilies(told.families());
  if (is_told("FontSize")) form.setPixelSize(told.pixelSize());
  if (is_told("FontBold")) form.setBold(told.bold());
  if (is_told("FontItalic")) form.setItalic(told.italic());
  if (is_told("FontUnderline")) form.setUnderline(told.underline());
  if (is_told("FontStrikethru")) form.setStrikeOut(told.strikeOut());
  return form;
}

QString ToldFont::declarations() const {
  const QFont told = printed_font(font_.get());
  QString sheet;
  if (is_told("FontName")) {
    QStringList families = told.families();
    for (QString& each : families) each = '"' + each.remove('"').remove('\\') + '"';
    sheet += "font-family: " + families.join(", ") + ';';
  }
  if (is_told("FontSize")) sheet += QString{"font-size: %1px;"}.arg(told.pixelSize());
  if (is_told("FontBold")) sheet += told.bold() ? "font-weight: bold;" : "font-weight: normal;";
  if (is_told("FontItalic")) sheet += told.italic() ? "font-style: italic;" : "font-style: normal;";
  if (is_told("FontUnderline") || is_told("FontStrikethru")) {
    const QString lines =
        QString{told.underline() ? "underline " : ""} + (told.strikeOut() ? "line-through" : "");
    sheet += "text-decoration: " + (lines.isEmpty() ? "none" : lines) + ';';
  }
  return sheet;
}

}  // namespace tarnmill::desktop
