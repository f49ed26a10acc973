#include "graph/catalogue_rows.h"

namespace tarnmill::detail {
namespace {

constexpr std::array common{
    standard("mnucomm6", "comm6", u"20", u"(K^2)-1/(1-K)+1/K", typed(u"(K^2")),
    standard("mnudva", "dva", u"20", u"(K-2)*(K-4)/K^2", typed(u"(K-2)*(K-4)/K^2")),
    standard("mnukplus", "kplus", u"20", u"K + 2/K"),
    standard("mnudvak", "dvak", u"20", u"2*K-3/K"),
    standard("mnuslovo1", "slovo1", u"40", u"K^(1/(1-K))", typed(u"K^(1/(1-K", u"K^(1/(1-K", u"K^(1")),
    standard("mnusin1", "sin1", u"20", u"K/2+SinK"),
    standard("mnucomm8", "comm8", u"59", u"K^(1/K)", typed(u"K^(1/K", u"K^(1/K", u"K^(1")),
    standard("mnucomm2", "comm2", u"40", u"LnK-K/(1-K^2)", typed(u"LnK-K/(1-K^2")),
    standard("mnuln1", "ln1", u"40", u"LnK/SqrK"),
    standard("mnuln4", "ln4", u"20", u"K/(LnK)"),
    standard("mnuaps1", "apsol1", u"40", u"2*AbsK-K^2", typed(u"2*AbsK-K^2")),
    standard("mnucomm13", "comm13", u"20", u"SinK+(Sin(2*K))/K"),
    standard("mnisin2k", "sin2k", u"40", u"SinK*Sin(2*K)"),
    standard("mnusin4k", "sin4k", u"20", u"2*Sin(2*K)-Sin(4*K)"),
    standard("mnusinpola", "sinpola", u"10", u"2*Cos(K/2)*3*Cos(K/3)"),
    standard("mnucomm15", "comm15", u"40", u"(SinK)^3-(CosK)^3",
             typed(u"(SinK)^3-(CosK)^3", u"((SinK)^3-(CosK)^3", u"(SinK)^3-(CosK)^3")),
    standard("mnucos1", "cos2", u"20", u"CosK-(CosK)^2", typed(u"CosK-(CosK)^2")),
    standard("mnucos2", "cos3", u"20", u"1/(SinK+CosK)"),
    standard("mnucomm16", "comm16", u"20", u"SinK/(Sin(K+Pi(1)/4))"),
    standard("mnuatn1", "atn1", u"40", u"Atn(LnK)"),
    standard("mnuatn3", "atn3", u"20", u"K+2*AtnK"),
    standard("mnuasin1", "asin1", u"40", u"Arcsin(Ln(K^2+1))", typed(u"Arcsin(Ln(K^2+1))")),
    standard("mnuhsin1", "hsin1", u"20", u"Ln(HSinK)"),
    standard("mnulnna2", "lnna2", u"20", u"K*(LnK)^2", typed(u"K*(LnK)^2")),
    standard("mnuharcos1", "harcos1", u"20", u"HArccos(K+1/K)"),
};

constexpr std::array predefined{
    standard("mnucomm5", "comm5", u"40", u"Sqr(1-BinK)", untyped_but_flagged),
    standard("mnusqr2", "sqr2", u"40", u"8/(K*Sqr(BinK-4))"),
    standard("mnucbr1", "cbr1", u"40", u"K/Cbr(4-BinK)"),
    standard("mnucbr2", "cbr2", u"20", u"Cbr(Bin(K+4))-Cbr(Qvd(K-4))"),
    standard("mnucomm1", "comm1", u"40", u"CubK-BinK+NilK+ExpK", untyped),
    standard("mnucomm4", "comm4", u"40", u"BinK-NilK+CbrK", untyped),
    standard("mnuna2na3", "na2na3", u"40", u"K*Bin(K-1)*Cub(K-2)"),
    standard("mnucomm14", "comm14", u"40", u"Nil(K)-Cbr(K)"),
    standard("mnunil1", "nil1", u"40", u"Arcsin(1-NilK)"),
    standard("mnusqr1", "sqr1", u"40", u"SqrK-Sqr(4-K)"),
    standard("mnuqvd1", "qvd1", u"20", u"(QvdK+3)/K"),
    standard("mnuexpo2", "expo2", u"20", u"(3+BinK/3)*Exp(K/3)"),
    named("mnuE", u"e (1) * k - k ^ 3", "E", u"40", u"e(1)*K-K^3", u"K", typed(u"e(1)*K-K^3")),
    standard("mnupdred1", "pred1", u"20", u"e(1)^(SinK)", typed(u"e(1)^(SinK")),
    standard("mnue2", "e2", u"20", u"e(1)^K/K", typed(u"e(1)^K/K", u"e(1)^K/K", u"e(1)^K")),
    standard("mnuexp1", "exp1", u"40", u"Exp(K) - Nil(K)", untyped),
    standard("mnucomm3", "comm3", u"40", u"Exp(K-3)-1/(1-BinK)", untyped),
    standard("mnuexp01", "expo1", u"20", u"Exp(8*K-K^2-14)", typed(u"Exp(8*K-K^2-14")),
    standard("mnuatn2", "atn2", u"40", u"Exp(AtnK)"),
    standard("mnuexpo3", "expo3", u"40", u"(2+BinK)*Exp(-BinK)"),
    standard("mnue1", "e1", u"40", u"K*e(1)^(-K)", typed(u"K*e(1)^(-K")),
    standard("mnuln2", "ln2", u"40", u"(2+K^2)*e(1)^(-K^2)", typed(u"(2+K^2)*e(1)^(-K^2")),
    standard("mnuln3", "ln3", u"70", u"Ln(e(1)+1/K)"),
    standard("mnuln5", "ln5", u"40", u"Ln(BinK-1)+1/(BinK-1)"),
    standard("mnuln6", "ln6", u"40", u"Ln(1-Exp(-K))"),
    standard("mnuln7", "ln7", u"20", u"(BinK/2)*Ln(K/3)"),
    standard("mnuln8", "ln8", u"40", u"Ln((Sqr(BinK+1)-1)/K)"),
    standard("mnuasink", "asink", u"20", u"ArcsinK/(Sqr(1-BinK))"),
};

constexpr std::array power{
    standard("mnufaq2", "power1", u"20", u"(1/3)*K^2-(2/3)*K-1",
             typed(u"(1/3)*K^2-(2/3", u"(1/3)*K^2-(2/3", u"(1/3)*K^2-(2")),
    standard("mnucomm7", "comm7", u"20", u"K^2-K/(1-K)", typed(u"K^2-(K/(1-K", u"K^2-(K/(1-K", u"K^2-(K")),
    standard("mnukpola", "kpolovina", u"20", u"K/2+2+K/(K-2)"),
    standard("mnukna", "kna3", u"20", u"(K^3 - 2)/(2*K)", typed(u"(K^3-2")),
    standard("mnuinsted", "insted", u"40", u"-1/(K+2)+K^(-1/3)",
             typed(u"-1/(K+2)+K^(-1/3", u"-1/(K+2)+K^(-1/3", u"-1/(K+2)+K^(-1")),
    standard("mnured", "red", u"40", u"K^(-2/3)+K/(1-K)", typed(u"K^(-2/3", u"K^(-2/3", u"K^(-2")),
    standard("mnupower2", "power2", u"40", u"K^2-K^3+K-1", typed(u"K^2-K^3")),
    standard("mnuexp2", "exp2", u"20", u"K^(2/5)+K^(2/3)+1/(2+K)",
             typed(u"K^(2/5)+K^(2/3", u"K^(2/5)+K^(2/3", u"K^(2/5)+K^(2")),
    standard("mnuins2", "insted2", u"20", u"1/(K-1)+K^(2/3)",
             typed(u"1/(K-1)+K^(2/3", u"1/(K-1)+K^(2/3", u"1/(K-1)+K^(2")),
    standard("mniins3", "insted3", u"40", u"K^2-1/(1-K^2)", typed(u"K^2-1/(1-K^2")),
    standard("mnuins10", "insted10", u"20", u"(K^2)-K/(2-K)", typed(u"(K^2)-K/(2-K)", u"(K^2", u"(K^2")),
    standard("mnuins4", "insted4", u"40", u"K+1/(1+K^2)", typed(u"K+1/(1+K^2")),
    standard("mnuins5", "insted5", u"40", u"K^2/(1-K^2)", typed(u"K^2/(1-K^2")),
    standard("mnuins6", "insted6", u"40", u"K^2/(1-K)", typed(u"K^2")),
    standard("mnuins7", "insted7", u"40", u"K^3+K^(-3/5)",
             typed(u"K^3+K^(-3/5", u"K^3+K^(-3/5", u"K^3+K^(-3")),
    standard("mnuins8", "insted8", u"40", u"K^3+K^(-3/5)+1/(K-2)",
             typed(u"K^3+K^(-3/5", u"K^3+K^(-3/5", u"K^3+K^(-3")),
    standard("mnuins9", "insted9", u"40", u"1/(K^2-(2/K))+K^(2/3)",
             typed(u"1/(K^2-(2/K))+K^(2/3)", u"1/(K^2-(2/K))+K^(2/3", u"1/(K^2-(2/K))+K^(2")),
    standard("mnuins11", "insted11", u"20", u"K^2-2/(K-1)", typed(u"K^2-2/(K-1)", u"K^2-2/(K-1", u"K^2-2")),
    standard("nucomm12", "comm12", u"55", u"K^(1-K)", typed(u"K^(1-K")),
};

}  // namespace

std::span<const Curve> common_functions() { return common; }

std::span<const Curve> predefined_functions() { return predefined; }

std::span<const Curve> powers() { return power; }

}  // namespace tarnmill::detail
