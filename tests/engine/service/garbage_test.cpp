#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "engine/service/service_support.h"

namespace tarnmill {
namespace {

using testing::Service;

// Pieces of statements in random order: most texts are broken, some are not.
TEST(ServiceGarbage, EndsInAValueOrInAFault) {
  constexpr std::array<TextView, 32> pieces{
      u"1",    u"2.5",   u",",        u"E",  u"(", u")",    u"(",   u")",    u"+",    u"-",     u"*",
      u"/",    u"^",     u"x",        u"pi", u"e", u"sin(", u"ln(", u"abs(", u"cbm(", u"Push(", u"Intg(",
      u"Avg(", u"diff(", u"PopAll()", u" ",  u"0", u"3",    u"(x)", u"(2)",  u"rnd(", u"#"};
  std::mt19937 random{20240601};
  std::uniform_int_distribution<std::size_t> piece{0, pieces.size() - 1};
  std::uniform_int_distribution<int> length{1, 8};
  Service service;
  int values = 0;
  int faults = 0;
  for (int i = 0; i < 50'000; ++i) {
    Text statement;
    for (int left = length(random); left > 0; --left) statement += pieces[piece(random)];
    const auto number = testing::fault_number([&] { service.run(statement); });
    ++(number ? faults : values);
    if (number) {
      EXPECT_TRUE(*number == 5 || *number == 6 || *number == 11 || *number == statement_fault_number)
          << to_utf8(statement);
    }
  }
  EXPECT_GT(values, 1000);
  EXPECT_GT(faults, 1000);
}

}  // namespace
}  // namespace tarnmill
