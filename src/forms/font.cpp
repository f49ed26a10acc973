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

}  // namespace tarnmill
