#include <gtest/gtest.h>

#include "forms/sample_window.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

using Notes = std::vector<std::string>;

class PropertyTest : public ::testing::Test {
 protected:
  TestProgram program;
  SampleWindow window{program.bench};
};

TEST_F(PropertyTest, ANewTextRaisesChangeBeforeTheSetterReturns) {
  window.txt.Text = u"a";
  EXPECT_EQ(window.notes, Notes{"Change a"});
}

TEST_F(PropertyTest, TheSameTextRaisesNothing) {
  window.txt.Text = u"a";
  window.txt.Text = u"a";
  EXPECT_EQ(window.notes.size(), 1U);
}

TEST_F(PropertyTest, AStartValueRaisesNothing) {
  window.txt.Text.start_as(u"a");
  EXPECT_TRUE(window.notes.empty());
}

TEST_F(PropertyTest, AHandlerMaySetTheSamePropertyAgain) {
  window.txt.Change.handle([this] {
    window.note(to_utf8(window.txt.Text.get()));
    if (window.txt.Text->size() < 3) window.txt.Text = window.txt.Text.get() + u"+";
  });
  window.txt.Text = u"a";
  EXPECT_EQ(window.notes, (Notes{"a", "a+", "a++"}));
  EXPECT_EQ(window.txt.Text.get(), u"a++");
}

TEST_F(PropertyTest, AViewHearsOfAChangeBeforeTheHandlerAndReadsTheCurrentValue) {
  window.lbl.observe(this, [this](const PropertyBase& property) {
    window.note("view " + std::string{property.name()} + " " + to_utf8(window.lbl.Caption.get()));
  });
  window.lbl.Caption = u"x";
  window.lbl.stop_observing(this);
  window.lbl.Caption = u"y";
  EXPECT_EQ(window.notes, (Notes{"view Caption x", "Change x", "Change y"}));
}

TEST_F(PropertyTest, ANumberWrittenToATextIsWrittenAsText) {
  window.txt.find_property("Text")->write(Variant{0.5});
  EXPECT_EQ(window.txt.Text.get(), u"0.5");
}

TEST_F(PropertyTest, ATextWrittenToANumberIsReadStrictly) {
  window.timer.find_property("Interval")->write(Variant{u"250"});
  EXPECT_EQ(window.timer.Interval, 250);
  EXPECT_THROW(window.timer.find_property("Interval")->write(Variant{u"soon"}), Fault);
  EXPECT_EQ(window.timer.Interval, 250);
}

TEST_F(PropertyTest, AnIntegerFieldRoundsHalfToEvenAndKeepsItsRange) {
  window.Count.write(Variant{2.5});
  EXPECT_EQ(window.Count, 2);
  EXPECT_THROW(window.Count.write(Variant{32767.5}), Fault);
  EXPECT_EQ(window.Count, 2);
}

TEST_F(PropertyTest, AReadOnlyPropertyRefusesToBeWritten) {
  EXPECT_THROW(window.combo.find_property("ListCount")->write(Variant{3}), Fault);
}

TEST_F(PropertyTest, TheAccessibleNameIsTheTooltipElseTheCaptionWithoutBlanks) {
  EXPECT_EQ(window.cmd.accessible_name(), u"Go there");
  window.cmd.ToolTipText = u"";
  EXPECT_EQ(window.cmd.accessible_name(), u"&Go");
  EXPECT_EQ(window.txt.accessible_name(), u"");
}

}  // namespace
}  // namespace tarnmill
