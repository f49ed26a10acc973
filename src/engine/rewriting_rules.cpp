#include <algorithm>
#include <array>
#include <cstddef>

#include "engine/rewriting.h"

namespace tarnmill {
namespace {

// The numbers of the rules, counted from 1, stand where a group begins. Rules 111 and 114 share a name, rule
// 131 never finds what 128 has used up, and rule 139 what 1 has. All belong to the chain.
constexpr auto full_chain = std::to_array<Rule>({
    // 1: one variable letter
    {u"X", u"x"},
    {u"K", u"x"},
    {u"k", u"x"},
    // 4: brackets for shorthand, and shorter names
    {u"Nilx", u"nil(x)"},
    {u"nilx", u"nil(x)"},
    {u"Cubx", u"cub(x)"},
    {u"cubx", u"cub(x)"},
    {u"Logx", u"log(x)"},
    {u"logx", u"log(x)"},
    {u"Lnx", u"ln(x)"},
    {u"lnx", u"ln(x)"},
    {u"Binx", u"bin(x)"},
    {u"binx", u"bin(x)"},
    {u"Sqrx", u"sqr(x)"},
    {u"sqrx", u"sqr(x)"},
    {u"sqrtx", u"sqr(x)"},
    {u"Sqrtx", u"sqr(x)"},
    {u"Sinx", u"sin(x)"},
    {u"sinx", u"sin(x)"},
    {u"Cosx", u"cos(x)"},
    {u"cosx", u"cos(x)"},
    {u"atnx", u"atn(x)"},
    {u"Atnx", u"atn(x)"},
    {u"Stefx", u"stef(x)"},
    {u"stefx", u"stef(x)"},
    {u"Expx", u"exp(x)"},
    {u"expx", u"exp(x)"},
    {u"Exp", u"e^"},
    {u"exp", u"e^"},
    {u"Cbrx", u"cbr(x)"},
    {u"cbrx", u"cbr(x)"},
    {u"Qvrx", u"qvr(x)"},
    {u"qvrx", u"qvr(x)"},
    {u"Pbrx", u"pbr(x)"},
    {u"pbrx", u"pbr(x)"},
    {u"Qvdx", u"qvd(x)"},
    {u"qvdx", u"qvd(x)"},
    {u"Pntx", u"pnt(x)"},
    {u"pntx", u"pnt(x)"},
    {u"Tanx", u"tan(x)"},
    {u"tanx", u"tan(x)"},
    {u"Cotanx", u"cot(x)"},
    {u"cotanx", u"cot(x)"},
    {u"cotan(x)", u"cot(x)"},
    {u"Cotan(x)", u"cot(x)"},
    {u"Absx", u"abs(x)"},
    {u"absx", u"abs(x)"},
    {u"Arcsinx", u"arcsin(x)"},
    {u"arcsinx", u"arcsin(x)"},
    {u"Arccosx", u"arccos(x)"},
    {u"arccosx", u"arccos(x)"},
    {u"Arcsecx", u"arcsec(x)"},
    {u"arcsecx", u"arcsec(x)"},
    {u"Arccosecx", u"arccosec(x)"},
    {u"arccosecx", u"arccosec(x)"},
    {u"Arccotanx", u"arccot(x)"},
    {u"arccotanx", u"arccot(x)"},
    {u"arccotan(x)", u"arccot(x)"},
    {u"Arccotan(x)", u"arccot(x)"},
    {u"Secx", u"sec(x)"},
    {u"secx", u"sec(x)"},
    {u"Cosecx", u"cosec(x)"},
    {u"cosecx", u"cosec(x)"},
    {u"HSinx", u"hsin(x)"},
    {u"hsinx", u"hsin(x)"},
    {u"HCosx", u"hcos(x)"},
    {u"hcosx", u"hcos(x)"},
    {u"HTanx", u"htan(x)"},
    {u"htanx", u"htan(x)"},
    {u"HSecx", u"hsec(x)"},
    {u"hsecx", u"hsec(x)"},
    {u"HCosecx", u"hcosec(x)"},
    {u"hcosecx", u"hcosec(x)"},
    {u"HCotanx", u"hcot(x)"},
    {u"HCotan(x)", u"hcot(x)"},
    {u"hcotanx", u"hcot(x)"},
    {u"hcotan(x)", u"hcot(x)"},
    {u"HArcsinx", u"harcsin(x)"},
    {u"harcsinx", u"harcsin(x)"},
    {u"HArccosx", u"harccos(x)"},
    {u"harccosx", u"harccos(x)"},
    {u"HArctanx", u"harctan(x)"},
    {u"harctanx", u"harctan(x)"},
    {u"HArcsecx", u"harcsec(x)"},
    {u"harcsecx", u"harcsec(x)"},
    {u"HArccosecx", u"harccosec(x)"},
    {u"harccosecx", u"harccosec(x)"},
    {u"HArccotanx", u"harccot(x)"},
    {u"harccotanx", u"harccot(x)"},
    {u"harccotan(x)", u"harccot(x)"},
    {u"HArccotan(x)", u"harccot(x)"},
    // 92: constants
    {u"Pi(1)", u"pi"},
    {u"pi(1)", u"pi"},
    {u"e(1)", u"e"},
    {u"E(1)", u"e"},
    // 96: powers, a negated one first
    {u"-x^2", u"-(x^2)"},
    {u"-x^3", u"-(x^3)"},
    {u"-x^4", u"-(x^4)"},
    {u"-x^5", u"-(x^5)"},
    {u"x^2", u"(x^2)"},
    {u"x^3", u"(x^3)"},
    {u"x^4", u"(x^4)"},
    {u"x^5", u"(x^5)"},
    // 104: fractional powers, which the plain power refuses for a negative base
    {u"x^(-1/3)", u"cbm(x)"},
    {u"x^(2/3)", u"nil(x)"},
    {u"x^(3/5)", u"tsp(x)"},
    {u"x^(5/7)", u"pss(x)"},
    {u"x^(4/5)", u"csp(x)"},
    {u"x^(6/7)", u"sss(x)"},
    {u"x^(2/5)", u"dsp(x)"},
    {u"x^(6/5)", u"ssp(x)"},
    {u"x^(8/7)", u"oss(x)"},
    {u"x^(5/3)", u"pst(x)"},
    {u"x^(7/5)", u"ssp(x)"},
    {u"x^(-1/2)", u"jmd(x)"},
    {u"x^(-3/4)", u"tmc(x)"},
    {u"x^(-5/6)", u"pms(x)"},
    {u"x^(-7/8)", u"smo(x)"},
    {u"x^(-2/3)", u"dmt(x)"},
    {u"x^(-4/5)", u"cmp(x)"},
    {u"x^(-6/7)", u"sms(x)"},
    {u"x^(-4/7)", u"cms(x)"},
    {u"x^(-2/5)", u"dmp(x)"},
    {u"x^(-3/5)", u"tmp(x)"},
    {u"x^(-3/7)", u"tms(x)"},
    {u"x^(-5/7)", u"pns(x)"},
    {u"x^(-5/9)", u"pmd(x)"},
    {u"x^(-7/9)", u"smd(x)"},
    {u"x^(-5/3)", u"pmt(x)"},
    {u"x^(-7/5)", u"smp(x)"},
    {u"x^(-7/9)", u"dms(x)"},
    {u"x^(-5/4)", u"pmc(x)"},
    {u"x^(-9/8)", u"dmo(x)"},
    {u"x^(-3/2)", u"tmd(x)"},
    {u"x^(-4/3)", u"cmt(x)"},
    {u"x^(-8/7)", u"oms(x)"},
    {u"x^(-6/5)", u"snp(x)"},
    // 138: brackets round what is left of the variable
    {u"x", u"(x)"},
    {u"X", u"(x)"},
});
static_assert(full_chain.size() == 139);

constexpr std::size_t rules_without_brackets_round_x = 137;

// What the short chain lacks of the full one, by number.
constexpr std::array lacking{5, 7, 13, 16, 17, 25, 33, 35, 37, 39, 59, 91, 93, 95, 138, 139};

// The short chain has two rules in place of these four. They give the long name, but never get to: the rules
// for cotan have changed every text that they look for.
constexpr std::size_t first_hcotan = 74;
constexpr std::size_t last_hcotan = 77;
constexpr std::array short_hcotan{Rule{u"HCotanx", u"hcotan(x)"}, Rule{u"hcotanx", u"hcotan(x)"}};

// One rule of the short chain stands further in front.
constexpr std::size_t moved = 45;
constexpr std::size_t moved_behind = 42;

constexpr auto short_chain = [] {
  std::array<Rule, 121> chain{};
  std::size_t size = 0;
  const auto append = [&](const Rule& rule) { chain.at(size++) = rule; };
  for (std::size_t number = 1; number <= full_chain.size(); ++number) {
    const bool is_lacking = std::ranges::find(lacking, static_cast<int>(number)) != lacking.end();
    const bool is_hcotan = number >= first_hcotan && number <= last_hcotan;
    if (!is_lacking && !is_hcotan && number != moved) append(full_chain.at(number - 1));
    if (number == moved_behind) append(full_chain.at(moved - 1));
    if (number == last_hcotan) std::ranges::for_each(short_hcotan, append);
  }
  return chain;
}();
static_assert(short_chain.back().find == full_chain.at(rules_without_brackets_round_x - 1).find);

// Towards the notation of the program's own evaluator. The seventh rule never finds what the fifth has
// used up.
constexpr auto power_names = std::to_array<Rule>({
    {u"K^3", u"CubK"},
    {u"K^2", u"BinK"},
    {u"K^(2/3)", u"NilK"},
    {u"K^(1/3)", u"CbrK"},
    {u"K^4", u"QvdK"},
    {u"K^5", u"PntK"},
    {u"K^4", u"QvrK"},
    {u"K^(1/5)", u"PbrK"},
});

}  // namespace

std::span<const Rule> Rewriting::full_rules() { return full_chain; }

std::span<const Rule> Rewriting::zam_rules() { return full_rules().first(rules_without_brackets_round_x); }

std::span<const Rule> Rewriting::cmdzam_rules() { return short_chain; }

std::span<const Rule> Rewriting::Zamenisve_rules() { return power_names; }

}  // namespace tarnmill
