#include "graph/label_font.h"

#include "engine/checked.h"
#include "engine/rounding.h"

namespace tarnmill {

LogFont label_font(const Font& font, double angle) {
  constexpr std::size_t longest_name = 31;
  LogFont record;
  record.height = ToLong(divide(multiply(font.size, 8), 5));
  record.escapement = ToLong(multiply(negate(angle), 10));
  record.weight = font.bold ? 600 : 200;
  record.italic = font.italic;
  record.underline = font.underline;
  record.strike_out = font.strike_through;
  record.face_name = font.name.substr(0, longest_name);
  return record;
}

void LogFontRecord::take(const LogFont& font) {
  constexpr std::int16_t ansi = 0;
  const auto flag = [](bool on) { return static_cast<std::int16_t>(on ? 1 : 0); };
  lfHeight = font.height;
  lfEscapement = font.escapement;
  lfWeight = font.weight;
  lfItalic = flag(font.italic);
  lfUnderline = flag(font.underline);
  lfStrikeOut = flag(font.strike_out);
  lfCharSet = ansi;
  lfFaceName = font.face_name + u'\0';
}

}  // namespace tarnmill
