#include "engine/service/word.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using std::numbers::pi;
using testing::fault_of;
using testing::value_of;

struct Row {
  TextView text;
  double value;
};

// By the library's own functions, where the program goes by way of the arc tangent and the exponential.
TEST(ServiceWord, EveryFunctionHasItsMeaning) {
  const std::vector<Row> rows{
      {u"nil(-8)", 4},
      {u"nil(8)", 4},
      {u"nil(0)", 0},
      {u"cub(-3)", -27},
      {u"bin(-3)", 9},
      {u"qvd(-2)", 16},
      {u"pnt(-2)", -32},
      {u"log(1000)", 3},
      {u"ln(2)", std::log(2)},
      {u"sqr(2)", std::sqrt(2)},
      {u"sqrt(2)", std::sqrt(2)},
      {u"sin(1)", std::sin(1)},
      {u"cos(1)", std::cos(1)},
      {u"tan(1)", std::tan(1)},
      {u"cot(1)", 1 / std::tan(1)},
      {u"cotan(1)", 1 / std::tan(1)},
      {u"atn(2)", std::atan(2)},
      {u"stef(1)", 5 * std::sin(2)},
      {u"exp(2)", std::exp(2)},
      {u"cbr(-8)", -2},
      {u"cbr(0)", 0},
      {u"qvr(16)", 2},
      {u"pbr(-32)", -2},
      {u"abs(-3)", 3},
      {u"arcsin(0.3)", std::asin(0.3)},
      {u"arccos(0.3)", std::acos(0.3)},
      {u"arcsec(2)", std::atan(2 / std::sqrt(3)) + pi / 2},
      {u"arccosec(2)", std::atan(2 / std::sqrt(3))},
      {u"arccosec(-2)", -std::atan(2 / std::sqrt(3)) - pi},
      {u"arccot(2)", std::atan(2) + pi / 2},
      {u"arccotan(2)", std::atan(2) + pi / 2},
      {u"sec(1)", 1 / std::cos(1)},
      {u"cosec(1)", 1 / std::sin(1)},
      {u"hsin(1)", std::sinh(1)},
      {u"hcos(1)", std::cosh(1)},
      {u"htan(1)", std::tanh(1)},
      {u"hsec(1)", 1 / std::cosh(1)},
      {u"hcosec(1)", 1 / std::sinh(1)},
      {u"hcot(1)", 1 / std::tanh(1)},
      {u"hcotan(1)", 1 / std::tanh(1)},
      {u"harcsin(2)", std::asinh(2)},
      {u"harccos(2)", std::acosh(2)},
      {u"harctan(0.5)", std::atanh(0.5)},
      {u"harcsec(0.5)", std::acosh(2)},
      {u"harccosec(2)", std::asinh(0.5)},
      {u"harccot(2)", std::atanh(0.5)},
      {u"harccotan(2)", std::atanh(0.5)},
      {u"fix(-2.5)", -2},
      {u"int(-2.5)", -3},
      {u"sgn(-2.5)", -1},
      {u"sgn(0)", 0},
  };
  for (const auto& [text, value] : rows) {
    EXPECT_NEAR(value_of(text), value, 1e-14 * std::max(1.0, std::fabs(value))) << to_utf8(text);
  }
}

TEST(ServiceWord, SecantsWithoutAValueGiveTheUndefinedMark) {
  for (const TextView text : {u"arcsec(0.5)", u"arcsec(-0.5)", u"arccosec(1)", u"arccosec(0.5)"}) {
    EXPECT_EQ(value_of(text), 100) << to_utf8(text);
  }
}

TEST(ServiceWord, RandomNumbersComeFromTheSequenceGiven) {
  RandomSequence same;
  const float first = same.NextRandom(1);
  const float second = same.NextRandom(1);
  testing::Service service;
  EXPECT_EQ(service.run(u"rnd(1)"), static_cast<double>(first));
  EXPECT_EQ(service.run(u"rnd(0)"), static_cast<double>(first));
  EXPECT_EQ(service.run(u"rnd(1)"), static_cast<double>(second));
}

TEST(ServiceWord, TheLongestWordAtTheFrontIsTaken) {
  struct Front {
    TextView text;
    TextView word;
  };
  for (const auto& [text, name] : std::vector<Front>{{u"exp(1)", u"exp"},
                                                     {u"e^(2)", u"e"},
                                                     {u"xsin(x)", u"x"},
                                                     {u"HARCCOSEC(2)", u"harccosec"},
                                                     {u"harccosecx", u"harccosec"},
                                                     {u"pix", u"pi"},
                                                     {u"arccot(1)", u"arccot"},
                                                     {u"arccotan(1)", u"arccotan"},
                                                     {u"sqr(1)", u"sqr"},
                                                     {u"sqrt(1)", u"sqrt"}}) {
    const Word* word = longest_word(text);
    ASSERT_NE(word, nullptr) << to_utf8(text);
    EXPECT_EQ(word->name, name) << to_utf8(text);
  }
  EXPECT_EQ(longest_word(u"foo"), nullptr);
  EXPECT_EQ(longest_word(u"2x"), nullptr);
  EXPECT_EQ(longest_word(u""), nullptr);
}

TEST(ServiceWord, AFunctionNeedsItsBracket) {
  for (const TextView text : {u"sin1", u"cosx(1)", u"sqrt", u"ln pi"}) {
    EXPECT_EQ(fault_of(text), statement_fault_number) << to_utf8(text);
  }
}

}  // namespace
}  // namespace tarnmill
