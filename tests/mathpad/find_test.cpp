#include "math_pad_fixture.h"

namespace tarnmill {
namespace {

class Finding : public MathPadTest {
 protected:
  [[nodiscard]] frmFind& form() { return program.window<frmFind>(); }
  void look_for(const Text& what, const Text& replacement = u"") {
    form().Text1.Text = what;
    form().Text2.Text = replacement;
  }
  void expect_not_found() {
    ASSERT_FALSE(dialogs().empty());
    EXPECT_EQ(last_dialog().text, u"String not found.");
    EXPECT_EQ(last_dialog().title, u"Tarnmill");
    EXPECT_EQ(last_dialog().icon, MessageIcon::none);
    EXPECT_EQ(last_dialog().buttons, MessageButtons::ok);
    EXPECT_FALSE(form().ReplaceButton.Enabled);
    EXPECT_FALSE(form().ReplaceAllButton.Enabled);
  }
};

TEST_F(Finding, AMatchIsSelected) {
  assign(u"one two two");
  look_for(u"two");
  pad().Show();
  form().Show();
  form().FindButton.press();
  EXPECT_EQ(form().position, 4);
  EXPECT_EQ(document().sel_start(), 4);
  EXPECT_EQ(document().sel_length(), 3);
  EXPECT_EQ(program.bench.active_window(), &pad());
  EXPECT_EQ(program.bench.focus(), &pad().rt1);
  form().FindNextButton.press();
  EXPECT_EQ(form().position, 8);
  form().FindNextButton.press();
  expect_not_found();
  EXPECT_EQ(form().position, -1);
  EXPECT_EQ(document().sel_start(), 8);
}

TEST_F(Finding, AMatchAtTheVeryStartIsOutOfReach) {
  assign(u"two one");
  look_for(u"two");
  form().FindButton.press();
  expect_not_found();
}

TEST_F(Finding, AfterAFailureTheNextSearchReachesTheStartAndCountsItAsFailed) {
  assign(u"two one");
  look_for(u"two");
  form().position = -1;
  form().FindNextButton.press();
  EXPECT_EQ(form().position, 0);
  EXPECT_EQ(document().sel_length(), 3);
  expect_not_found();
}

TEST_F(Finding, AnEmptyTextIsNeverFound) {
  assign(u"abc");
  look_for(u"");
  form().FindButton.press();
  expect_not_found();
}

TEST_F(Finding, OptionsNarrowTheSearch) {
  assign(u"- Two twofold two");
  look_for(u"two");
  form().FindButton.press();
  EXPECT_EQ(form().position, 2);
  form().Check1.Value = 1;
  form().FindButton.press();
  EXPECT_EQ(form().position, 6);
  form().Check2.Value = 1;
  form().FindButton.press();
  EXPECT_EQ(form().position, 14);
}

TEST_F(Finding, AReplacementTakesTheSelectionAndSearchesOn) {
  assign(u"- two two");
  look_for(u"two", u"2");
  form().FindButton.press();
  form().ReplaceButton.press();
  EXPECT_EQ(text(), u"- 2 two");
  EXPECT_EQ(form().position, 4);
  form().ReplaceButton.press();
  EXPECT_EQ(text(), u"- 2 2");
  expect_not_found();
}

TEST_F(Finding, WithNothingSelectedTheReplacementGoesToTheCaret) {
  assign(u"ab");
  document().select(1, 0);
  look_for(u"b", u"X");
  form().ReplaceButton.press();
  EXPECT_EQ(text(), u"aXb");
}

TEST_F(Finding, ASearchGoesOnWithinTheReplacement) {
  assign(u"- ab");
  look_for(u"b", u"abb");
  form().FindButton.press();
  form().ReplaceButton.press();
  EXPECT_EQ(text(), u"- aabb");
  EXPECT_EQ(form().position, 4);
}

TEST_F(Finding, AllAreReplaced) {
  assign(u"- two two two");
  look_for(u"two", u"2");
  form().FindButton.press();
  form().ReplaceAllButton.press();
  EXPECT_EQ(text(), u"- 2 2 2");
  EXPECT_EQ(last_dialog().text, u"Done replacing.");
  EXPECT_EQ(last_dialog().icon, MessageIcon::none);
  EXPECT_FALSE(form().ReplaceButton.Enabled);
  EXPECT_FALSE(form().ReplaceAllButton.Enabled);
}

TEST_F(Finding, AMatchThatSixteenBitsCannotCountEndsTheProgram) {
  assign(Text(32768, u'a') + u"b");
  look_for(u"b");
  program.bench.enter([this] { form().FindButton.press(); });
  EXPECT_TRUE(program.bench.ended());
  EXPECT_EQ(program.bench.fault(), 6);
}

TEST_F(Finding, TheMenuFindsTheNext) {
  assign(u"- a a");
  look_for(u"a");
  pad().mnunext.press();
  EXPECT_EQ(form().position, 2);
}

TEST_F(Finding, ClosingHidesTheWindow) {
  for (const bool by_button : {true, false}) {
    form().Show();
    program.bench.enter([&] { by_button ? form().Command5.press() : form().close(); });
    EXPECT_FALSE(form().Visible);
    EXPECT_NE(program.bench.find_window("frmFind"), nullptr);
  }
}

TEST_F(Finding, ItIsShownFromTheMenuAndTheToolbar) {
  pad().mnufind.press();
  EXPECT_TRUE(form().Visible);
  form().Hide();
  pad().Toolbar1.Buttons("Find").press();
  EXPECT_TRUE(form().Visible);
}

}  // namespace
}  // namespace tarnmill
