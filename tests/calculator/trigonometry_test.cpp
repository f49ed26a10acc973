#include "calculator/trigonometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calculator/calculator_keys.h"

namespace tarnmill {
namespace {

using Messages = std::vector<std::string>;

const std::string refused = message("information", "Invalid input.");

constexpr char degrees = 'd';
constexpr char radians = 'r';

struct AngleRow {
  char unit;
  const char* key;
  const char16_t* display;
  const char* answer;
};

void set_unit(Calculator& calculator, char unit) {
  if (unit == radians) calculator.radians();
}

void expect_answers(const std::vector<AngleRow>& rows) {
  for (const AngleRow& row : rows) {
    Calculator calculator;
    set_unit(calculator, row.unit);
    calculator.put(row.display);
    calculator.lose_focus();
    calculator.key(row.key);
    const std::string told = std::string{row.unit} + " " + row.key + " " + to_utf8(row.display);
    EXPECT_EQ(calculator.display(), row.answer) << told;
    EXPECT_EQ(calculator.messages(), Messages{}) << told;
    EXPECT_EQ(calculator.focus(), "Readout") << told;
    EXPECT_EQ(calculator.field("LastInput"), "") << told;
  }
}

TEST(Trigonometry, SinesOfSpecialAnglesAreWhole) {
  expect_answers({
      {radians, "cmdSinr", u"0", "0"},
      {radians, "cmdSinr", u"1.5707963267949", "1"},
      {radians, "cmdSinr", u"3.14159265358979", "0"},
      {radians, "cmdSinr", u"4.71238898038469", "-1"},
      {radians, "cmdSinr", u"6.28318530717958", "0"},
      {degrees, "cmdsing", u"0", "0"},
      {degrees, "cmdsing", u"90", "1"},
      {degrees, "cmdsing", u"180", "0"},
      {degrees, "cmdsing", u"270", "-1"},
      {degrees, "cmdsing", u"360", "0"},
      {degrees, "cmdsing", u"90.", "1"},
  });
}

TEST(Trigonometry, CosinesOfSpecialAnglesAreWhole) {
  expect_answers({
      {radians, "cmdcosr", u"0", "1"},
      {radians, "cmdcosr", u"1.5707963267949", "0"},
      {radians, "cmdcosr", u"3.14159265358979", "-1"},
      {radians, "cmdcosr", u"4.71238898038469", "0"},
      {radians, "cmdcosr", u"6.28318530717958", "1"},
      {degrees, "cmdCosg", u"0", "1"},
      {degrees, "cmdCosg", u"90", "0"},
      {degrees, "cmdCosg", u"180", "-1"},
      {degrees, "cmdCosg", u"270", "0"},
      {degrees, "cmdCosg", u"360", "1"},
  });
}

TEST(Trigonometry, TangentsOfSpecialAnglesAreWhole) {
  expect_answers({
      {radians, "cmdtanr", u"0.785398163397448", "1"},
      {degrees, "cmdtanr", u"0.785398163397448", "1"},
      {radians, "cmdtanr", u"0", "0"},
      {radians, "cmdtanr", u"3.14159265358979", "0"},
      {radians, "cmdtanr", u"6.28318530717958", "0"},
      {degrees, "cmdtang", u"45", "1"},
      {radians, "cmdtang", u"45", "1"},
      {degrees, "cmdtang", u"0", "0"},
      {degrees, "cmdtang", u"180", "0"},
      {degrees, "cmdtang", u"360", "0"},
  });
}

TEST(Trigonometry, InverseFunctionsHaveTheirOwnSpecialAnswers) {
  expect_answers({
      {degrees, "cmdasin", u"-1", "270"},
      {degrees, "cmdasin", u"1", "90"},
      {degrees, "cmdasin", u"0", "0"},
      {radians, "cmdasin", u"-1", "4.71238898038469"},
      {radians, "cmdasin", u"1", "1.5707963267949"},
      {radians, "cmdasin", u"0", "0"},
      {degrees, "cmdacos", u"0", "90"},
      {radians, "cmdacos", u"0", "1.5707963267949"},
      {degrees, "cmdacos", u"1", "0"},
      {radians, "cmdacos", u"1", "0"},
      {degrees, "cmdacos", u"-1", "180"},
      {radians, "cmdacos", u"-1", "3.14159265358979"},
      {degrees, "cmdatan", u"0", "0"},
      {radians, "cmdatan", u"0", "0"},
      {degrees, "cmdatan", u"-1", "-45"},
      {degrees, "cmdatan", u"1", "45"},
      {radians, "cmdatan", u"1", "0.785398163397448"},
      {degrees, "cmdacot", u"0", "90"},
      {radians, "cmdacot", u"0", "90"},
      {degrees, "cmdacot", u"-1", "180"},
      {radians, "cmdacot", u"-1", "180"},
  });
}

TEST(Trigonometry, EveryOtherValueIsComputed) {
  expect_answers({
      {radians, "cmdSinr", u"1", "0.841470984807897"},
      {degrees, "cmdsing", u"30", "0.5"},
      {radians, "cmdcosr", u"1", "0.54030230586814"},
      {degrees, "cmdCosg", u"60", "0.500000000000001"},
      {radians, "cmdtanr", u"1", "1.5574077246549"},
      {radians, "cmdcotr", u"1", "0.642092615934331"},
      {degrees, "cmdcotg", u"45", "1"},
      {radians, "cmdasin", u"0.5", "0.523598775598299"},
      {radians, "cmdacos", u"0.5", "1.0471975511966"},
      {radians, "cmdatan", u"2", "1.10714871779409"},
      {radians, "cmdatan", u"-1", "-0.785398163397448"},
      {radians, "cmdacot", u"2", "2.67794504458899"},
      {radians, "cmdacot", u"1", "2.35619449019234"},
  });
}

TEST(Trigonometry, SpecialAnglesHoldInTheirUnitAlone) {
  expect_answers({
      {degrees, "cmdSinr", u"1.5707963267949", "1"},
      {degrees, "cmdcosr", u"1.5707963267949", "-3.49148133884313E-15"},
      {degrees, "cmdSinr", u"3.14159265358979", "3.23108914886517E-15"},
      {radians, "cmdsing", u"180", "3.23108914886517E-15"},
      {radians, "cmdCosg", u"90", "1.61554457443259E-15"},
  });
}

TEST(Trigonometry, DegreesGoThroughTheConstantOfTheDisplay) {
  EXPECT_EQ(radians_of(90), 90 * 6.28318530717958 / 360);
  EXPECT_EQ(degrees_of(2), 2 * 360.0 / 6.28318530717958);
  EXPECT_EQ(sine_of_degrees.general(77, AngleUnit::degrees), std::sin(77 * 6.28318530717958 / 360));
  EXPECT_EQ(arctangent_key.general(3, AngleUnit::degrees), std::atan(3.0) * (360 / 6.28318530717958));
}

struct RefusedRow {
  char unit;
  const char* key;
  const char16_t* display;
};

void expect_message(const RefusedRow& row, const std::string& expected) {
  Calculator calculator;
  set_unit(calculator, row.unit);
  calculator.put(row.display);
  calculator.lose_focus();
  calculator.key(row.key);
  const std::string told = std::string{row.unit} + " " + row.key + " " + to_utf8(row.display);
  EXPECT_EQ(calculator.messages(), Messages{expected}) << told;
  EXPECT_EQ(calculator.display(), to_utf8(row.display)) << told;
  EXPECT_EQ(calculator.focus(), "Readout") << told;
}

TEST(Trigonometry, TangentsAtAPoleAreRefused) {
  const RefusedRow rows[] = {
      {radians, "cmdtanr", u"1.5707963267949"},
      {radians, "cmdtanr", u"-1.5707963267949"},
      {radians, "cmdtanr", u"4.71238898038469"},
      {degrees, "cmdtang", u"90"},
      {degrees, "cmdtang", u"-90"},
      {degrees, "cmdtang", u"270"},
  };
  for (const RefusedRow& row : rows) expect_message(row, refused);
}

TEST(Trigonometry, PolesAreRefusedInTheirUnitAlone) {
  Calculator calculator;
  calculator.put(u"1.5707963267949");
  calculator.key("cmdtanr");
  EXPECT_EQ(calculator.messages(), Messages{});
  EXPECT_NE(calculator.display(), "1.5707963267949");
}

TEST(Trigonometry, DirectKeysTellOfTextThatIsNoNumber) {
  for (const char* key : {"cmdSinr", "cmdsing", "cmdcosr", "cmdCosg", "cmdtanr", "cmdtang"}) {
    expect_message({degrees, key, u"-"}, refused);
    expect_message({radians, key, u"12abc"}, refused);
    expect_message({radians, key, u""}, refused);
  }
}

TEST(Trigonometry, InverseKeysTellOfAValueOutsideTheirDomain) {
  for (const char16_t* outside : {u"2", u"-2", u"1.0001"}) {
    expect_message({degrees, "cmdasin", outside}, refused);
    expect_message({radians, "cmdacos", outside}, refused);
  }
}

TEST(Trigonometry, OtherFailuresPassInSilence) {
  const RefusedRow rows[] = {
      {degrees, "cmdasin", u"-"},      {degrees, "cmdacos", u"-"},      {degrees, "cmdatan", u"-"},
      {degrees, "cmdsing", u"1E+999"}, {degrees, "cmdtang", u"1E+308"}, {radians, "cmdcosr", u"1E+999"},
      {radians, "cmdasin", u"1E+300"},
  };
  for (const RefusedRow& row : rows) {
    Calculator calculator;
    set_unit(calculator, row.unit);
    calculator.put(row.display);
    calculator.lose_focus();
    calculator.key(row.key);
    EXPECT_EQ(calculator.messages(), Messages{}) << row.key;
    EXPECT_EQ(calculator.display(), to_utf8(row.display)) << row.key;
    EXPECT_EQ(calculator.focus(), "Readout") << row.key;
    EXPECT_FALSE(calculator.bench.ended()) << row.key;
  }
}

struct FatalRow {
  const char* key;
  const char16_t* display;
  int fault;
  const char* text;
};

TEST(Trigonometry, KeysWithoutARecoveryEndTheProgram) {
  const FatalRow rows[] = {
      {"cmdcotr", u"0.", 11, "Run-time error '11':\r\n\r\nDivision by zero"},
      {"cmdcotg", u"0.", 11, "Run-time error '11':\r\n\r\nDivision by zero"},
      {"cmdacot", u"-", 13, "Run-time error '13':\r\n\r\nType mismatch"},
      {"cmdconv", u"1E+308", 6, "Run-time error '6':\r\n\r\nOverflow"},
      {"cmdOver", u"1E-310", 6, "Run-time error '6':\r\n\r\nOverflow"},
  };
  for (const FatalRow& row : rows) {
    Calculator calculator;
    calculator.put(row.display);
    calculator.key(row.key);
    EXPECT_EQ(calculator.messages(), Messages{message("critical", row.text)}) << row.key;
    EXPECT_TRUE(calculator.bench.ended()) << row.key;
    EXPECT_EQ(calculator.bench.fault(), row.fault) << row.key;
  }
}

TEST(Trigonometry, CotangentsReadTheDisplayLeniently) {
  Calculator calculator;
  calculator.put(u"45abc");
  calculator.key("cmdcotg");
  EXPECT_EQ(calculator.display(), "1");
}

TEST(Trigonometry, HalfPiComputedByTheCalculatorIsSpecial) {
  Calculator calculator;
  calculator.radians();
  calculator.key("pi X 0.5 =");
  EXPECT_EQ(calculator.display(), "1.5707963267949");
  calculator.key("cmdSinr");
  EXPECT_EQ(calculator.display(), "1");
}

TEST(Trigonometry, UnderADecimalCommaComparisonsReadTheCommaAndComputationsDoNot) {
  Calculator calculator;
  calculator.desk.decimal_separator(u',');
  calculator.put(u"0,785398163397448");
  calculator.key("cmdtanr");
  EXPECT_EQ(calculator.display(), "1");
  calculator.put(u"1,5");
  calculator.key("cmdCosg");
  EXPECT_EQ(calculator.display(), "0,999847695156391");
}

}  // namespace
}  // namespace tarnmill
