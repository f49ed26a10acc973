#include "graph_fixture.h"

namespace tarnmill {
namespace {

using EntryTest = GraphTest;

TEST_F(EntryTest, EveryKeyInsertsItsCaption) {
  Text expected;
  for (const auto& key : form().cmdSymbol) {
    key->press();
    expected += key->Caption.get();
  }
  EXPECT_EQ(form().txtY.Text.get(), u"0123456789K+-*/(.)");
  EXPECT_EQ(form().txtY.Text.get(), expected);
  EXPECT_EQ(program.bench.focus(), &form().txtY);
}

TEST_F(EntryTest, AKeyReplacesTheSelectionAndLeavesTheCaretBehindIt) {
  set_fields(u"1+2+3");
  form().txtY.select(2, 1);
  key_in(u"K");
  EXPECT_EQ(form().txtY.Text.get(), u"1+K+3");
  EXPECT_EQ(form().txtY.sel_start(), 3);
  key_in(u"^2");
  EXPECT_EQ(form().txtY.Text.get(), u"1+K^2+3");
}

TEST_F(EntryTest, ChoosingXSendsTheKeysThere) {
  form().optAlign(1).press();
  EXPECT_EQ(form().lblxy.Caption.get(), u"X");
  EXPECT_FALSE(form().optAlign(0).Value);
  EXPECT_EQ(program.bench.focus(), &form().txtX);
  key_in(u"2*");
  EXPECT_EQ(form().txtX.Text.get(), u"2*K");
  EXPECT_EQ(form().txtY.Text.get(), u"");
}

TEST_F(EntryTest, ChoosingYAgainFillsAnEmptyX) {
  form().optAlign(1).press();
  form().cmdbrisi.press();
  EXPECT_EQ(form().txtX.Text.get(), u"");
  form().optAlign(0).press();
  EXPECT_EQ(form().lblxy.Caption.get(), u"Y");
  EXPECT_FALSE(form().optAlign(1).Value);
  EXPECT_EQ(form().txtX.Text.get(), u"K");
  EXPECT_EQ(program.bench.focus(), &form().txtY);
}

TEST_F(EntryTest, AClickOnTheChosenYStillFillsAnEmptyX) {
  form().txtX.Text = u"";
  form().optAlign(0).press();
  EXPECT_EQ(form().txtX.Text.get(), u"K");
}

TEST_F(EntryTest, ChoosingYLeavesAnXThatIsThere) {
  form().optAlign(1).press();
  key_in(u"2*");
  form().optAlign(0).press();
  EXPECT_EQ(form().txtX.Text.get(), u"2*K");
}

TEST_F(EntryTest, TheKeypadWindowCanHandTheEntryBackToY) {
  form().optAlign(1).press();
  form().choose_y();
  EXPECT_TRUE(form().optAlign(0).Value);
  EXPECT_EQ(form().lblxy.Caption.get(), u"Y");
}

TEST_F(EntryTest, AFunctionOfTheListIsInserted) {
  form().C1.choose(13);
  key_in(u"K+");
  form().C1.choose(13);
  EXPECT_EQ(form().txtY.Text.get(), u"SinK+Sin");
  EXPECT_EQ(program.bench.focus(), &form().txtY);
}

TEST_F(EntryTest, TheFunctionListPlotsOnEnterAndClearsOnDelete) {
  set_fields(u"K");
  int enter = 13;
  form().C1.KeyDown.raise(enter, 0);
  EXPECT_EQ(history(), u"\r\n Y = K\r\n X = K\r\n __________________\r\n");
  int del = 46;
  form().C1.KeyDown.raise(del, 0);
  EXPECT_EQ(form().txtY.Text.get(), u"");
}

TEST_F(EntryTest, ClearEmptiesTheYSide) {
  key_in(u"K^(1/3");
  form().lblZbir.Caption = u"x";
  form().cmdbrisi.press();
  EXPECT_EQ(form().txtY.Text.get(), u"");
  EXPECT_EQ(form().txtYs.Text.get(), u"");
  EXPECT_EQ(form().txtY3.Text.get(), u"1");
  EXPECT_EQ(form().txtImenilac.Text.get(), u"1");
  EXPECT_EQ(form().lblZbir.Caption.get(), u"");
  EXPECT_EQ(form().lblImenilac.Caption.get(), u"");
  EXPECT_EQ(form().lblstepen.Caption.get(), u"");
  EXPECT_EQ(form().lblY3.Caption.get(), u"OK");
  EXPECT_EQ(program.bench.focus(), &form().txtY);
}

TEST_F(EntryTest, ClearItselfLeavesY2WhichOnlyAChangeOfYEmpties) {
  form().txtY2.Text = u"left over";
  form().cmdbrisi.press();
  EXPECT_EQ(form().txtY2.Text.get(), u"left over");
  key_in(u"K");
  form().cmdbrisi.press();
  EXPECT_EQ(form().txtY2.Text.get(), u"");
}

TEST_F(EntryTest, ClearOfXLeavesTheYSide) {
  key_in(u"K^2");
  form().optAlign(1).press();
  form().cmdbrisi.press();
  EXPECT_EQ(form().txtX.Text.get(), u"");
  EXPECT_EQ(form().txtY.Text.get(), u"K^2");
  EXPECT_EQ(form().lblImenilac.Caption.get(), u"Ime");
  EXPECT_EQ(program.bench.focus(), &form().txtX);
}

TEST_F(EntryTest, AClickInAFieldPointsToTheButtons) {
  for (TextBox* field : {&form().txtY, &form().txtX}) {
    program.desk.forget();
    field->press();
    const DialogShown box = only_dialog();
    EXPECT_EQ(box.text, u"Use buttons to enter function.");
    EXPECT_EQ(box.title, u"Tarnmill");
    EXPECT_EQ(box.icon, MessageIcon::information);
    EXPECT_EQ(box.buttons, MessageButtons::ok);
  }
}

TEST_F(EntryTest, TheMouseOverAFieldShowsItsText) {
  set_fields(u"SinK", u"CosK");
  form().txtY.MouseMove.raise(0, 0, 1, 1);
  form().txtX.MouseMove.raise(0, 0, 1, 1);
  EXPECT_EQ(form().txtY.ToolTipText.get(), u"SinK");
  EXPECT_EQ(form().txtX.ToolTipText.get(), u"CosK");
}

struct Code {
  int code;
  const char16_t* inserted;
};

class KeyboardTest : public GraphTest, public testing::WithParamInterface<Code> {};

TEST_P(KeyboardTest, AKeyOfTheKeyboardInsertsOnce) {
  const int left = press_code(GetParam().code);
  EXPECT_EQ(form().txtY.Text.get(), GetParam().inserted);
  EXPECT_EQ(left, GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Digits, KeyboardTest,
                         testing::Values(Code{48, u"0"}, Code{49, u"1"}, Code{50, u"2"}, Code{51, u"3"},
                                         Code{52, u"4"}, Code{53, u"5"}, Code{54, u"6"}, Code{55, u"7"},
                                         Code{56, u"8"}, Code{57, u"9"}, Code{96, u"0"}, Code{97, u"1"},
                                         Code{98, u"2"}, Code{99, u"3"}, Code{100, u"4"}, Code{101, u"5"},
                                         Code{102, u"6"}, Code{103, u"7"}, Code{104, u"8"}, Code{105, u"9"}));
INSTANTIATE_TEST_SUITE_P(Signs, KeyboardTest,
                         testing::Values(Code{75, u"K"}, Code{107, u"+"}, Code{109, u"-"}, Code{106, u"*"},
                                         Code{111, u"/"}, Code{110, u"."}, Code{74, u"("}, Code{76, u")"},
                                         Code{80, u"^"}));
INSTANTIATE_TEST_SUITE_P(KeysWithoutMeaning, KeyboardTest,
                         testing::Values(Code{47, u""}, Code{58, u""}, Code{65, u""}, Code{95, u""},
                                         Code{112, u""}, Code{8, u""}));

TEST_F(EntryTest, BothFieldsShareTheKeyboard) {
  form().optAlign(1).press();
  int code = 50;
  form().txtX.KeyDown.raise(code, 0);
  EXPECT_EQ(form().txtX.Text.get(), u"2K");
}

TEST_F(EntryTest, AllArrowKeysMoveTheCaretToTheRight) {
  for (const int arrow : {37, 38, 39, 40}) EXPECT_EQ(press_code(arrow), 39) << arrow;
  EXPECT_EQ(press_code(36), 36);
  EXPECT_EQ(press_code(41), 41);
}

TEST_F(EntryTest, TheLetterTPressesTheTangentKeyOnce) {
  int pressed = 0;
  form().cmdtangenta.Click.handle([&] { ++pressed; });
  press_code(84);
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(form().txtY.Text.get(), u"");
}

TEST_F(EntryTest, EnterPlotsTwice) {
  set_fields(u"K");
  EXPECT_EQ(lines([&] { press_code(13); }).size(), 800U);
  const Text entry = u"\r\n Y = K\r\n X = K\r\n __________________\r\n";
  EXPECT_EQ(history(), entry + entry);
}

TEST_F(EntryTest, EnterOfTheKeypadPlotsOnce) {
  set_fields(u"K");
  EXPECT_EQ(lines([&] { press_code(108); }).size(), 400U);
}

TEST_F(EntryTest, DeleteClearsTheField) {
  key_in(u"K^2");
  press_code(46);
  EXPECT_EQ(form().txtY.Text.get(), u"");
}

TEST_F(EntryTest, DeleteClearsTwice) {
  key_in(u"K^2");
  // The second clearing finds the field empty, so only it can undo what happens between the two.
  bool between = false;
  form().txtY.GotFocus.handle([&] {
    if (!between) form().lblZbir.Caption = u"set between";
    between = true;
  });
  form().txtX.SetFocus();
  press_code(46);
  EXPECT_TRUE(between);
  EXPECT_EQ(form().lblZbir.Caption.get(), u"");
}

}  // namespace
}  // namespace tarnmill
