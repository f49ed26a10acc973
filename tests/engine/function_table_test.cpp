#include "engine/function_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "engine/evaluator.h"
#include "fake_host.h"

namespace tarnmill {
namespace {

using testing::FakeHost;
using Calls = std::vector<std::string>;

TEST(FunctionTable, ComparesNamesInItsOrder) {
  const std::vector<std::string> names{
      "STEF",     "SIN",      "COS",     "TAN",     "COTAN",   "ATN",     "EXP",       "LOG",       "LN",
      "FIX",      "INT",      "RND",     "SGN",     "ABS",     "SQR",     "NIL",       "CBR",       "CBR2",
      "QVR",      "PBR",      "CUB",     "BIN",     "QVD",     "PNT",     "ARCSIN",    "ARCCOS",    "ARCSEC",
      "ARCCOSEC", "ARCCOTAN", "SEC",     "COSEC",   "HSIN",    "HCOS",    "HTAN",      "HSEC",      "HCOSEC",
      "HCOTAN",   "HARCSIN",  "HARCCOS", "N!",      "HARCTAN", "HARCSEC", "HARCCOSEC", "HARCCOTAN", "TIMER",
      "YEAR",     "MONTH",    "DAY",     "WEEKDAY", "HOUR",    "MINUTE",  "SECOND",    "PI",        "E"};
  std::vector<std::string> held;
  for (const FunctionEntry& entry : function_table()) held.push_back(to_utf8(entry.name));
  EXPECT_EQ(held, names);
}

TEST(FunctionTable, EveryEntryHasExactlyOneForm) {
  for (const FunctionEntry& entry : function_table()) {
    EXPECT_NE(entry.pure == nullptr, entry.hosted == nullptr) << to_utf8(entry.name);
  }
}

TEST(FunctionTable, FindsExactNamesOnly) {
  EXPECT_NE(find_function(u"CBR2"), nullptr);
  EXPECT_EQ(find_function(u"sin"), nullptr);
  EXPECT_EQ(find_function(u""), nullptr);
  EXPECT_EQ(find_function(u"FOO"), nullptr);
}

struct ValueRow {
  Text text;
  double value;
};

const std::vector<ValueRow> values{
    {.text = u"STEF(0)", .value = 0.0},
    {.text = u"STEF(1)", .value = 4.546487134128409},
    {.text = u"STEF(-2.5)", .value = 4.794621373315692},
    {.text = u"SIN(0)", .value = 0.0},
    {.text = u"SIN(1)", .value = 0.8414709848078965},
    {.text = u"SIN(-2)", .value = -0.9092974268256817},
    {.text = u"COS(0)", .value = 1.0},
    {.text = u"COS(1)", .value = 0.5403023058681398},
    {.text = u"TAN(0)", .value = 0.0},
    {.text = u"TAN(1)", .value = 1.5574077246549023},
    {.text = u"COTAN(1)", .value = 0.6420926159343306},
    {.text = u"COTAN(-2)", .value = 0.45765755436028577},
    {.text = u"ATN(1)", .value = 0.7853981633974483},
    {.text = u"ATN(-5)", .value = -1.373400766945016},
    {.text = u"EXP(0)", .value = 1.0},
    {.text = u"EXP(1)", .value = 2.718281828459045},
    {.text = u"EXP(-2)", .value = 0.1353352832366127},
    {.text = u"LOG(1)", .value = 0.0},
    {.text = u"LOG(1000)", .value = 2.9999999999999996},
    {.text = u"LN(1)", .value = 0.0},
    {.text = u"LN(10)", .value = 2.302585092994046},
    {.text = u"FIX(2.5)", .value = 2.0},
    {.text = u"FIX(-2.5)", .value = -2.0},
    {.text = u"INT(2.5)", .value = 2.0},
    {.text = u"INT(-2.5)", .value = -3.0},
    {.text = u"SGN(7)", .value = 1.0},
    {.text = u"SGN(0)", .value = 0.0},
    {.text = u"SGN(-0.5)", .value = -1.0},
    {.text = u"ABS(2.5)", .value = 2.5},
    {.text = u"ABS(-2.5)", .value = 2.5},
    {.text = u"SQR(0)", .value = 0.0},
    {.text = u"SQR(2)", .value = 1.4142135623730951},
    {.text = u"NIL(8)", .value = 3.9999999999999996},
    {.text = u"NIL(-8)", .value = 3.9999999999999996},
    {.text = u"NIL(0)", .value = 0.0},
    {.text = u"CBR(8)", .value = 2.0},
    {.text = u"CBR(-8)", .value = -2.0},
    {.text = u"CBR(0)", .value = 0.0},
    {.text = u"CBR2(8)", .value = 0.5},
    {.text = u"CBR2(-8)", .value = -0.5},
    {.text = u"CBR2(0)", .value = 0.0},
    {.text = u"QVR(16)", .value = 2.0},
    {.text = u"QVR(0)", .value = 0.0},
    {.text = u"PBR(32)", .value = 2.0},
    {.text = u"PBR(-32)", .value = -2.0},
    {.text = u"PBR(0)", .value = 0.0},
    {.text = u"CUB(2)", .value = 8.0},
    {.text = u"CUB(-2)", .value = -8.0},
    {.text = u"BIN(3)", .value = 9.0},
    {.text = u"BIN(-3)", .value = 9.0},
    {.text = u"QVD(2)", .value = 16.0},
    {.text = u"QVD(-2)", .value = 16.0},
    {.text = u"PNT(2)", .value = 32.0},
    {.text = u"PNT(-2)", .value = -32.0},
    {.text = u"ARCSIN(0)", .value = 0.0},
    {.text = u"ARCSIN(0.5)", .value = 0.5235987755982989},
    {.text = u"ARCSIN(-0.5)", .value = -0.5235987755982989},
    {.text = u"ARCCOS(0)", .value = 1.5707963267948966},
    {.text = u"ARCCOS(0.5)", .value = 1.0471975511965979},
    {.text = u"ARCCOS(-0.5)", .value = 2.0943951023931957},
    {.text = u"ARCCOTAN(0)", .value = 1.5707963267948966},
    {.text = u"ARCCOTAN(1)", .value = 2.356194490192345},
    {.text = u"ARCCOTAN(-1)", .value = 0.7853981633974483},
    {.text = u"SEC(0)", .value = 1.0},
    {.text = u"SEC(1)", .value = 1.8508157176809255},
    {.text = u"COSEC(1)", .value = 1.1883951057781212},
    {.text = u"COSEC(-1)", .value = -1.1883951057781212},
    {.text = u"HSIN(0)", .value = 0.0},
    {.text = u"HSIN(1)", .value = 1.1752011936438014},
    {.text = u"HSIN(-2)", .value = -3.626860407847019},
    {.text = u"HCOS(0)", .value = 1.0},
    {.text = u"HCOS(1)", .value = 1.5430806348152437},
    {.text = u"HTAN(0)", .value = 0.0},
    {.text = u"HTAN(1)", .value = 0.7615941559557649},
    {.text = u"HSEC(0)", .value = 1.0},
    {.text = u"HSEC(1)", .value = 0.6480542736638855},
    {.text = u"HCOSEC(1)", .value = 0.8509181282393216},
    {.text = u"HCOSEC(-1)", .value = -0.8509181282393216},
    {.text = u"HCOTAN(1)", .value = 1.3130352854993315},
    {.text = u"HCOTAN(-1)", .value = -1.3130352854993315},
    {.text = u"HARCSIN(0)", .value = 0.0},
    {.text = u"HARCSIN(1)", .value = 0.881373587019543},
    {.text = u"HARCSIN(-1)", .value = -0.881373587019543},
    {.text = u"HARCCOS(1)", .value = 0.0},
    {.text = u"HARCCOS(2)", .value = 1.3169578969248166},
    {.text = u"N!(0)", .value = 1.0},
    {.text = u"N!(3.5)", .value = 24.0},
    {.text = u"N!(2.5)", .value = 2.0},
    {.text = u"N!(10)", .value = 3628800.0},
    {.text = u"HARCTAN(0)", .value = 0.0},
    {.text = u"HARCTAN(0.5)", .value = 0.5493061443340548},
    {.text = u"HARCTAN(-0.5)", .value = -0.5493061443340548},
    {.text = u"HARCSEC(1)", .value = 0.0},
    {.text = u"HARCSEC(0.5)", .value = 1.3169578969248166},
    {.text = u"HARCCOSEC(2)", .value = 0.48121182505960347},
    {.text = u"HARCCOSEC(0.5)", .value = 1.4436354751788103},
    {.text = u"HARCCOTAN(2)", .value = 0.5493061443340548},
    {.text = u"HARCCOTAN(-2)", .value = -0.5493061443340548},
    {.text = u"PI(0)", .value = 3.141592653589793},
    {.text = u"PI(1)", .value = 3.141592653589793},
    {.text = u"E(0)", .value = 2.71828182845905},
    {.text = u"E(1)", .value = 2.71828182845905},
};

TEST(FunctionTable, GivesTheValueOfEveryFunction) {
  FakeHost host;
  Evaluator evaluator{host};
  for (const ValueRow& row : values) {
    const double value = evaluator.Evaluate(row.text, true);
    EXPECT_NEAR(value, row.value, 4e-15 * std::fmax(1, std::fabs(row.value))) << to_utf8(row.text);
    EXPECT_EQ(evaluator.error(), 0) << to_utf8(row.text);
  }
  EXPECT_EQ(host.calls, Calls{});
}

TEST(FunctionTable, RootsThatAreWholeComeOutWhole) {
  FakeHost host;
  Evaluator evaluator{host};
  EXPECT_EQ(evaluator.Evaluate(u"CBR(-8)", true), -2);
  EXPECT_EQ(evaluator.Evaluate(u"PBR(-32)", true), -2);
  EXPECT_EQ(evaluator.Evaluate(u"E(0)", true), 2.71828182845905);
}

const std::vector<Text> faulty_calls{u"STEF(1/0)",        u"COTAN(0)",
                                     u"EXP(710)",         u"LOG(0)",
                                     u"LOG(-1)",          u"LN(0)",
                                     u"LN(-1)",           u"SQR(-1)",
                                     u"QVR(-1)",          u"CUB(EXP(300))",
                                     u"BIN(EXP(400))",    u"QVD(EXP(200))",
                                     u"PNT(EXP(200))",    u"ARCSIN(1)",
                                     u"ARCSIN(-1)",       u"ARCSIN(2)",
                                     u"ARCCOS(1)",        u"ARCCOS(2)",
                                     u"ARCSEC(1)",        u"ARCSEC(-1)",
                                     u"ARCSEC(EXP(400))", u"ARCCOSEC(EXP(400))",
                                     u"COSEC(0)",         u"HSIN(710)",
                                     u"HCOS(-710)",       u"HTAN(710)",
                                     u"HSEC(710)",        u"HCOSEC(0)",
                                     u"HCOTAN(0)",        u"HARCSIN(EXP(400))",
                                     u"HARCCOS(0.5)",     u"HARCCOS(-2)",
                                     u"N!(171)",          u"N!(-1)",
                                     u"N!(70000)",        u"HARCTAN(1)",
                                     u"HARCTAN(-1)",      u"HARCTAN(2)",
                                     u"HARCSEC(0)",       u"HARCSEC(2)",
                                     u"HARCSEC(-0.5)",    u"HARCCOSEC(0)",
                                     u"HARCCOTAN(1)",     u"HARCCOTAN(0)",
                                     u"SIN(1/0)",         u"PI(1/0)",
                                     u"TIMER(LN(0))"};

TEST(FunctionTable, EveryFaultEndsInCodeSixteen) {
  FakeHost host;
  Evaluator evaluator{host};
  for (const Text& text : faulty_calls) {
    evaluator.Evaluate(text, true);
    EXPECT_EQ(evaluator.error(), 16) << to_utf8(text);
  }
  EXPECT_EQ(host.calls, Calls{});
}

TEST(FunctionTable, APoleThatIsNotMetExactlyIsVeryLarge) {
  FakeHost host;
  Evaluator evaluator{host};
  EXPECT_GT(evaluator.Evaluate(u"TAN(PI(1)/2)", true), 1e15);
  EXPECT_GT(evaluator.Evaluate(u"SEC(PI(1)/2)", true), 1e15);
  EXPECT_EQ(evaluator.error(), 0);
}

struct ColourRow {
  Text text;
  double value;
  std::string call;
};

const std::vector<ColourRow> colour_rows{
    {.text = u"ARCSEC(2)", .value = 2.4278682746450277, .call = "Boje3"},
    {.text = u"ARCSEC(-2)", .value = -2.4278682746450277, .call = "Boje3"},
    {.text = u"ARCSEC(0.5)", .value = 100, .call = "Boje2"},
    {.text = u"ARCSEC(-0.5)", .value = 100, .call = "Boje2"},
    {.text = u"ARCCOSEC(2)", .value = 0.8570719478501311, .call = "Boje3"},
    {.text = u"ARCCOSEC(-2)", .value = -3.9986646014399243, .call = "Boje3"},
    {.text = u"ARCCOSEC(1)", .value = 100, .call = "Boje2"},
    {.text = u"ARCCOSEC(-1)", .value = 100, .call = "Boje2"},
    {.text = u"ARCCOSEC(0)", .value = 100, .call = "Boje2"},
};

TEST(FunctionTable, InverseSecantsAskForAColourAndMarkWhereTheyAreUndefined) {
  FakeHost host;
  Evaluator evaluator{host};
  for (const ColourRow& row : colour_rows) {
    host.calls.clear();
    EXPECT_NEAR(evaluator.Evaluate(row.text, true), row.value, 1e-14) << to_utf8(row.text);
    EXPECT_EQ(evaluator.error(), 0) << to_utf8(row.text);
    EXPECT_EQ(host.calls, Calls{row.call}) << to_utf8(row.text);
  }
}

TEST(FunctionTable, ClockAndCalendarComeFromTheHostWhateverTheArgument) {
  FakeHost host;
  Evaluator evaluator{host};
  const std::vector<ValueRow> rows{
      {.text = u"TIMER(0)", .value = 49559.5}, {.text = u"YEAR(1)", .value = 2024},
      {.text = u"MONTH(1)", .value = 2},       {.text = u"DAY(7)", .value = 29},
      {.text = u"WEEKDAY(0)", .value = 5},     {.text = u"HOUR(0)", .value = 13},
      {.text = u"MINUTE(-1)", .value = 45},    {.text = u"SECOND(0)", .value = 59},
  };
  for (const ValueRow& row : rows) {
    EXPECT_EQ(evaluator.Evaluate(row.text, true), row.value) << to_utf8(row.text);
    EXPECT_EQ(evaluator.error(), 0) << to_utf8(row.text);
  }
}

TEST(FunctionTable, RandomNumbersFollowTheSignOfTheArgument) {
  FakeHost host;
  Evaluator evaluator{host};
  const double first = evaluator.Evaluate(u"RND(-3)", true);
  EXPECT_EQ(evaluator.Evaluate(u"RND(0)", true), first);
  const double second = evaluator.Evaluate(u"RND(1)", true);
  EXPECT_NE(second, first);
  EXPECT_EQ(evaluator.Evaluate(u"RND(-3)", true), first);
  EXPECT_EQ(evaluator.Evaluate(u"RND(1)", true), second);
}

}  // namespace
}  // namespace tarnmill
