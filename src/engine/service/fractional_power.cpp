#include "engine/service/fractional_power.h"

#include <array>

#include "engine/power.h"

namespace tarnmill {
namespace {

constexpr std::array powers{
    FractionalPower{u"cbm", -1, 3},
    FractionalPower{u"cmp", -4, 5},
    FractionalPower{u"cms", -4, 7},
    FractionalPower{u"cmt", -4, 3},
    FractionalPower{u"csp", 4, 5},
    FractionalPower{u"dmo", -9, 8},
    FractionalPower{u"dmp", -2, 5},
    FractionalPower{u"dmt", -2, 3},
    FractionalPower{u"dsp", 2, 5},
    FractionalPower{u"jmd", -1, 2},
    FractionalPower{u"oms", -8, 7},
    FractionalPower{u"oss", 8, 7},
    FractionalPower{u"pmc", -5, 4},
    FractionalPower{u"pmd", -5, 9},
    FractionalPower{u"pms", -5, 6},
    FractionalPower{u"pmt", -5, 3},
    FractionalPower{u"pns", -5, 7},
    FractionalPower{u"pss", 5, 7},
    FractionalPower{u"pst", 5, 3},
    FractionalPower{u"smd", -7, 9},
    FractionalPower{u"smo", -7, 8},
    FractionalPower{u"smp", -7, 5},
    FractionalPower{u"sms", -6, 7},
    FractionalPower{u"snp", -6, 5},
    // The chain writes this name for 7/5 as well; it means the fraction that the chain looks for first.
    FractionalPower{u"ssp", 6, 5},
    FractionalPower{u"sss", 6, 7},
    FractionalPower{u"tmc", -3, 4},
    FractionalPower{u"tmd", -3, 2},
    FractionalPower{u"tmp", -3, 5},
    FractionalPower{u"tms", -3, 7},
    FractionalPower{u"tsp", 3, 5},
};

constexpr bool is_odd(int number) { return number % 2 != 0; }

}  // namespace

double FractionalPower::call(double x) const {
  const double exponent = static_cast<double>(numerator) / denominator;
  if (x >= 0 || !is_odd(denominator)) return Power(x, exponent);
  const double size = Power(-x, exponent);
  return is_odd(numerator) ? -size : size;
}

std::span<const FractionalPower> fractional_powers() { return powers; }

}  // namespace tarnmill
