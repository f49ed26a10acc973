#include <gtest/gtest.h>

#include <QLabel>

#include "calculator/form1.h"
#include "desktop/program_fixture.h"

namespace tarnmill::desktop {
namespace {

class CalculatorByHand : public ProgramByHand {
 protected:
  CalculatorByHand() { EXPECT_TRUE(QTest::qWaitForWindowActive(&form("Form1"))); }

  Form1& window() { return bench.window<Form1>(); }
  void press(const QStringList& names) {
    for (const QString& each : names) click("Form1", each);
  }
  void type(const QList<Qt::Key>& keys, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const Qt::Key each : keys) key("Form1", each, modifiers);
  }
  QString display() { return widget<QLabel>("Form1", "Label4").text(); }
};

TEST_F(CalculatorByHand, AddsAndMultipliesByTheMouse) {
  press({"Number_2", "Operator_1", "Number_3", "Operator_2", "Number_4", "Operator_4"});
  EXPECT_EQ(display(), "20");
}

TEST_F(CalculatorByHand, AddsAndMultipliesByTheNumberBlock) {
  type({Qt::Key_2, Qt::Key_Plus, Qt::Key_3, Qt::Key_Asterisk, Qt::Key_4, Qt::Key_Enter}, Qt::KeypadModifier);
  EXPECT_EQ(display(), "20");
}

TEST_F(CalculatorByHand, SignsOnTheMainKeysWorkAsTheNumberBlocks) {
  type({Qt::Key_8, Qt::Key_Period, Qt::Key_5}, Qt::KeypadModifier);
  type({Qt::Key_Slash});
  type({Qt::Key_2}, Qt::KeypadModifier);
  type({Qt::Key_Return});
  EXPECT_EQ(display(), "4.25");
}

TEST_F(CalculatorByHand, TheDisplayKeepsTheKeyboardWhateverIsPressed) {
  press({"Number_7", "cmdlog"});
  EXPECT_EQ(bench.focus(), &window().Readout);
  type({Qt::Key_9}, Qt::KeypadModifier);
  EXPECT_FALSE(display().isEmpty());
  EXPECT_TRUE(widget<QWidget>("Form1", "Readout").hasFocus());
}

TEST_F(CalculatorByHand, NothingIsTypedIntoTheDisplay) {
  press({"Number_7"});
  const QString before = display();
  QTest::keyClicks(&widget<QWidget>("Form1", "Readout"), "abc");
  QTest::keyClick(&widget<QWidget>("Form1", "Readout"), Qt::Key_Backspace);
  EXPECT_EQ(display(), before);
}

TEST_F(CalculatorByHand, InverseModeLightsItsLampAndShowsItsKeys) {
  EXPECT_TRUE(widget("Form1", "cmdsing").isVisible());
  press({"cmdinv"});
  EXPECT_EQ(widget("Form1", "cmdinv").lamp(), KeyLamp::on);
  EXPECT_FALSE(widget("Form1", "cmdsing").isVisible());
  EXPECT_TRUE(widget("Form1", "cmdasin").isVisible());
  EXPECT_FALSE(widget("Form1", "cmddeg").isEnabled());
  press({"cmdinv"});
  EXPECT_EQ(widget("Form1", "cmdinv").lamp(), KeyLamp::off);
  EXPECT_TRUE(widget("Form1", "cmdsing").isVisible());
}

TEST_F(CalculatorByHand, TheAngleModeStandsOnItsChip) {
  EXPECT_EQ(widget("Form1", "cmddeg").chip(), "DEG");
  press({"cmddeg"});
  EXPECT_EQ(widget("Form1", "cmddeg").chip(), "RAD");
}

TEST_F(CalculatorByHand, TheMemorySignShowsWhenSomethingIsStored) {
  EXPECT_FALSE(widget<QLabel>("Form1", "Label2").isVisible());
  press({"Number_5", "cmdMemory1"});
  EXPECT_TRUE(widget<QLabel>("Form1", "Label2").isVisible());
  press({"cmdMemory3"});
  EXPECT_FALSE(widget<QLabel>("Form1", "Label2").isVisible());
}

TEST_F(CalculatorByHand, AModeKeyIsDownWhileTheMouseHoldsIt) {
  auto& graph = widget("Form1", "img");
  QTest::mousePress(&graph, Qt::LeftButton);
  EXPECT_TRUE(graph.is_held());
  QTest::mouseMove(&form("Form1"), {5, 5});
  EXPECT_FALSE(graph.is_held());
  QTest::mouseRelease(&form("Form1"), Qt::LeftButton, Qt::NoModifier, {5, 5});
}

TEST_F(CalculatorByHand, ItsOwnDigitsStandOnTheKeys) {
  for (int digit = 0; digit <= 9; ++digit) {
    const QString number = QString::number(digit);
    EXPECT_EQ(widget("Form1", "Number_" + number).text(), number);
  }
}

TEST_F(CalculatorByHand, TheExitKeyEndsTheProgram) {
  press({"cmdExit"});
  EXPECT_TRUE(bench.ended());
}

}  // namespace
}  // namespace tarnmill::desktop
