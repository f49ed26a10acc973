#include "shell/about.h"

#include "support/window_test.h"

namespace tarnmill {
namespace {

class AboutBox : public WindowTest<frmAbout> {
 protected:
  AboutBox() {
    act([this] { form().Show(); });
  }

  void step(int times = 1) {
    act([&] {
      for (int i = 0; i < times; ++i) form().tmrScroll.Tick.raise();
    });
  }
  [[nodiscard]] bool loaded() { return program.bench.find_window("frmAbout") != nullptr; }
  /// What the next step prints.
  [[nodiscard]] std::vector<PictureBox::Printed> printed() {
    form().picScroll.Record(true);
    step();
    form().picScroll.Record(false);
    std::vector<PictureBox::Printed> found;
    for (const PictureBox::Operation& each : form().picScroll.Ops()) {
      if (const auto* text = std::get_if<PictureBox::Printed>(&each)) found.push_back(*text);
    }
    return found;
  }
};

TEST_F(AboutBox, ItsClosingTimerIsSetAndStandsStill) {
  EXPECT_EQ(form().Timer1.Interval.get(), 1000);
  EXPECT_FALSE(form().Timer1.Enabled);
}

TEST_F(AboutBox, AStepIsDueWhenMoreThanFortyMillisecondsHavePassed) {
  EXPECT_TRUE(form().tmrScroll.Enabled);
  EXPECT_EQ(form().tmrScroll.Interval.get(), 41);
}

TEST_F(AboutBox, ItsTextComesFromBelowOneUnitAStep) {
  const auto first = printed();
  const auto second = printed();
  ASSERT_FALSE(first.empty());
  ASSERT_EQ(first.size(), second.size());
  EXPECT_EQ(to_utf8(first.front().text), "Tarnmill");
  EXPECT_EQ(first.front().y, form().picScroll.ScaleHeight());
  for (std::size_t i = 0; i < first.size(); ++i) EXPECT_EQ(second[i].y, first[i].y - 1);
}

TEST_F(AboutBox, EachStepClearsThePictureFirst) {
  form().picScroll.Record(true);
  step();
  EXPECT_TRUE(std::holds_alternative<PictureBox::Cleared>(form().picScroll.Ops().front()));
}

TEST_F(AboutBox, LinesStandInTheMiddleAndFitBetweenTheEdges) {
  const float width = form().picScroll.ScaleWidth();
  const auto lines = printed();
  EXPECT_GT(lines.size(), 7U) << "the long paragraph is wrapped";
  for (const auto& line : lines) {
    EXPECT_GE(line.x, 0) << to_utf8(line.text);
    EXPECT_LE(line.x, width / 2) << to_utf8(line.text);
  }
}

TEST_F(AboutBox, TheTextBeginsAgainWhenItIsWhollyAbove) {
  const float start = printed().front().y;
  float before = start;
  int steps = 0;
  for (float at = printed().front().y; at < before; at = printed().front().y, ++steps) {
    ASSERT_LT(steps, 2000);
    before = at;
  }
  EXPECT_LT(before, -100);
  EXPECT_EQ(printed().front().y, start - 1);
}

TEST_F(AboutBox, EachActivationStartsTheScrollAgain) {
  step(50);
  act([this] { form().Activate.raise(); });
  EXPECT_EQ(printed().front().y, form().picScroll.ScaleHeight());
}

TEST_F(AboutBox, ATickShowsItOrUnloadsIt) {
  act([this] { form().Hide(); });
  act([this] { form().Timer1.Tick.raise(); });
  EXPECT_TRUE(form().Visible);
  act([this] { form().Timer1.Tick.raise(); });
  EXPECT_FALSE(loaded());
}

TEST_F(AboutBox, AClickOrADoubleClickOnThePictureUnloadsIt) {
  act([this] { form().picScroll.Click.raise(); });
  EXPECT_TRUE(loaded());
  act([this] { form().picScroll.DblClick.raise(); });
  EXPECT_FALSE(loaded());
  act([this] { form().Show(); });
  act([this] { form().Click.raise(); });
  EXPECT_FALSE(loaded());
}

TEST_F(AboutBox, WithoutATextItTells) {
  act([this] {
    form().lblText.Caption = u"";
    form().Activate.raise();
  });
  expect_message(u"Error scrolling text", MessageIcon::exclamation);
  EXPECT_FALSE(form().tmrScroll.Enabled);
}

}  // namespace
}  // namespace tarnmill
