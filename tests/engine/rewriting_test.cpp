#include "engine/rewriting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "rewriting_rows.h"

namespace tarnmill {
namespace {

using testing::rule_rows;
using testing::RuleRow;

struct Rewritten {
  Text text;
  std::string expected;
};

TEST(FullChain, HoldsEachRuleAtItsPlace) {
  const auto rules = Rewriting::full_rules();
  ASSERT_EQ(rules.size(), 139U);
  ASSERT_EQ(rule_rows.size(), 139U);
  for (const RuleRow& row : rule_rows) {
    const Rule& rule = rules[row.number - 1];
    EXPECT_EQ(to_utf8(rule.find), to_utf8(row.find)) << row.number;
    EXPECT_EQ(to_utf8(rule.replacement), to_utf8(row.replacement)) << row.number;
  }
}

TEST(FullChain, TurnsEachRulesTextIntoItsOutcome) {
  for (const RuleRow& row : rule_rows) {
    EXPECT_EQ(to_utf8(Rewriting::full(row.find)), to_utf8(row.outcome)) << row.number;
  }
}

const std::vector<Rewritten> full_rows{
    {.text = u"2sinx+Cosx", .expected = "2sin((x))+cos((x))"},
    {.text = u"K^2", .expected = "((x)^2)"},
    {.text = u"-x^3", .expected = "-(((x)^3))"},
    {.text = u"x^(2/3)", .expected = "nil((x))"},
    {.text = u"x^(-1/3)", .expected = "cbm((x))"},
    {.text = u"sqrtx", .expected = "sqr((x))"},
    {.text = u"Sqrtx", .expected = "sqr((x))"},
    {.text = u"SQRT(X)", .expected = "SQRT((x))"},
    {.text = u"Pi(1)+e(1)", .expected = "pi+e"},
    {.text = u"", .expected = ""},
};

TEST(FullChain, RewritesWhatPeopleType) {
  for (const Rewritten& row : full_rows) EXPECT_EQ(to_utf8(Rewriting::full(row.text)), row.expected);
}

TEST(FullChain, TakesXAndBothKAsOneVariableEvenInsideNames) {
  EXPECT_EQ(Rewriting::full(u"X+K+k"), u"(x)+(x)+(x)");
  EXPECT_EQ(Rewriting::full(u"EXP(1)"), u"E(x)P(1)");
}

TEST(FullChain, TurnsTheRemainingExponentialsIntoPowersOfE) {
  EXPECT_EQ(Rewriting::zam(u"exp(2)"), u"e^(2)");
  EXPECT_EQ(Rewriting::zam(u"Exp x"), u"e^ x");
  EXPECT_EQ(Rewriting::zam(u"expx"), u"e^(x)");
}

TEST(FullChain, ShortensTheCotangentsInAllForms) {
  for (const TextView text : {u"cotanx", u"Cotanx", u"cotan(x)", u"Cotan(x)"}) {
    EXPECT_EQ(to_utf8(Rewriting::zam(text)), "cot(x)") << to_utf8(text);
  }
  EXPECT_EQ(to_utf8(Rewriting::zam(u"arccotanx")), "arccot(x)");
  EXPECT_EQ(to_utf8(Rewriting::zam(u"hcotanx")), "hcot(x)");
  EXPECT_EQ(to_utf8(Rewriting::zam(u"harccotanx")), "harccot(x)");
}

TEST(FullChain, BracketsThePowerOfANegatedVariableFirst) {
  EXPECT_EQ(Rewriting::zam(u"-x^2"), u"-((x^2))");
  EXPECT_EQ(Rewriting::full(u"-x^2"), u"-(((x)^2))");
}

TEST(FullChain, GivesOneNameToTwoExponents) {
  EXPECT_EQ(Rewriting::full(u"x^(7/5)"), u"ssp((x))");
  EXPECT_EQ(Rewriting::full(u"x^(6/5)"), u"ssp((x))");
}

TEST(FullChain, NeverProducesTheNameOfTheRuleThatIsUsedUp) {
  EXPECT_EQ(Rewriting::full(u"x^(-7/9)"), u"smd((x))");
}

TEST(Zam, LacksTheBracketsRoundX) {
  EXPECT_EQ(Rewriting::zam(u"K^2"), u"(x^2)");
  const auto zam = Rewriting::zam_rules();
  EXPECT_EQ(zam.size(), 137U);
  EXPECT_TRUE(std::ranges::equal(zam, Rewriting::full_rules().first(137)));
}

TEST(Cmdzam, Has121Rules) { EXPECT_EQ(Rewriting::cmdzam_rules().size(), 121U); }

TEST(Cmdzam, LacksSixteenRulesAndTheHcotanGroup) {
  constexpr std::array<std::size_t, 20> gone{5,  7,  13, 16, 17, 25, 33, 35, 37,  39,
                                             59, 74, 75, 76, 77, 91, 93, 95, 138, 139};
  const auto rules = Rewriting::cmdzam_rules();
  for (const RuleRow& row : rule_rows) {
    const bool is_gone = std::ranges::find(gone, row.number) != gone.end();
    const auto held = std::ranges::count(rules, Rule{row.find, row.replacement});
    EXPECT_EQ(held, is_gone ? 0 : 1) << row.number;
  }
}

TEST(Cmdzam, KeepsTheOrderOfTheFullChainButForOneRule) {
  std::vector<std::size_t> numbers;
  for (const Rule& rule : Rewriting::cmdzam_rules()) {
    const auto* row = std::ranges::find_if(rule_rows, [&](const RuleRow& r) {
      return r.find == rule.find && r.replacement == rule.replacement;
    });
    if (row != rule_rows.end()) numbers.push_back(row->number);
  }
  ASSERT_EQ(numbers.size(), 119U);
  const auto moved = std::ranges::find(numbers, 45U);
  ASSERT_NE(moved, numbers.end());
  EXPECT_EQ(*(moved - 1), 42U);
  EXPECT_EQ(*(moved + 1), 43U);
  numbers.erase(moved);
  EXPECT_TRUE(std::ranges::is_sorted(numbers));
}

TEST(Cmdzam, HasTwoRulesThatKeepHcotanInTheirPlace) {
  const auto rules = Rewriting::cmdzam_rules();
  const auto at = std::ranges::find(rules, TextView{u"HCotanx"}, &Rule::find);
  ASSERT_NE(at, rules.end());
  EXPECT_EQ(to_utf8((at - 1)->find), "hcosecx");
  EXPECT_EQ(to_utf8(at->replacement), "hcotan(x)");
  EXPECT_EQ(to_utf8((at + 1)->find), "hcotanx");
  EXPECT_EQ(to_utf8((at + 1)->replacement), "hcotan(x)");
  EXPECT_EQ(to_utf8((at + 2)->find), "HArcsinx");
}

const std::vector<Rewritten> short_rows{
    {.text = u"nilx", .expected = "nilx"},
    {.text = u"Nilx", .expected = "nil(x)"},
    {.text = u"sqrtx", .expected = "sqrtx"},
    {.text = u"K^2", .expected = "(x^2)"},
    {.text = u"pi(1)+Pi(1)", .expected = "pi(1)+pi"},
    {.text = u"E(1)+e(1)", .expected = "E(1)+e"},
    {.text = u"Cotan(x)", .expected = "cot(x)"},
    {.text = u"hcotanx", .expected = "hcot(x)"},
    {.text = u"HCotanx", .expected = "Hcot(x)"},
    {.text = u"", .expected = ""},
};

TEST(Cmdzam, LeavesTheSpellingsThatItLacks) {
  for (const Rewritten& row : short_rows) EXPECT_EQ(to_utf8(Rewriting::cmdzam(row.text)), row.expected);
}

const std::vector<Rewritten> reverse_rows{
    {.text = u"K^3", .expected = "CubK"},
    {.text = u"K^2", .expected = "BinK"},
    {.text = u"K^(2/3)", .expected = "NilK"},
    {.text = u"K^(1/3)", .expected = "CbrK"},
    {.text = u"K^4", .expected = "QvdK"},
    {.text = u"K^5", .expected = "PntK"},
    {.text = u"K^(1/5)", .expected = "PbrK"},
    {.text = u"k^2+x^2", .expected = "k^2+x^2"},
    {.text = u"K^2+2*K^3", .expected = "BinK+2*CubK"},
    {.text = u"", .expected = ""},
};

TEST(Zamenisve, NamesThePowersOfK) {
  for (const Rewritten& row : reverse_rows) EXPECT_EQ(to_utf8(Rewriting::Zamenisve(row.text)), row.expected);
}

TEST(Zamenisve, KeepsItsEightRulesInOrder) {
  const std::vector<std::string> finds{"K^3", "K^2", "K^(2/3)", "K^(1/3)", "K^4", "K^5", "K^4", "K^(1/5)"};
  const auto rules = Rewriting::Zamenisve_rules();
  ASSERT_EQ(rules.size(), finds.size());
  for (std::size_t i = 0; i < finds.size(); ++i) EXPECT_EQ(to_utf8(rules[i].find), finds[i]);
  EXPECT_EQ(rules[6].replacement, u"QvrK");
}

TEST(Zamenisve, RunsOnceOverTheText) { EXPECT_EQ(Rewriting::Zamenisve(u"K^22^3"), u"BinK2^3"); }

}  // namespace
}  // namespace tarnmill
