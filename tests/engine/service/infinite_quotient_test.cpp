#include <gtest/gtest.h>

#include <vector>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using testing::division_by_zero;
using testing::fault_of;
using testing::invalid_argument;
using testing::number_of_fault;
using testing::overflow;
using testing::Service;
using testing::text_of;

struct Row {
  TextView text;
  const char* words;
};

TEST(ServiceQuotient, AZeroDivisorGivesTheIeeeValueInAPlainStatement) {
  const std::vector<Row> rows{
      {u"1/0", "1.#INF"},       {u"-1/0", "-1.#INF"},    {u"0/0", "-1.#IND"},    {u"1/(0)", "1.#INF"},
      {u"1/(1-1)", "1.#INF"},   {u"1/-0", "-1.#INF"},    {u"5+1/0", "1.#INF"},   {u"5-1/0", "-1.#INF"},
      {u"-2*(1/0)", "-1.#INF"}, {u"1/0/0", "1.#INF"},    {u"1/(1/0)", "0"},      {u"-(1/0)", "-1.#INF"},
      {u"1/0-1/0", "-1.#IND"},  {u"0*(1/0)", "-1.#IND"}, {u"-(0/0)", "-1.#IND"}, {u"(1/0)/(1/0)", "-1.#IND"},
      {u"0/0+1", "-1.#IND"},    {u"2(1/0)", "1.#INF"},
  };
  for (const auto& [text, words] : rows) EXPECT_EQ(text_of(text), words) << to_utf8(text);
}

TEST(ServiceQuotient, AFunctionOrAPowerOfAnInfiniteValueIsAnInvalidArgument) {
  for (const TextView text : {u"sin(1/0)", u"abs(1/0)", u"sgn(0/0)", u"exp(-1/0)", u"cbm(1/0)", u"(1/0)^2",
                              u"2^(1/0)", u"(0/0)^0", u"rnd(1/0)"}) {
    EXPECT_EQ(fault_of(text), invalid_argument) << to_utf8(text);
  }
}

TEST(ServiceQuotient, EveryOtherArithmeticFaultRaisesUnderItsNumber) {
  for (const TextView text : {u"1E300*1E300", u"1E308+1E308", u"-1E308-1E308", u"1E300/1E-300", u"exp(1000)",
                              u"10^400", u"e^(1000)"}) {
    EXPECT_EQ(fault_of(text), overflow) << to_utf8(text);
  }
  for (const TextView text : {u"sqr(-1)", u"ln(0)", u"log(-1)", u"(-8)^(1/3)", u"0^(-1)", u"qvr(-1)"}) {
    EXPECT_EQ(fault_of(text), invalid_argument) << to_utf8(text);
  }
  for (const TextView text : {u"cot(0)", u"cosec(0)", u"hcosec(0)", u"arcsin(1)", u"arcsec(1)"}) {
    EXPECT_EQ(fault_of(text), division_by_zero) << to_utf8(text);
  }
}

TEST(ServiceQuotient, AZeroDivisorRaisesInNamedStatements) {
  EXPECT_EQ(fault_of(u"Push(1/0)"), division_by_zero);
  EXPECT_EQ(fault_of(u"Push(0/0)"), overflow);
  Service service;
  EXPECT_EQ(number_of_fault([&] { service.derivative(u"1/x", 0); }), division_by_zero);
  EXPECT_EQ(number_of_fault([&] { service.derivative(u"x/x", 0); }), overflow);
  EXPECT_EQ(number_of_fault([&] { service.integral(u"1/(x-x)", 0, 1); }), division_by_zero);
  EXPECT_EQ(number_of_fault([&] { service.average(u"(x-x)/(x-x)", 0, 1); }), overflow);
}

}  // namespace
}  // namespace tarnmill
