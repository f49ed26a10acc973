#include <QDir>
#include <QFontDatabase>
#include <QFontMetrics>

#include "math_pad_fixture.h"
#include "mathpad/binary_text.h"

namespace tarnmill {
namespace {

class SymbolChart : public MathPadTest {
 protected:
  [[nodiscard]] frmansi& form() { return program.window<frmansi>(); }
  void click(int code) { form().Grid1.choose((code - 1) / 22, (code - 1) % 22); }
};

TEST(BinaryText, HasAtLeastEightDigits) {
  EXPECT_EQ(DecToBin(0), u"00000000");
  EXPECT_EQ(DecToBin(10), u"00001010");
  EXPECT_EQ(DecToBin(65), u"01000001");
  EXPECT_EQ(DecToBin(255), u"11111111");
  EXPECT_EQ(DecToBin(256), u"100000000");
}

TEST_F(SymbolChart, TheGridHoldsTheCodePage) {
  const FlexGrid& grid = form().Grid1;
  EXPECT_EQ(grid.Rows, 13);
  EXPECT_EQ(grid.Cols, 22);
  EXPECT_EQ(grid.ColWidth(21), 300);
  EXPECT_EQ(grid.FontSize, 12);
  EXPECT_EQ(grid.TextMatrix(0, 0), u"\x01");
  EXPECT_EQ(grid.TextMatrix(2, 20), u"A");
  EXPECT_EQ(grid.TextMatrix(5, 17), u"€");
  EXPECT_EQ(grid.TextMatrix(11, 12), u"ÿ");
  EXPECT_EQ(grid.TextMatrix(11, 13), u"");
  EXPECT_EQ(grid.TextMatrix(12, 0), u"");
  EXPECT_EQ(grid.TextMatrix(5, 18), u"") << "a code that the page leaves open";
}

TEST_F(SymbolChart, OpensOnItsFont) {
  EXPECT_EQ(form().Combo1.Text.get(), u"Marrow");
  EXPECT_EQ(form().Combo1.List(form().Combo1.ListIndex), u"Marrow");
  EXPECT_EQ(form().Grid1.FontName.get(), u"Marrow");
  EXPECT_EQ(form().SB1.Panels(1).Text.get(), u"Marrow");
  EXPECT_TRUE(dialogs().empty());
}

TEST_F(SymbolChart, ItsFontHasASignForEachCode) {
  QFont font{"Marrow"};
  font.setStyleStrategy(QFont::NoFontMerging);
  const QFontMetrics metrics{font};
  for (int code = 33; code <= 255; ++code) {
    const Text sign = form().Grid1.TextMatrix((code - 1) / 22, (code - 1) % 22);
    if (code == 127 || sign.empty()) continue;
    EXPECT_TRUE(metrics.inFont(QChar{sign.front()})) << code;
  }
}

/// The program on a machine without the font of symbols.
class ChartWithoutItsFont : public SymbolChart {
 public:
  ChartWithoutItsFont() { QFontDatabase::removeAllApplicationFonts(); }
  ~ChartWithoutItsFont() override {
    const QDir fonts{":/tarnmill/fonts"};
    for (const QString& each : fonts.entryList({"*.otf", "*.ttf"})) {
      QFontDatabase::addApplicationFont(fonts.filePath(each));
    }
  }
};

TEST_F(ChartWithoutItsFont, Tells) {
  EXPECT_EQ(form().Combo1.Text.get(), u"");
  ASSERT_EQ(dialogs().size(), 1U);
  EXPECT_EQ(
      last_dialog().text,
      u"Font Marrow.TTF not found.\r\nExtract it from installation package Hollin.zip to temporary folder and"
      u"\r\ninstall it as a font.");
  EXPECT_EQ(last_dialog().title, u"Tarnmill");
  EXPECT_EQ(last_dialog().icon, MessageIcon::exclamation);
  EXPECT_EQ(last_dialog().buttons, MessageButtons::ok);
}

TEST_F(ChartWithoutItsFont, WorksWithTheFontThatIsChosen) {
  ASSERT_FALSE(form().Combo1.items().empty());
  form().Combo1.choose(0);
  click(65);
  form().Command2.press();
  EXPECT_EQ(text(), u"A");
}

TEST_F(SymbolChart, ACellShowsItsCharacter) {
  form().Grid1.go_to(2, 20);
  EXPECT_EQ(form().lblinfo.Caption.get(), u"ASCII Code: 065   Alphanumeric Representation: A");
  EXPECT_EQ(form().Label2.Caption.get(), u"A");
  EXPECT_EQ(form().Label2.FontSize, 36);
  EXPECT_EQ(form().Grid1.back_color(2, 20), 65535);
  form().Grid1.go_to(2, 21);
  EXPECT_EQ(form().Grid1.back_color(2, 20), 16777215);
  EXPECT_EQ(form().lblinfo.Caption.get(), u"ASCII Code: 066   Alphanumeric Representation: B");
}

struct Codes {
  int code;
  const char16_t* keys;
  const char16_t* line;
};

class CodesOf : public SymbolChart, public testing::WithParamInterface<Codes> {};

TEST_P(CodesOf, ACharacterStandInThePanels) {
  click(GetParam().code);
  EXPECT_EQ(form().SB1.Panels(3).Text.get(), GetParam().keys);
  EXPECT_EQ(form().SB1.Panels(2).Text.get(), GetParam().line);
  EXPECT_EQ(form().lblcodes.Caption.get(), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Chart, CodesOf,
    testing::Values(Codes{9, u"ALT + 0009  (Num Key only)", u"Dec: 9 Hex: 09 Bin: 00001001"},
                    Codes{10, u"ALT + 0010  (Num Key only)", u"Dec: 10 Hex: 0A Bin: 00001010"},
                    Codes{65, u"ALT + 0065  (Num Key only)", u"Dec: 65 Hex: 41 Bin: 01000001"},
                    Codes{128, u"ALT + 0128  (Num Key only)", u"Dec: 128 Hex: 80 Bin: 10000000"},
                    Codes{200, u"ALT + 0200  (Num Key only)", u"Dec: 200 Hex: C8 Bin: 11001000"}));

TEST_F(SymbolChart, ClicksCollect) {
  click(65);
  click(65);
  click(66);
  EXPECT_EQ(form().Text1.Text.get(), u"AAB");
  EXPECT_EQ(form().Label2.Caption.get(), u"AAB");
}

TEST_F(SymbolChart, AnEmptyCellEndsSilently) {
  form().Grid1.choose(12, 0);
  EXPECT_EQ(form().Text1.Text.get(), u"");
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(SymbolChart, TheCollectionIsInsertedInTheFont) {
  ASSERT_FALSE(form().Combo1.items().empty());
  form().Combo1.choose(0);
  const Text font = form().Combo1.List(0);
  EXPECT_EQ(form().SB1.Panels(1).Text.get(), font);
  EXPECT_EQ(form().Grid1.FontName.get(), font);
  EXPECT_EQ(form().Label2.FontName.get(), font);
  EXPECT_EQ(form().Text1.FontName.get(), font);
  click(65);
  form().Command2.press();
  click(66);
  form().Grid1.DblClick.raise();
  EXPECT_EQ(text(), u"AAB");
  document().select(0, 3);
  EXPECT_EQ(document().sel_font_name(), font);
  EXPECT_EQ(form().Text1.Text.get(), u"AB");
}

TEST_F(SymbolChart, AnEmptyCollectionStillSetsTheFont) {
  ASSERT_FALSE(form().Combo1.items().empty());
  form().Combo1.choose(0);
  form().Command2.press();
  EXPECT_EQ(document().sel_font_name(), form().Combo1.List(0));
}

TEST_F(SymbolChart, TheSelectedCharacterAndItsCodeAreCopied) {
  click(65);
  form().Text1.select(0, 1);
  form().Label4.DblClick.raise();
  EXPECT_EQ(program.desk.clipboard_text(), u"A");
  form().Label3.DblClick.raise();
  EXPECT_EQ(program.desk.clipboard_text(), u"65");
  form().Text1.select(0, 0);
  form().Label3.DblClick.raise();
  EXPECT_EQ(program.desk.clipboard_text(), u"");
}

TEST_F(SymbolChart, PressedLabelsChangeTheirColour) {
  for (Label* each : {&form().Label3, &form().Label4}) {
    const Color before = each->ForeColor;
    each->MouseDown.raise(1, 0, 1, 1);
    EXPECT_NE(each->ForeColor, before);
    each->MouseUp.raise(1, 0, 1, 1);
    EXPECT_EQ(each->ForeColor, before);
  }
}

TEST_F(SymbolChart, CloseUnloads) {
  form().Show();
  program.bench.enter([this] { form().Command3.press(); });
  EXPECT_EQ(program.bench.find_window("frmansi"), nullptr);
}

}  // namespace
}  // namespace tarnmill
