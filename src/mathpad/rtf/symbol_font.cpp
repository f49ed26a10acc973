#include "mathpad/rtf/symbol_font.h"

namespace tarnmill::rtf {
namespace {

// From the encoding of the Symbol font as Adobe and the Unicode Consortium publish it. A glyph without a
// character of its own has the nearest one (the extender of a radical an overline), or U+FFFD.
constexpr TextView symbols_from_32 =
    u" !\u2200#\u2203%&\u220B()\u2217+,\u2212./"
    u"0123456789:;<=>?"
    u"\u2245\u0391\u0392\u03A7\u0394\u0395\u03A6\u0393\u0397\u0399\u03D1\u039A\u039B\u039C\u039D\u039F"
    u"\u03A0\u0398\u03A1\u03A3\u03A4\u03A5\u03C2\u03A9\u039E\u03A8\u0396[\u2234]\u22A5_"
    u"\u203E\u03B1\u03B2\u03C7\u03B4\u03B5\u03C6\u03B3\u03B7\u03B9\u03D5\u03BA\u03BB\u03BC\u03BD\u03BF"
    u"\u03C0\u03B8\u03C1\u03C3\u03C4\u03C5\u03D6\u03C9\u03BE\u03C8\u03B6{|}\u223C\uFFFD";

constexpr TextView symbols_from_160 =
    u"\u20AC\u03D2\u2032\u2264\u2044\u221E\u0192\u2663\u2666\u2665\u2660\u2194\u2190\u2191\u2192\u2193"
    u"\u00B0\u00B1\u2033\u2265\u00D7\u221D\u2202\u2022\u00F7\u2260\u2261\u2248\u2026\u23D0\u23AF\u21B5"
    u"\u2135\u2111\u211C\u2118\u2297\u2295\u2205\u2229\u222A\u2283\u2287\u2284\u2282\u2286\u2208\u2209"
    u"\u2220\u2207\u00AE\u00A9\u2122\u220F\u221A\u22C5\u00AC\u2227\u2228\u21D4\u21D0\u21D1\u21D2\u21D3"
    u"\u25CA\u27E8\u00AE\u00A9\u2122\u2211\u239B\u239C\u239D\u23A1\u23A2\u23A3\u23A7\u23A8\u23A9\u23AA"
    u"\uFFFD\u27E9\u222B\u2320\u23AE\u2321\u239E\u239F\u23A0\u23A4\u23A5\u23A6\u23AB\u23AC\u23AD\uFFFD";

}  // namespace

char16_t symbol_of(std::uint8_t glyph) {
  if (glyph < 0x20) return glyph;
  if (glyph < 0x80) return symbols_from_32[glyph - 0x20U];
  return glyph < 0xA0 ? u'\uFFFD' : symbols_from_160[glyph - 0xA0U];
}

}  // namespace tarnmill::rtf
