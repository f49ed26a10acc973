#include "forms/common_dialog.h"

#include <gtest/gtest.h>

#include "engine/fault.h"
#include "forms/sample_window.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

using Shown = DialogShown::Kind;

class CommonDialogTest : public ::testing::Test {
 protected:
  void expect_cancelled(const std::function<void()>& show) {
    try {
      show();
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.number(), 32755);
      EXPECT_EQ(fault.description(), u"Cancel was selected.");
    }
  }
  const DialogShown& last() { return program.desk.dialogs().back(); }

  TestProgram program;
  SampleWindow window{program.bench};
  CommonDialog dialog{window, "dialog"};
};

TEST_F(CommonDialogTest, KeepsTheColourChosen) {
  dialog.DialogTitle = u"Colour";
  dialog.Flags = 7;
  program.desk.answer(Color{5});
  dialog.ShowColor();
  EXPECT_EQ(dialog.Color, 5);
  EXPECT_EQ(last().kind, Shown::color);
  EXPECT_EQ(last().title, u"Colour");
  EXPECT_EQ(last().flags, 7);
}

TEST_F(CommonDialogTest, ACancelChangesNothing) {
  dialog.Color = 5;
  dialog.FileName = u"a";
  dialog.FontName = u"Arial";
  dialog.ShowColor();
  dialog.ShowFont();
  dialog.ShowOpen();
  dialog.ShowSave();
  dialog.ShowPrinter();
  EXPECT_EQ(program.desk.dialogs().size(), 5U);
  EXPECT_EQ(dialog.Color, 5);
  EXPECT_EQ(dialog.FileName.get(), u"a");
  EXPECT_EQ(dialog.FontName.get(), u"Arial");
}

TEST_F(CommonDialogTest, ACancelIsAFaultWhereThatIsWanted) {
  dialog.CancelError = true;
  expect_cancelled([&] { dialog.ShowColor(); });
  expect_cancelled([&] { dialog.ShowFont(); });
  expect_cancelled([&] { dialog.ShowOpen(); });
  expect_cancelled([&] { dialog.ShowSave(); });
  expect_cancelled([&] { dialog.ShowPrinter(); });
}

TEST_F(CommonDialogTest, KeepsTheFontChosen) {
  dialog.FontName = u"Arial";
  program.desk.answer(FontAnswer{{}, 20.0, true, {}, true, {}, Color{9}});
  dialog.ShowFont();
  EXPECT_EQ(dialog.FontName.get(), u"Arial");
  EXPECT_EQ(dialog.FontSize, 20);
  EXPECT_TRUE(dialog.FontBold);
  EXPECT_FALSE(dialog.FontItalic);
  EXPECT_TRUE(dialog.FontUnderline);
  EXPECT_EQ(dialog.Color, 0) << "a dialog without effects offers no colour";
}

TEST_F(CommonDialogTest, AFontDialogWithEffectsGivesTheColour) {
  dialog.Flags = 0x102;
  program.desk.answer(FontAnswer{{}, {}, {}, {}, {}, {}, Color{9}});
  dialog.ShowFont();
  EXPECT_EQ(dialog.Color, 9);
}

TEST_F(CommonDialogTest, KeepsTheFileChosen) {
  dialog.Filter = u"Text|*.txt";
  dialog.FilterIndex = 1;
  program.desk.answer(u"/a/b.txt");
  dialog.ShowOpen();
  EXPECT_EQ(dialog.FileName.get(), u"/a/b.txt");
  EXPECT_EQ(last().kind, Shown::open);
  EXPECT_EQ(last().filter, u"Text|*.txt");
  EXPECT_EQ(last().filter_index, 1);
  program.desk.answer(u"/c");
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName.get(), u"/c");
  EXPECT_EQ(last().kind, Shown::save);
}

TEST_F(CommonDialogTest, AsksForThePrinter) {
  dialog.CancelError = true;
  dialog.Flags = 64;
  program.desk.answer(MessageResult::ok);
  dialog.ShowPrinter();
  EXPECT_EQ(last().kind, Shown::printer);
  EXPECT_EQ(last().flags, 64);
}

}  // namespace
}  // namespace tarnmill
