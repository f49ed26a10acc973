#include "engine/service/fractional_power.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "engine/rewriting.h"
#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using testing::fault_of;
using testing::invalid_argument;
using testing::value_of;

enum class AtNegative { positive, negative, none };

struct Row {
  TextView name;
  double exponent;
  AtNegative at_negative;
};

const std::vector<Row>& rows() {
  using enum AtNegative;
  static const std::vector<Row> all{
      {u"cbm", -1.0 / 3, negative}, {u"jmd", -1.0 / 2, none},     {u"tmp", -3.0 / 5, negative},
      {u"tsp", 3.0 / 5, negative},  {u"tmc", -3.0 / 4, none},     {u"tms", -3.0 / 7, negative},
      {u"pss", 5.0 / 7, negative},  {u"pms", -5.0 / 6, none},     {u"pns", -5.0 / 7, negative},
      {u"csp", 4.0 / 5, positive},  {u"smo", -7.0 / 8, none},     {u"pmd", -5.0 / 9, negative},
      {u"sss", 6.0 / 7, positive},  {u"dmt", -2.0 / 3, positive}, {u"smd", -7.0 / 9, negative},
      {u"dsp", 2.0 / 5, positive},  {u"cmp", -4.0 / 5, positive}, {u"pmt", -5.0 / 3, negative},
      {u"ssp", 6.0 / 5, positive},  {u"sms", -6.0 / 7, positive}, {u"smp", -7.0 / 5, negative},
      {u"oss", 8.0 / 7, positive},  {u"cms", -4.0 / 7, positive}, {u"pmc", -5.0 / 4, none},
      {u"pst", 5.0 / 3, negative},  {u"dmp", -2.0 / 5, positive}, {u"dmo", -9.0 / 8, none},
      {u"tmd", -3.0 / 2, none},     {u"cmt", -4.0 / 3, positive}, {u"oms", -8.0 / 7, positive},
      {u"snp", -6.0 / 5, positive},
  };
  return all;
}

Text call(TextView name, TextView argument) { return Text{name}.append(u"(").append(argument).append(u")"); }

TEST(FractionalPower, EveryNameHasItsRow) { EXPECT_EQ(fractional_powers().size(), rows().size()); }

TEST(FractionalPower, APositiveNumberIsTakenToTheExponent) {
  for (const Row& row : rows()) {
    EXPECT_DOUBLE_EQ(value_of(call(row.name, u"2.5")), std::pow(2.5, row.exponent)) << to_utf8(row.name);
  }
}

TEST(FractionalPower, ANegativeNumberTakesItsSignFromTheParities) {
  for (const Row& row : rows()) {
    const Text text = call(row.name, u"-2.5");
    const double size = std::pow(2.5, row.exponent);
    if (row.at_negative == AtNegative::none) {
      EXPECT_EQ(fault_of(text), invalid_argument) << to_utf8(row.name);
    } else {
      EXPECT_DOUBLE_EQ(value_of(text), row.at_negative == AtNegative::negative ? -size : size)
          << to_utf8(row.name);
    }
  }
}

TEST(FractionalPower, ZeroIsZeroOrAnInvalidArgument) {
  for (const Row& row : rows()) {
    const Text text = call(row.name, u"0");
    if (row.exponent < 0) {
      EXPECT_EQ(fault_of(text), invalid_argument) << to_utf8(row.name);
    } else {
      EXPECT_EQ(value_of(text), 0) << to_utf8(row.name);
    }
  }
}

TEST(FractionalPower, EveryNameThatTheRewritingWritesIsKnown) {
  for (const Rule& rule : Rewriting::full_rules()) {
    const bool of_power = rule.find.starts_with(u"x^(");
    if (!of_power || rule.replacement == u"dms(x)" || rule.find == u"x^(7/5)") continue;
    const Text text = ReplaceAll(rule.replacement, u"x", u"(2)");
    const Text plain = ReplaceAll(rule.find, u"x", u"(2)");
    EXPECT_DOUBLE_EQ(value_of(text), value_of(plain)) << to_utf8(rule.find);
  }
}

TEST(FractionalPower, TheDoublyUsedNameMeansSixFifths) {
  EXPECT_DOUBLE_EQ(value_of(u"ssp(2)"), std::pow(2, 1.2));
  EXPECT_DOUBLE_EQ(value_of(u"ssp(-2)"), std::pow(2, 1.2));
}

}  // namespace
}  // namespace tarnmill
