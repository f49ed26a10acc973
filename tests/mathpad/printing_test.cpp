#include <QProcess>
#include <QString>

#include "math_pad_fixture.h"

namespace tarnmill {
namespace {

class Printing : public MathPadTest {
 protected:
  [[nodiscard]] frmPageSetup& setup() { return program.window<frmPageSetup>(); }
  [[nodiscard]] std::filesystem::path paper() { return program.folder() / "paper.pdf"; }

  void print() {
    program.desk.printer(paper());
    program.desk.answer(MessageResult::ok);
    pad().print();
  }

  /// The words of the printed pages, each page ended by a form feed.
  [[nodiscard]] QString printed() {
    QProcess reader;
    reader.start("pdftotext", {"-layout", QString::fromStdString(paper().string()), "-"});
    EXPECT_TRUE(reader.waitForFinished());
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
};

TEST_F(Printing, TheListsRunFromZeroToFourInches) {
  EXPECT_EQ(setup().cboLeftMargin.items().size(), 81U);
  EXPECT_EQ(setup().cboLeftMargin.List(0), u"0.00");
  EXPECT_EQ(setup().cboTopMargin.List(1), u"0.05");
  EXPECT_EQ(setup().cboRightMargin.List(26), u"1.30");
  EXPECT_EQ(setup().cboBottomMargin.List(80), u"4.00");
  EXPECT_EQ(setup().cboBottomMargin.Text.get(), u"1");
}

TEST_F(Printing, AChoiceIsWrittenAtOnceAndTakenBackByCancel) {
  setup().cboLeftMargin.choose(10);
  setup().cboBottomMargin.choose(20);
  EXPECT_EQ(pad().txtlevo.Text.get(), u"0.50");
  EXPECT_EQ(pad().txtDole.Text.get(), u"1.00");
  program.bench.enter([this] { setup().cmdCancel.press(); });
  EXPECT_EQ(pad().txtlevo.Text.get(), u"1");
  EXPECT_EQ(pad().txtDole.Text.get(), u"1");
  EXPECT_EQ(program.bench.find_window("frmPageSetup"), nullptr);
}

TEST_F(Printing, OkWritesAllFour) {
  setup().cboLeftMargin.Text = u"2";
  setup().cboRightMargin.Text = u"3";
  setup().cboTopMargin.Text = u"1.5";
  setup().cboBottomMargin.Text = u"0";
  program.bench.enter([this] { setup().cmdOK.press(); });
  EXPECT_EQ(pad().txtlevo.Text.get(), u"2");
  EXPECT_EQ(pad().txtDesno.Text.get(), u"3");
  EXPECT_EQ(pad().txtGore.Text.get(), u"1.5");
  EXPECT_EQ(pad().txtDole.Text.get(), u"0");
  EXPECT_EQ(program.bench.find_window("frmPageSetup"), nullptr);
}

TEST_F(Printing, ThePrinterIsSetUpByItsDialog) {
  setup().Command1.press();
  EXPECT_EQ(last_dialog().kind, DialogShown::Kind::printer);
  EXPECT_EQ(last_dialog().flags, 64);
}

TEST_F(Printing, MarginsAreWholeInchesRoundedToEven) {
  const std::vector<std::pair<const char16_t*, int>> rows{
      {u"0.50", 0}, {u"1.25", 1}, {u"1.50", 2}, {u"2.50", 2}};
  for (const auto& [inches, whole] : rows) {
    pad().txtlevo.Text = inches;
    pad().read_margins();
    EXPECT_EQ(pad().LeftMargin, whole);
  }
}

TEST_F(Printing, AnEmptyDocumentIsToldAfterTheDialog) {
  print();
  ASSERT_EQ(dialogs().size(), 2U);
  EXPECT_EQ(dialogs()[0].kind, DialogShown::Kind::printer);
  EXPECT_EQ(dialogs()[0].flags, 6);
  EXPECT_EQ(dialogs()[1].text, u"Nothing to print.");
  EXPECT_EQ(dialogs()[1].title, u"Tarnmill");
  EXPECT_EQ(dialogs()[1].icon, MessageIcon::information);
  EXPECT_FALSE(std::filesystem::exists(paper()));
}

TEST_F(Printing, ACancelledDialogPrintsNothing) {
  assign(u"abc");
  program.desk.printer(paper());
  program.desk.answer(Cancelled{});
  pad().print();
  EXPECT_EQ(dialogs().size(), 1U);
  EXPECT_FALSE(std::filesystem::exists(paper()));
}

TEST_F(Printing, WithoutAPrinterNothingIsTold) {
  assign(u"abc");
  program.desk.answer(MessageResult::ok);
  pad().print();
  EXPECT_EQ(dialogs().size(), 1U);
}

TEST_F(Printing, AShortDocumentIsOnePage) {
  assign(u"alpha\r\nomega");
  print();
  EXPECT_EQ(printed().count('\f'), 1);
  EXPECT_TRUE(printed().contains("alpha"));
  EXPECT_TRUE(printed().contains("omega"));
}

TEST_F(Printing, OnlyARichTextBoxIsPrinted) {
  assign(u"alpha");
  program.desk.printer(paper());
  pad().print_rtf(u"MathPad.Text1", 0, 0, 0, 0);
  EXPECT_FALSE(std::filesystem::exists(paper()));
  pad().print_rtf(u"MathPad.rt1", 1440, 1440, 1440, 1440);
  EXPECT_TRUE(printed().contains("alpha"));
}

TEST_F(Printing, ALongDocumentGoesOnPageByPage) {
  Text lines;
  for (int i = 1; i <= 200; ++i) lines += u"line" + NumberToText(i, {}) + u".\r\n";
  assign(lines);
  print();
  const QString pages = printed();
  EXPECT_GE(pages.count('\f'), 3);
  for (int i = 1; i <= 200; ++i) EXPECT_EQ(pages.count(QString{"line%1."}.arg(i)), 1) << i;
}

TEST_F(Printing, MarginsWithNoRoomBetweenPrintNothing) {
  assign(u"abc");
  pad().txtlevo.Text = u"4";
  pad().txtDesno.Text = u"5";
  print();
  EXPECT_FALSE(std::filesystem::exists(paper()));
}

TEST_F(Printing, AMarginOfTwentyThreeInchesEndsThePrint) {
  assign(u"abc");
  pad().txtGore.Text = u"23";
  print();
  EXPECT_FALSE(std::filesystem::exists(paper()));
  EXPECT_FALSE(program.bench.ended());
  EXPECT_EQ(dialogs().size(), 1U);
  // The margin of the last print is in the way before the dialog comes.
  program.desk.forget();
  pad().txtGore.Text = u"1";
  print();
  EXPECT_TRUE(dialogs().empty());
}

}  // namespace
}  // namespace tarnmill
