#include "forms/font.h"

#include <utility>

namespace tarnmill {

FontProperties::FontProperties(Node& owner, Font font)
    : FontName{owner, "FontName", std::move(font.name)},
      FontSize{owner, "FontSize", font.size},
      FontBold{owner, "FontBold", font.bold},
      FontItalic{owner, "FontItalic", font.italic},
      FontUnderline{owner, "FontUnderline", font.underline},
      FontStrikethru{owner, "FontStrikethru", font.strike_through} {}

Font FontProperties::get() const {
  return {FontName, FontSize, FontBold, FontItalic, FontUnderline, FontStrikethru};
}

void FontProperties::set(const Font& font) {
  FontName = font.name;
  FontSize = font.size;
  FontBold = font.bold;
  FontItalic = font.italic;
  FontUnderline = font.underline;
  FontStrikethru = font.strike_through;
}

}  // namespace tarnmill
