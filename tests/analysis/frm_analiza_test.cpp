#include "analysis/frm_analiza.h"

#include <filesystem>

#include "forms/files.h"
#include "mathpad/math_pad.h"
#include "support/window_test.h"

namespace tarnmill {
namespace {

const char* const not_found = "\r\nNOT FOUND (Decrease both range and step and try again.)";

class Analysis : public WindowTest<frmAnaliza> {
 protected:
  void ask(const Text& function, const Text& from, const Text& to, const Text& step = u"0.001",
           const Text& second = u"") {
    form().txtformula.Text = function;
    form().txtfunc2.Text = second;
    form().txtdole.Text = from;
    form().txtgore.Text = to;
    form().Combo1.Text = step;
  }
  [[nodiscard]] std::string log() { return to_utf8(form().txtroot.Text.get()); }
  [[nodiscard]] std::string latest() { return to_utf8(form().lblroot.Caption.get()); }
  /// What the last request wrote behind its head.
  [[nodiscard]] std::string found() {
    const std::string whole = log();
    const auto head = whole.rfind("\r\n\r\n");
    const auto end = whole.find("\r\n", head + 4);
    return end == std::string::npos ? "" : whole.substr(end);
  }
};

TEST_F(Analysis, OffersNamesAndSteps) {
  EXPECT_EQ(form().C1.items().size(), 43U);
  EXPECT_EQ(form().C1.List(0), u"Exp");
  EXPECT_EQ(form().Combo1.Text.get(), u"0.001");
  EXPECT_EQ(form().Combo1.List(4), u"0.00001");
}

TEST_F(Analysis, EditingFunctionOneDiscardsTheRange) {
  ask(u"x", u"1", u"2", u"0.1");
  form().txtfunc2.Text = u"x+1";
  EXPECT_EQ(form().txtdole.Text.get(), u"1");
  form().txtformula.Text = u"x2";
  EXPECT_EQ(form().txtdole.Text.get(), u"");
  EXPECT_EQ(form().txtgore.Text.get(), u"");
  EXPECT_EQ(form().Combo1.Text.get(), u"0.001");
}

TEST_F(Analysis, FindsTheFirstRoot) {
  ask(u"x-0.5", u"0", u"1");
  click(&frmAnaliza::Image1);
  expect_message(u"Function y = x-0.5\r\nhas root in x = 0.5.");
  EXPECT_EQ(log(), "\r\n\r\nRoot(s) for y = x-0.5 in range x = [0;1] with Step = 0.001\r\nx = 0.5");
  EXPECT_EQ(latest(), "0.5");
  EXPECT_FALSE(form().pb1.Visible);
  expect_no_message();
}

TEST_F(Analysis, AValueThatRoundsToZeroIsARoot) {
  ask(u"x^2+0.0001", u"-1", u"1");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(latest(), "-0.02");
}

TEST_F(Analysis, AChangeOfSignIsNotLookedAt) {
  ask(u"100*x-33.33", u"0", u"1", u"0.1");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(found(), not_found);
  expect_no_message();
}

TEST_F(Analysis, AReversedRangeMakesNoRound) {
  ask(u"x", u"1", u"-1", u"0.1");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(found(), not_found);
}

TEST_F(Analysis, ANegativeStepWalksDown) {
  ask(u"x", u"1", u"-1", u"-0.5");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(found(), "\r\nx = 0");
}

TEST_F(Analysis, ARangeOfOnePointEndsInSilence) {
  ask(u"x", u"0", u"0");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(log(), "\r\n\r\nRoot(s) for y = x in range x = [0;0] with Step = 0.001");
  expect_no_message();
}

TEST_F(Analysis, AStepThatIsNoNumberEndsInSilence) {
  for (const auto request : {&frmAnaliza::Image1, &frmAnaliza::Image2, &frmAnaliza::Image5}) {
    ask(u"x", u"0", u"1", u"abc", u"x");
    click(request);
    EXPECT_EQ(found(), "");
    expect_no_message();
  }
}

TEST_F(Analysis, BadFunctionsEndInSilence) {
  for (const char16_t* function : {u"foo(x)", u"(x", u"x)", u"ln(x)"}) {
    ask(function, u"-1", u"1", u"0.5", u"x");
    for (const auto request : {&frmAnaliza::Image1, &frmAnaliza::Image2, &frmAnaliza::Image5}) {
      click(request);
      EXPECT_EQ(found(), "") << to_utf8(function);
      expect_no_message();
    }
  }
}

TEST_F(Analysis, AStepOfZeroStopsAtARootAtTheLowerEnd) {
  ask(u"x", u"0", u"1", u"0");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(found(), "\r\nx = 0");
}

TEST_F(Analysis, AWalkThatEndsShortOfItsRangeLeavesTheBar) {
  ask(u"x+9", u"0", u"1", u"0.3");
  click(&frmAnaliza::Image1);
  EXPECT_TRUE(form().pb1.Visible);
  EXPECT_EQ(form().pb1.value(), 90);
  ask(u"x+9", u"0", u"1", u"0.3", u"x");
  click(&frmAnaliza::Image5);
  EXPECT_FALSE(form().pb1.Visible);
}

TEST_F(Analysis, MissingInputIsTold) {
  click(&frmAnaliza::cmdNula);
  expect_message(u"Range is not defined.", MessageIcon::information);
  click(&frmAnaliza::Command3);
  expect_message(u"Range is not defined.", MessageIcon::information);
  click(&frmAnaliza::cmdinters);
  expect_message(u"Range is not defined.", MessageIcon::information);
  ask(u"", u"0", u"1");
  click(&frmAnaliza::cmdNula);
  expect_message(u"Enter Function 1 first.", MessageIcon::information);
  click(&frmAnaliza::Command3);
  expect_message(u"Enter Function 1  first.", MessageIcon::information);
  click(&frmAnaliza::Image4);
  expect_message(u"Enter Function 1  first.", MessageIcon::information);
  click(&frmAnaliza::cmdinters);
  expect_message(u"Enter Function 1 and Function 2 first.", MessageIcon::information);
  EXPECT_EQ(log(), "");
}

struct CriticalRow {
  TextView function;
  const char* line;
};

class CriticalPoint : public Analysis, public testing::WithParamInterface<CriticalRow> {};

TEST_P(CriticalPoint, IsClassified) {
  ask(Text{GetParam().function}, u"-1", u"1");
  click(&frmAnaliza::Image2);
  EXPECT_TRUE(found().starts_with(GetParam().line)) << found();
  ASSERT_EQ(program.desk.dialogs().size(), 1U);
  const Text text = u"Function y = " + Text{GetParam().function} + u" has critical point\r\nin x = " +
                    form().lblroot.Caption.get() + u".";
  expect_message(text, MessageIcon::none, u"Critical Point");
}

INSTANTIATE_TEST_SUITE_P(Verdicts, CriticalPoint,
                         testing::Values(CriticalRow{u"x^2+1", "\r\n Ymin = 1 for x = "},
                                         CriticalRow{u"1-x^2", "\r\n Ymax = 1 for x = "},
                                         CriticalRow{u"x^2-1", "\r\n Ymin = -1 for x = "},
                                         CriticalRow{u"x^3", "\r\nCritical point: y = -2E-06 for x = -0.012"},
                                         CriticalRow{u"-1-x^2", "\r\nCritical point: y = -1 for x = "},
                                         CriticalRow{u"0.005-x^2", "\r\n Ymax = 0.005 for x = "}));

TEST_F(Analysis, CriticalPointsHaveTheirHead) {
  ask(u"x^2", u"1", u"2", u"0.5");
  click(&frmAnaliza::Image2);
  EXPECT_EQ(log(),
            std::string{"\r\n\r\nCritical point for y = x^2 in range x = [1;2] with Step = 0.5"} + not_found);
}

TEST_F(Analysis, FindsWhereTwoFunctionsAgree) {
  ask(u"x", u"0", u"4", u"0.5", u"4-x");
  click(&frmAnaliza::Image5);
  expect_message(u"Functions y1 = x and y2 = 4-x have intersection\r\nin [x ; y] = [2 ; 2]",
                 MessageIcon::none, u"Intersection");
  EXPECT_EQ(log(),
            "\r\n\r\nIntersection for functions y1 = x and  y2 = 4-x in range x = [0;4] with Step = 0.5"
            "\r\nfound in [x ; y] = [2 ; 2]");
  EXPECT_EQ(latest(), "2");
}

TEST_F(Analysis, ParallelFunctionsCloserThanTheRoundingIntersect) {
  ask(u"x", u"0", u"1", u"0.5", u"x+0.004");
  click(&frmAnaliza::Image5);
  EXPECT_EQ(found(), "\r\nfound in [x ; y] = [0 ; 0]");
}

TEST_F(Analysis, OnlyRootsAndCriticalPointsEvaluateTheRange) {
  ask(u"x+9", u"0", u"2*pi", u"1", u"x");
  click(&frmAnaliza::Image5);
  EXPECT_EQ(form().txtgore.Text.get(), u"2*pi");
  EXPECT_EQ(form().txtnula.Text.get(), u"2");
  click(&frmAnaliza::Image1);
  EXPECT_EQ(form().txtgore.Text.get(), u"6.2832");
}

TEST_F(Analysis, GivesTheValueAtZero) {
  ask(u"x^2+3", u"", u"");
  click(&frmAnaliza::Image4);
  EXPECT_EQ(log(), "\r\n\r\nY-Intersection for y = x^2+3\r\ny = 3");
  EXPECT_EQ(latest(), "3");
}

TEST_F(Analysis, APoleAtZeroIsNotFound) {
  ask(u"1/x", u"", u"");
  click(&frmAnaliza::Image4);
  expect_message(u"Function is not defined for x = 0.", MessageIcon::exclamation);
  EXPECT_EQ(found(), "\r\nNOT FOUND");
}

TEST_F(Analysis, AFaultAtZeroIsNotFoundInOneWord) {
  ask(u"ln(x)", u"", u"");
  click(&frmAnaliza::Image4);
  expect_message(u"Function is not defined for x = 0.", MessageIcon::exclamation);
  EXPECT_EQ(found(), "\r\nNOTFOUND");
}

TEST_F(Analysis, AnEmptyLogIsNotSaved) {
  click(&frmAnaliza::Image3);
  expect_message(u"Function Analyze log is empty.", MessageIcon::information);
  EXPECT_FALSE(std::filesystem::exists(program.folder() / "FuncAnal.txt"));
}

TEST_F(Analysis, EachSaveHoldsTheEarlierOnes) {
  ask(u"x", u"", u"");
  click(&frmAnaliza::Image4);
  const Text once = u"\r\n\r\nAnalyzing Finction:\r\ny = x" + form().txtroot.Text.get();
  program.desk.answer(MessageResult::no);
  click(&frmAnaliza::Image3);
  expect_message(
      u"Current Function Analyze will be opened with MathPad.\r\nThere you can edit it, save or print.",
      MessageIcon::information, u"Tarnmill", MessageButtons::yes_no, 2);
  EXPECT_EQ(to_utf8(read_text_file(program.folder() / "FuncAnal.txt")), to_utf8(once));
  EXPECT_FALSE(program.bench.is_visible("MathPad"));
  program.desk.answer(MessageResult::yes);
  click(&frmAnaliza::Image3);
  EXPECT_EQ(to_utf8(read_text_file(program.folder() / "FuncAnal.txt")), to_utf8(once + once));
  EXPECT_TRUE(program.bench.is_visible("MathPad"));
  EXPECT_EQ(to_utf8(program.window<MathPad>().rt1.document().text()), to_utf8(once + once));
}

TEST_F(Analysis, AFileThatCannotBeWrittenIsPassedOver) {
  std::filesystem::create_directory(program.folder() / "FuncAnal.txt");
  ask(u"x", u"", u"");
  click(&frmAnaliza::Image4);
  click(&frmAnaliza::Image3);
  expect_no_message();
}

TEST_F(Analysis, ClearingAsksFirstAndKeepsWhatWasSaved) {
  click(&frmAnaliza::Image10);
  expect_no_message();
  ask(u"x", u"", u"");
  click(&frmAnaliza::Image4);
  program.desk.answer(MessageResult::no);
  click(&frmAnaliza::Image10);
  expect_message(u"This will clear current analyze log.\r\nContinue?", MessageIcon::none, u"Clear Analyze",
                 MessageButtons::yes_no);
  EXPECT_NE(log(), "");
  program.desk.answer(MessageResult::yes);
  click(&frmAnaliza::Image10);
  EXPECT_EQ(log(), "");
}

TEST_F(Analysis, ANameGoesToTheTickedField) {
  act([&] { form().C1.choose(0); });
  EXPECT_EQ(form().txtformula.Text.get() + form().txtfunc2.Text.get(), u"");
  act([&] { form().txtformula.press(); });
  act([&] { form().C1.choose(12); });
  EXPECT_EQ(form().txtformula.Text.get(), u"Sin");
  EXPECT_EQ(program.bench.focus(), &form().txtformula);
  act([&] { form().Check2.press(); });
  EXPECT_EQ(form().Check1.Value, 0);
  act([&] { form().C1.choose(13); });
  EXPECT_EQ(form().txtfunc2.Text.get(), u"Cos");
}

TEST_F(Analysis, ThePicturesShowThePress) {
  form().Image1.MouseDown.raise(1, 0, 0, 0);
  EXPECT_EQ(form().Image1.Picture.get(), u"roots-pressed");
  form().Image2.MouseMove.raise(0, 0, 0, 0);
  EXPECT_EQ(form().Image1.Picture.get(), u"roots");
}

TEST_F(Analysis, ItsTitleBarMinimisesAndCloses) {
  click(&frmAnaliza::immini);
  EXPECT_EQ(form().WindowState, 1);
  click(&frmAnaliza::Image6);
  EXPECT_TRUE(program.bench.is_visible("frmIntegral"));
  click(&frmAnaliza::Image7);
  EXPECT_EQ(program.bench.find_window("frmAnaliza"), nullptr);
}

TEST_F(Analysis, ALongScanLeavesNothingOnTheStack) {
  ask(u"x", u"0", u"1");
  click(&frmAnaliza::Image2);
  EXPECT_EQ(found(), not_found);
  ask(u"x^2", u"-1", u"1");
  click(&frmAnaliza::Image2);
  EXPECT_EQ(latest(), "0");
}

}  // namespace
}  // namespace tarnmill
