#include "graph/catalogue_rows.h"

namespace tarnmill::detail {
namespace {

constexpr std::array first_complex{
    named("mnuastro", u"Astroid", "asteorida", u"40", u"3*(SinK)^3", u"3*(CosK)^3", typed(u"3*(CosK)^3")),
    named("mnuBel", u"Bel", "Bel", u"40", u"10*cos(K)-5", u"HArctanK"),
    named("mnuber", u"Bernulli", "Bernulli", u"10", u"StefK", u"10*CosK"),
    named("mnucikloide", u"Cycloid", "Cikloide", u"10", u"2*(1-CosK)", u"2*(K-SinK)", untyped),
    named("mnukrug", u"Circle", "Krug", u"20", u"3*cosK+3", u"3*sinK+3"),
    named("mnuciso", u"Cissoid", "cisoide", u"20", u"4*CubK/(1+BinK)", u"4*BinK/(1+BinK)"),
    named("mnuloop", u"Conchoid", "kriva1", u"20", u"2/3*K*(3-K^2)", u"K^2",
          typed(u"2/3*K*(3-K^2", u"2/3*K*(3-K^2", u"2/3*K*(3-K^2)")),
    named("mnudecart", u"Descartes", "Decart", u"20", u"3*3*K/(1+CubK)", u"3*3*BinK/(1+CubK)", untyped),
    keeping_exponent(named("mnudrop", u"Drop", "drop", u"20", u"K*K", u"3*sinK")),
    named("mnuosam", u"Eight", "Osam", u"20", u"10*cosK", u"stefK", std::nullopt),
    named("mnuelip", u"Ellipse", "Elipse", u"20", u"2.5*cosK", u"5*sinK"),
    named("mnuEpicycloid", u"Epicycloid", "Epicycloid", u"20", u"8*SinK-2*Sin(4*K)", u"8*CosK-2*Cos(4*K)"),
    named("mnuevolvente", u"Evolvent", "Evolvente", u"20", u"3*(SinK-K*CosK)", u"3*(CosK+K*SinK)"),
    named("mnuriba", u"Fish", "Riba", u"20", u"stefK", u"10^cos(K)-5", typed(u"1/(1+K^2")),
    named("mnuFiveStar", u"FiveStar", "FiveStar", u"20", u"4*CosK+2*(Cos(1/K))", u"4*SinK-2*Sin(1/K)"),
    named("mnigift", u"Gift1", "Gift", u"10", u"2*sinK*K", u"5*sinK"),
    named("mnugift2", u"Gift2", "Gift2", u"10", u"CbrK*stefK", u"10*cosK"),
    named("mnuglass", u"Glass", "Glass2", u"20", u"2*Sin(2*K)-Sin(4*K)", u"10*cosK"),
    named("mnufglas", u"HourGlass", "Glass", u"10", u"cotanK*K", u"cosK*K"),
    named("mnuheart", u"Heart", "srce", u"10", u"6*sinK*K+8", u"6*cosK*K"),
    named("mnuHypocikloid", u"Hypocikloid", "Hypocikloid", u"20", u"4*CosK+2*Cos(2*K)", u"4*SinK-2*Sin(2*K)"),
    named("mnulist", u"Leaf", "Lisce", u"20", u"10*cosK", u"5*sinK^3", typed(u"5*(Sink)^3")),
};

constexpr std::array second_complex{
    named("mnulips", u"Lips", "Lips", u"20", u"5*(Sink)^3", u"10*cosK", typed(u"5*(Sink)^3")),
    named("mnukriva2", u"Loop", "kriva2", u"20", u"2*K^4-(4*K^2)+1/2", u"3*K-2*K^3", typed(u"2*K^4-(4*K^2")),
    named("mnumec", u"Mec", "Mec", u"10", u"stefK*stefK-10", u"10*cosK"),
    named("mnuOrtogonal", u"Ortogonal oscillations", "Ortogonal", u"40", u"4*Sin(3*K)", u"4*Sin(2*K)"),
    named("mjhupen", u"Pen", "Pen", u"10", u"tanK*K", u"cosK*K"),
    named("mnusemicub", u"Semicub", "semiCub", u"20", u"K^3", u"K^2", typed(u"K^3")),
    named("mnuspirala", u"Spiral1", "Spirala", u"10", u"sinK*K", u"10*cosK"),
    named("mnuspir2", u"Spiral2", "Spiral2", u"10", u"cosK*K", u"5*sinK"),
    named("mnispir3", u"Spiral3", "spiral3", u"10", u"cosK*K", u"sinK*K"),
    named("mnuspir4", u"Spiral4", "spiral4", u"10", u"3*stefK", u"sink*K"),
    named("mnucross", u"Star", "Cross", u"10", u"cotanK", u"tanK*K"),
    named("mnustairs", u"Stairs", "Stairs", u"40", u"IntK", u"K"),
    named("mnustrof1", u"Strophoid (uper branch)", "Strofoide1", u"20", u"Sqr(BinK*(3+K)/(3-K))", u"K"),
    named("mnustofo2", u"Strophoid (lower branch)", "Strofoide2", u"20", u"-Sqr(BinK*(3+K)/(3-K))", u"K"),
    named("mnuThreeleavedrose", u"Three-leaved rose", "Threeleavedrose", u"20", u"4*Cos(K)-4*cos(2*K)",
          u"4*(-SinK)+4*(-Sin(2*K))"),
    named("mnuumb", u"Umbrella", "kiso", u"10", u"10^(cosK)", u"sinK*K", typed(u"10^(cosK")),
    named("mnuversiere", u"Versiere", "Versiere", u"40", u"1/(1+K^2)", u"K", typed(u"1/(1+K^2")),
};

}  // namespace

std::span<const Curve> first_complex_functions() { return first_complex; }

std::span<const Curve> second_complex_functions() { return second_complex; }

}  // namespace tarnmill::detail
