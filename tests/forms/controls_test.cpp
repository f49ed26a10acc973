#include <gtest/gtest.h>

#include "forms/sample_window.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

using Notes = std::vector<std::string>;

class ControlsTest : public ::testing::Test {
 protected:
  TestProgram program;
  SampleWindow window{program.bench};
};

TEST_F(ControlsTest, AnAssignedTextPutsTheCaretAtTheStart) {
  window.txt.Text = u"abc";
  window.txt.select(1, 2);
  window.txt.Text = u"defg";
  EXPECT_EQ(window.txt.sel_start(), 0);
  EXPECT_EQ(window.txt.sel_length(), 0);
}

TEST_F(ControlsTest, TextPutInForTheSelectionLeavesTheCaretBehindIt) {
  window.txt.Text = u"abcd";
  window.txt.select(1, 2);
  window.txt.replace_selection(u"XYZ");
  EXPECT_EQ(window.txt.Text.get(), u"aXYZd");
  EXPECT_EQ(window.txt.sel_start(), 4);
  EXPECT_EQ(window.txt.sel_length(), 0);
}

TEST_F(ControlsTest, TheSameTextPutInForTheSelectionMovesTheCaretAndRaisesNothing) {
  window.txt.Text = u"abcd";
  window.notes.clear();
  window.txt.select(1, 2);
  window.txt.replace_selection(u"bc");
  EXPECT_EQ(window.txt.sel_start(), 3);
  EXPECT_TRUE(window.notes.empty());
}

TEST_F(ControlsTest, TheChangeHandlerSeesTheCaretWhereItWillBe) {
  int seen = -1;
  window.txt.Change.handle([&] { seen = window.txt.sel_start(); });
  window.txt.replace_selection(u"12");
  EXPECT_EQ(seen, 2);
}

TEST_F(ControlsTest, ASelectionIsCutToTheText) {
  window.txt.Text = u"abc";
  window.txt.select(2, 9);
  EXPECT_EQ(window.txt.sel_length(), 1);
  window.txt.select(9, 1);
  EXPECT_EQ(window.txt.sel_start(), 3);
  EXPECT_THROW(window.txt.select(-1, 0), Fault);
}

TEST_F(ControlsTest, AClickOnACheckBoxChangesItsValueAndRaisesClickOnce) {
  window.check.press();
  window.check.press();
  EXPECT_EQ(window.notes, (Notes{"check 1", "check 0"}));
}

TEST_F(ControlsTest, ANewValueOfACheckBoxRaisesClickOnceAndTheSameValueNothing) {
  window.check.Value = 1;
  window.check.Value = 1;
  EXPECT_EQ(window.notes, Notes{"check 1"});
}

TEST_F(ControlsTest, OfTwoOptionButtonsOneIsOn) {
  window.option(0).press();
  window.option(1).press();
  EXPECT_FALSE(window.option(0).Value);
  EXPECT_TRUE(window.option(1).Value);
  EXPECT_EQ(window.notes, (Notes{"option 0", "option 1"}));
}

TEST_F(ControlsTest, AChoiceInAListTakesTheTextAndRaisesClick) {
  window.combo.AddItem(u"Sin");
  window.combo.AddItem(u"Cos");
  EXPECT_EQ(window.combo.Text.get(), u"Functions");
  window.combo.choose(1);
  EXPECT_EQ(window.combo.ListIndex, 1);
  EXPECT_EQ(window.notes, Notes{"combo Cos"});
}

TEST_F(ControlsTest, ChoosingTheSameEntryAgainRaisesClickAgain) {
  window.combo.AddItem(u"Sin");
  window.combo.choose(0);
  window.combo.choose(0);
  EXPECT_EQ(window.notes, (Notes{"combo Sin", "combo Sin"}));
}

TEST_F(ControlsTest, ATextThatIsSetChoosesItsEntryWithoutAClick) {
  window.combo.AddItem(u"Sin");
  window.combo.AddItem(u"Cos");
  window.combo.Text = u"Cos";
  EXPECT_EQ(window.combo.ListIndex, 1);
  window.combo.Text = u"Tan";
  EXPECT_EQ(window.combo.ListIndex, -1);
  EXPECT_TRUE(window.notes.empty());
  window.combo.ListIndex = 1;
  EXPECT_EQ(window.combo.Text.get(), u"Cos");
  EXPECT_EQ(window.notes, Notes{"combo Cos"});
}

TEST_F(ControlsTest, AListIndexOutsideOfTheListIsRefused) {
  EXPECT_THROW(window.combo.ListIndex = 0, Fault);
  EXPECT_EQ(window.combo.ListIndex, -1);
}

TEST_F(ControlsTest, HandlersOfAnArrayAreToldTheIndex) {
  window.Keys(2).press();
  int code = 65;
  window.Keys(3).KeyDown.raise(code, 1);
  EXPECT_EQ(window.notes, (Notes{"Keys 2", "Keys 3 key 65 1"}));
  EXPECT_EQ(code, 39);
  EXPECT_THROW(window.Keys(4).press(), Fault);
}

TEST_F(ControlsTest, APictureKeyShowsItsPressedPictureWhileItIsDown) {
  window.key.MouseDown.raise(1, 0, 0, 0);
  EXPECT_EQ(window.key.Picture.get(), u"down");
  window.key.MouseUp.raise(1, 0, 0, 0);
  EXPECT_EQ(window.key.Picture.get(), u"up");
  window.key.MouseDown.raise(1, 0, 0, 0);
  window.picture_key.release();
  EXPECT_EQ(window.key.Picture.get(), u"up");
}

TEST_F(ControlsTest, ATimerTicksEachTimeItsIntervalHasPassed) {
  window.timer.Enabled = true;
  program.bench.timers().advance(99);
  EXPECT_TRUE(window.notes.empty());
  program.bench.timers().advance(1);
  program.bench.timers().advance(250);
  EXPECT_EQ(window.notes, (Notes{"Timer", "Timer", "Timer"}));
}

TEST_F(ControlsTest, ATimerThatStopsItselfTicksNoMore) {
  window.timer.Tick.handle([this] {
    window.note("Timer");
    window.timer.Enabled = false;
  });
  window.timer.Enabled = true;
  program.bench.timers().advance(1000);
  EXPECT_EQ(window.notes, Notes{"Timer"});
  EXPECT_LT(program.bench.timers().next_due(), 0);
}

TEST_F(ControlsTest, ANewIntervalStartsTheWaitAfresh) {
  window.timer.Enabled = true;
  program.bench.timers().advance(90);
  window.timer.Interval = 50;
  EXPECT_DOUBLE_EQ(program.bench.timers().next_due(), 50);
  window.timer.Interval = 0;
  EXPECT_LT(program.bench.timers().next_due(), 0);
}

}  // namespace
}  // namespace tarnmill
