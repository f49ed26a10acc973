#include "table/frm_tabela.h"

#include "mathpad/math_pad.h"
#include "support/window_test.h"

namespace tarnmill {
namespace {

class ValueTable : public WindowTest<frmTabela> {
 protected:
  void fill(const Text& function, const Text& from, const Text& to, const Text& step = u"1",
            const Text& decimals = u"3") {
    form().Text1.Text = function;
    form().txtdole.Text = from;
    form().txtgore.Text = to;
    form().Combo1.Text = step;
    form().txtDec.Text = decimals;
  }
  [[nodiscard]] std::string table() { return to_utf8(form().Text2.document().text()); }
  std::string calculated(const Text& function, const Text& from, const Text& to, const Text& step = u"1",
                         const Text& decimals = u"3") {
    fill(function, from, to, step, decimals);
    click(&frmTabela::Image7);
    return table();
  }
};

TEST_F(ValueTable, ListsTheHeadAndARowForEachX) {
  EXPECT_EQ(calculated(u"x^2", u"0", u"2"),
            "Function: Y = x^2\r\nRange: Xmin = 0  Xmax = 2\r\n\r\n[ 0; 0 ]\r\n[ 1; 1 ]\r\n[ 2; 4 ]");
  EXPECT_TRUE(form().Text2.Visible);
  expect_no_message();
}

TEST_F(ValueTable, AReversedRangeGivesTheHeadAlone) {
  EXPECT_EQ(calculated(u"x", u"2", u"0"), "Function: Y = x\r\nRange: Xmin = 2  Xmax = 0\r\n");
}

TEST_F(ValueTable, ANegativeStepCountsDown) {
  EXPECT_TRUE(calculated(u"x", u"2", u"0", u"-1").ends_with("\r\n\r\n[ 2; 2 ]\r\n[ 1; 1 ]\r\n[ 0; 0 ]"));
}

TEST_F(ValueTable, NoDecimalsRoundHalfToEven) {
  EXPECT_TRUE(calculated(u"x+0.5", u"2", u"3", u"1", u"0").ends_with("[ 2; 2 ]\r\n[ 3; 4 ]"));
}

TEST_F(ValueTable, TheStepIsAddedAgainAndAgain) {
  EXPECT_TRUE(calculated(u"x", u"0", u"0.3", u"0.1", u"1")
                  .ends_with("\r\n\r\n[ 0; 0 ]\r\n[ 0.1; 0.1 ]\r\n[ 0.2; 0.2 ]"));
}

TEST_F(ValueTable, PiInALimitHasFourDecimals) {
  calculated(u"x", u"0", u"2*pi");
  EXPECT_EQ(form().txtgore.Text.get(), u"6.2832");
  calculated(u"x", u"0", u"Pi");
  EXPECT_EQ(form().txtgore.Text.get(), u"3.1416");
}

TEST_F(ValueTable, EInALimitIsTheConstant) {
  calculated(u"x", u"0", u"e");
  EXPECT_EQ(form().txtgore.Text.get(), u"2.71828182845905");
}

TEST_F(ValueTable, KAndXAreOneVariable) {
  for (const char16_t* function : {u"K^2", u"X^2", u"k^2"}) {
    EXPECT_TRUE(calculated(function, u"0", u"2").ends_with("[ 0; 0 ]\r\n[ 1; 1 ]\r\n[ 2; 4 ]"));
  }
}

TEST_F(ValueTable, AMissingFieldIsTold) {
  for (const auto& [function, from, to] :
       {std::tuple{u"", u"0", u"1"}, std::tuple{u"x", u"", u"1"}, std::tuple{u"x", u"0", u""}}) {
    fill(function, from, to);
    click(&frmTabela::Image7);
    expect_message(u"Function/Range not defined", MessageIcon::information);
  }
}

TEST_F(ValueTable, ALimitThatFailsIsToldAndCountsAsZero) {
  fill(u"x", u"0", u"2**");
  click(&frmTabela::Image7);
  EXPECT_EQ(program.desk.dialogs().size(), 1U);
  EXPECT_EQ(form().txtgore.Text.get(), u"0");
  EXPECT_TRUE(table().ends_with("[ 0; 0 ]"));
}

TEST_F(ValueTable, ALimitOfAHundredIsCalledUndefinedAndUsed) {
  fill(u"x", u"100", u"100");
  click(&frmTabela::Image7);
  EXPECT_EQ(program.desk.dialogs().size(), 2U);
  EXPECT_TRUE(table().ends_with("[ 100; 100 ]"));
}

TEST_F(ValueTable, AStepThatIsNoNumberStopsBeforeTheTableIsHidden) {
  EXPECT_EQ(calculated(u"x", u"0", u"1", u"abc"), "Function: Y = x\r\nRange: Xmin = 0  Xmax = 1\r\n");
  EXPECT_TRUE(form().Text2.Visible);
  expect_no_message();
}

TEST_F(ValueTable, AFaultKeepsTheRowsAndHidesTheTableUntilARunEndsWell) {
  EXPECT_TRUE(calculated(u"ln(2-x)", u"0", u"5").ends_with("[ 0; 0.693 ]\r\n[ 1; 0 ]"));
  EXPECT_FALSE(form().Text2.Visible);
  expect_no_message();
  calculated(u"x", u"0", u"1");
  EXPECT_TRUE(form().Text2.Visible);
}

TEST_F(ValueTable, APoleOfAQuotientIsARow) {
  EXPECT_TRUE(calculated(u"1/x", u"0", u"1").ends_with("[ 0; 1.#INF ]\r\n[ 1; 1 ]"));
}

TEST_F(ValueTable, ClearingAsksFirst) {
  calculated(u"x", u"0", u"1");
  program.desk.answer(MessageResult::no);
  click(&frmTabela::Image8);
  expect_message(u"This will clear current results.\r\nContinue?", MessageIcon::none, u"Clear Table",
                 MessageButtons::yes_no);
  EXPECT_FALSE(table().empty());
  program.desk.answer(MessageResult::yes);
  click(&frmTabela::Image8);
  EXPECT_TRUE(table().empty());
  program.desk.forget();
  click(&frmTabela::Image8);
  expect_no_message();
}

TEST_F(ValueTable, CopiesItsText) {
  calculated(u"x", u"0", u"1");
  click(&frmTabela::Image9);
  EXPECT_EQ(to_utf8(program.desk.clipboard_text()), table());
}

TEST_F(ValueTable, SavingAsksAndHandsTheTextToTheEditor) {
  calculated(u"x", u"0", u"1");
  program.desk.answer(MessageResult::no);
  click(&frmTabela::Image10);
  expect_message(u"This will open MathPad with calculated table.\r\nContinue?", MessageIcon::none,
                 u"Save Table", MessageButtons::yes_no);
  EXPECT_FALSE(program.bench.is_visible("MathPad"));
  program.desk.answer(MessageResult::yes);
  click(&frmTabela::Image10);
  EXPECT_TRUE(program.bench.is_visible("MathPad"));
  EXPECT_EQ(to_utf8(program.window<MathPad>().rt1.document().text()), table());
}

TEST_F(ValueTable, SavingAnEmptyTableEmptiesTheEditor) {
  program.window<MathPad>().rt1.Text.write(u"old");
  click(&frmTabela::Image10);
  EXPECT_TRUE(program.desk.dialogs().empty());
  EXPECT_EQ(program.window<MathPad>().rt1.document().text(), u"");
  EXPECT_TRUE(program.bench.is_visible("MathPad"));
}

TEST_F(ValueTable, AChosenFontGoesToTheTable) {
  program.desk.answer(FontChoice{{u"Courier", 14, true, true, true}, 255});
  act([&] { form().choose_font(); });
  EXPECT_EQ(form().Text2.FontName.get(), u"Courier");
  EXPECT_EQ(form().Text2.FontSize, 14);
  EXPECT_TRUE(form().Text2.FontBold && form().Text2.FontItalic && form().Text2.FontUnderline);
  ASSERT_EQ(program.desk.dialogs().size(), 1U);
  EXPECT_EQ(program.desk.dialogs().front().title, u"Select Font");
  EXPECT_EQ(program.desk.dialogs().front().flags, 2);
}

TEST_F(ValueTable, ACancelledFontChangesNothing) {
  const Font before = form().Text2.FontProperties::get();
  program.desk.answer(Cancelled{});
  act([&] { form().choose_font(); });
  EXPECT_EQ(form().Text2.FontProperties::get(), before);
}

}  // namespace
}  // namespace tarnmill
