#include "graph/function_names.h"

#include <array>

namespace tarnmill {
namespace {

constexpr auto names = std::to_array<TextView>({
    u"Stef",      u"Exp",       u"Ln",       u"Log",      u"Sqr",     u"Cbr",     u"Qvr",     u"Pbr",
    u"Cub",       u"Bin",       u"Qvd",      u"Pnt",      u"Nil",     u"Sin",     u"Cos",     u"Tan",
    u"Cotan",     u"Atn",       u"Abs",      u"Fix",      u"Rnd",     u"Sgn",     u"Int",     u"Arcsin",
    u"Arccos",    u"Arcsec",    u"Arccosec", u"Arccotan", u"Sec",     u"Cosec",   u"HSin",    u"HCos",
    u"HTan",      u"HSec",      u"HCosec",   u"HCotan",   u"HArcsin", u"HArccos", u"HArctan", u"HArcsec",
    u"HArccosec", u"HArccotan", u"Pi(1)",    u"e(1)",
});

}  // namespace

std::span<const TextView> graph_function_names() { return names; }

std::span<const TextView> analysis_function_names() { return graph_function_names().subspan(1); }

}  // namespace tarnmill
