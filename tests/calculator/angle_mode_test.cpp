#include <gtest/gtest.h>

#include "calculator/calculator_keys.h"

namespace tarnmill {
namespace {

const std::vector<std::string> radian_keys{"cmdSinr", "cmdcosr", "cmdtanr", "cmdcotr"};
const std::vector<std::string> degree_keys{"cmdsing", "cmdCosg", "cmdtang", "cmdcotg"};
const std::vector<std::string> inverse_keys{"cmdasin", "cmdacos", "cmdatan", "cmdacot"};

std::vector<std::string> visible_keys(const Form1& form) {
  std::vector<std::string> visible;
  for (const auto* set : {&radian_keys, &degree_keys, &inverse_keys}) {
    for (const std::string& name : *set) {
      if (form.find_control(name)->Visible) visible.push_back(name);
    }
  }
  return visible;
}

TEST(AngleMode, StartsWithDegreesNotInverse) {
  Calculator calculator;
  const Form1& form = calculator.form;
  EXPECT_EQ(visible_keys(form), degree_keys);
  EXPECT_EQ(form.Check1.Value, 0);
  EXPECT_EQ(form.Check2.Value, 1);
  EXPECT_EQ(to_utf8(form.Check1.Caption.get()), "inv");
  EXPECT_EQ(to_utf8(form.Check2.Caption.get()), "deg");
  EXPECT_EQ(to_utf8(form.cmddeg.Picture.get()), "deg");
  EXPECT_EQ(to_utf8(form.cmdinv.Picture.get()), "inv");
  EXPECT_TRUE(form.cmddeg.Enabled);
}

TEST(AngleMode, TheModeKeyTogglesBetweenDegreesAndRadians) {
  Calculator calculator;
  const Form1& form = calculator.form;
  calculator.lose_focus();
  calculator.key("cmddeg");
  EXPECT_EQ(visible_keys(form), radian_keys);
  EXPECT_EQ(form.Check2.Value, 0);
  EXPECT_EQ(to_utf8(form.cmddeg.Picture.get()), "rad");
  EXPECT_EQ(calculator.focus(), "Readout");
  calculator.key("cmddeg");
  EXPECT_EQ(visible_keys(form), degree_keys);
  EXPECT_EQ(form.Check2.Value, 1);
  EXPECT_EQ(to_utf8(form.cmddeg.Picture.get()), "deg");
}

struct InverseRow {
  bool in_radians;
  const std::vector<std::string>& keys;
  int check2;
  const char* picture;
  const char* disabled_picture;
};

TEST(AngleMode, InverseModeOnAndOffLeavesTheUnitAsItWas) {
  const InverseRow rows[] = {{false, degree_keys, 1, "deg", "deg-disabled"},
                             {true, radian_keys, 0, "rad", "rad-disabled"}};
  for (const InverseRow& row : rows) {
    Calculator calculator;
    const Form1& form = calculator.form;
    if (row.in_radians) calculator.radians();
    calculator.lose_focus();
    calculator.key("cmdinv");
    EXPECT_EQ(visible_keys(form), inverse_keys);
    EXPECT_EQ(form.Check1.Value, 1);
    EXPECT_EQ(form.Check2.Value, row.check2);
    EXPECT_FALSE(form.cmddeg.Enabled);
    EXPECT_EQ(to_utf8(form.cmddeg.Picture.get()), row.disabled_picture);
    EXPECT_EQ(to_utf8(form.cmdinv.Picture.get()), "inv-on");
    EXPECT_EQ(calculator.focus(), "Readout");
    calculator.lose_focus();
    calculator.key("cmdinv");
    EXPECT_EQ(visible_keys(form), row.keys);
    EXPECT_EQ(form.Check1.Value, 0);
    EXPECT_EQ(form.Check2.Value, row.check2);
    EXPECT_TRUE(form.cmddeg.Enabled);
    EXPECT_EQ(to_utf8(form.cmddeg.Picture.get()), row.picture);
    EXPECT_EQ(to_utf8(form.cmdinv.Picture.get()), "inv");
    EXPECT_EQ(calculator.focus(), "Readout");
  }
}

TEST(AngleMode, TheModeKeyInInverseModeShowsThreeInverseKeysAndKeepsTheUnit) {
  Calculator calculator;
  Form1& form = calculator.form;
  calculator.key("cmdinv");
  for (const std::string& name : inverse_keys) form.find_control(name)->Visible = false;
  for (const std::string& name : degree_keys) form.find_control(name)->Visible = true;
  calculator.key("cmddeg");
  EXPECT_EQ(visible_keys(form), (std::vector<std::string>{"cmdasin", "cmdacos", "cmdatan"}));
  EXPECT_EQ(form.Check2.Value, 1);
}

TEST(AngleMode, IsNotSavedBetweenRuns) {
  TestProgram program;
  program.window<Form1>().cmddeg.press();
  program.window<Form1>().cmdinv.press();
  program.restart();
  EXPECT_EQ(program.window<Form1>().Check1.Value, 0);
  EXPECT_EQ(program.window<Form1>().Check2.Value, 1);
}

}  // namespace
}  // namespace tarnmill
