#include "forms/raster.h"
#include "graph/frm_func.h"
#include "math_pad_fixture.h"

namespace tarnmill {
namespace {

using FileCycle = MathPadTest;

TEST_F(FileCycle, AFreshEditorHasNoNameAndNoChanges) {
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
}

TEST_F(FileCycle, TypingShowsTheLengthAndMarksTheChange) {
  type(u"abc\r\nd");
  EXPECT_EQ(pad().lblchar2.Caption.get(), u"5");
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
}

TEST_F(FileCycle, AnEmptyDocumentHasNothingToSelect) {
  type(u"a");
  EXPECT_TRUE(pad().mnuline.Enabled);
  EXPECT_TRUE(pad().mnuselall.Enabled);
  assign(u"");
  EXPECT_FALSE(pad().mnuline.Enabled);
  EXPECT_FALSE(pad().mnuselall.Enabled);
}

TEST_F(FileCycle, ADocumentOfOneCharacterAfterALoadCountsAsUnchanged) {
  write("one.txt", u"");
  open("one.txt");
  type(u"x");
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
  type(u"y");
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
}

TEST_F(FileCycle, ALengthEqualToTheCaretsLineCountsAsUnchanged) {
  assign(u"\r\n\r\n");
  document().select(2, 0);
  pad().get_edit_status();
  EXPECT_EQ(pad().lblchar.Caption.get(), u"3");
  type(u"x");
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
}

TEST_F(FileCycle, OpenTakesTheFileAndItsName) {
  write("notes.txt", u"one\r\ntwo");
  open("notes.txt");
  EXPECT_EQ(text(), u"one\r\ntwo");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    " + path("notes.txt"));
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
  EXPECT_EQ(pad().mnuRecent(1).Caption.get(), path("notes.txt"));
  EXPECT_TRUE(pad().mnuRecent(1).Visible);
  EXPECT_TRUE(pad().mnuSeparator2.Visible);
  EXPECT_FALSE(pad().mnuRecent(2).Visible);
}

TEST_F(FileCycle, OpenAsksByItsDialog) {
  open("nothing.txt");
  EXPECT_EQ(last_dialog().kind, DialogShown::Kind::open);
  EXPECT_EQ(last_dialog().title, u"Open");
  EXPECT_EQ(last_dialog().filter, u"Text (*.txt)|*.txt|RTF (*.rtf)|*.rtf|All Files (*.*)|*.*");
  EXPECT_EQ(text(), u"");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
}

struct Question {
  const char* label;
  void (MathPad::*operation)();
  const char16_t* text;
};

class Questions : public MathPadTest, public testing::WithParamInterface<Question> {};

TEST_P(Questions, AreAskedOverChanges) {
  type(u"abc");
  program.desk.answer(MessageResult::cancel);
  (pad().*GetParam().operation)();
  ASSERT_EQ(dialogs().size(), 1U);
  EXPECT_EQ(last_dialog().text, GetParam().text);
  EXPECT_EQ(last_dialog().title, u"Tarnmill");
  EXPECT_EQ(last_dialog().icon, MessageIcon::none);
  EXPECT_EQ(last_dialog().buttons, MessageButtons::yes_no_cancel);
  EXPECT_EQ(text(), u"abc");
}

INSTANTIATE_TEST_SUITE_P(
    Commands, Questions,
    testing::Values(Question{"New", &MathPad::new_document, u"Do you want to save the changes?"},
                    Question{"Open", &MathPad::open_document, u"Do you want to save the changes you made?"}),
    [](const auto& each) { return each.param.label; });

TEST_F(FileCycle, NewEmptiesWhenNotToSave) {
  type(u"abc");
  program.desk.answer(MessageResult::no);
  pad().new_document();
  EXPECT_EQ(text(), u"");
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
  EXPECT_EQ(document().sel_font_name(), u"Tahoma");
  EXPECT_EQ(document().sel_font_size(), 10);
  EXPECT_EQ(document().sel_alignment(), 0);
}

TEST_F(FileCycle, NewSavesFirstWhenTold) {
  type(u"abc");
  program.desk.answer(MessageResult::yes);
  program.desk.answer(path("kept.txt"));
  pad().new_document();
  EXPECT_EQ(bytes("kept.txt"), "abc");
  EXPECT_EQ(text(), u"");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
}

TEST_F(FileCycle, SaveAsStoresAndNames) {
  type(u"abc");
  save_as("a.txt");
  EXPECT_EQ(last_dialog().kind, DialogShown::Kind::save);
  EXPECT_EQ(last_dialog().title, u"Save As");
  EXPECT_EQ(last_dialog().filter_index, 1);
  EXPECT_EQ(bytes("a.txt"), "abc");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    " + path("a.txt"));
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
}

TEST_F(FileCycle, AFolderOfTheNameIsNoFileToReplace) {
  std::filesystem::create_directory(program.folder() / "a.txt");
  type(u"new");
  save_as("a.txt");
  EXPECT_EQ(dialogs().size(), 1U);
  EXPECT_EQ(text(), u"new");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
}

TEST_F(FileCycle, TheCaptionTellsTheFormatOfASave) {
  type(u"abc");
  save_as("a.txt");
  pad().Caption = u"MathPad    " + path("a.rtf");
  pad().save();
  EXPECT_EQ(bytes("a.txt").substr(0, 5), "{\\rtf");
  EXPECT_EQ(text(), u"abc");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    " + path("a.txt"));
}

TEST_F(FileCycle, EverySaveAndOpenPreparesTheDialog) {
  type(u"abc");
  save_as("a.rtf");
  pad().CommonDialog1.Filter = Text{};
  pad().CommonDialog1.CancelError = false;
  pad().save_current();
  EXPECT_EQ(pad().CommonDialog1.FilterIndex, 2);
  EXPECT_TRUE(pad().CommonDialog1.CancelError);
  EXPECT_EQ(pad().CommonDialog1.Filter.get(), u"Text (*.txt)|*.txt|RTF (*.rtf)|*.rtf|All Files (*.*)|*.*");
  pad().open_current();
  EXPECT_EQ(pad().CommonDialog1.DialogTitle.get(), u"Open");
}

TEST_F(FileCycle, AFileThatIsThereIsAskedFor) {
  write("a.txt", u"old");
  type(u"new");
  program.desk.answer(path("a.txt"));
  program.desk.answer(MessageResult::no);
  pad().save_as();
  EXPECT_EQ(last_dialog().text, path("a.txt") + u" already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(last_dialog().title, u"Save As");
  EXPECT_EQ(last_dialog().icon, MessageIcon::none);
  EXPECT_EQ(last_dialog().buttons, MessageButtons::yes_no);
  EXPECT_EQ(bytes("a.txt"), "old");
  EXPECT_EQ(text(), u"new");
  program.desk.answer(path("a.txt"));
  program.desk.answer(MessageResult::yes);
  pad().save_as();
  EXPECT_EQ(bytes("a.txt"), "new");
}

TEST_F(FileCycle, TheLastThreeLettersTellTheFormat) {
  type(u"abc");
  save_as("notes.rtf.txt");
  EXPECT_EQ(bytes("notes.rtf.txt"), "abc");
  save_as("NOTES.RTF");
  EXPECT_TRUE(bytes("NOTES.RTF").starts_with("{\\rtf"));
  EXPECT_EQ(text(), u"abc");
}

TEST_F(FileCycle, TheFilterFollowsTheName) {
  const std::vector<std::pair<std::string, int>> rows{{"a.txt", 1}, {"a.RTF", 2}, {"a.log", 3}};
  for (const auto& [name, index] : rows) {
    type(u"abc");
    save_as(name);
    program.desk.answer(Cancelled{});
    pad().save_as();
    EXPECT_EQ(last_dialog().filter_index, index) << name;
  }
}

TEST_F(FileCycle, APlainSaveDropsTheFormatsFromTheScreen) {
  type(u"abc");
  document().select(0, 3);
  document().set_sel_bold(true);
  document().set_sel_color(rgb(255, 0, 0));
  save_as("a.txt");
  document().select(0, 3);
  EXPECT_EQ(document().sel_bold(), false);
  EXPECT_EQ(document().sel_color(), 0);
}

TEST_F(FileCycle, ARichSaveKeepsThem) {
  type(u"abc");
  document().select(1, 1);
  document().set_sel_bold(true);
  document().set_sel_font_name(u"Inter");
  document().set_sel_font_size(8.5);
  document().set_sel_char_offset(60);
  document().set_sel_alignment(2);
  save_as("a.rtf");
  program.restart();
  open("a.rtf");
  EXPECT_EQ(text(), u"abc");
  document().select(1, 1);
  EXPECT_EQ(document().sel_bold(), true);
  EXPECT_EQ(document().sel_font_name(), u"Inter");
  EXPECT_EQ(document().sel_font_size(), 8.5);
  EXPECT_EQ(document().sel_char_offset(), 60);
  EXPECT_EQ(document().sel_alignment(), 2);
  document().select(0, 1);
  EXPECT_EQ(document().sel_bold(), false);
}

TEST_F(FileCycle, SaveWithANameStoresAndReloadsWithoutAQuestion) {
  write("a.txt", u"old");
  open("a.txt");
  type(u" and new");
  program.desk.forget();
  pad().save();
  EXPECT_TRUE(dialogs().empty());
  EXPECT_EQ(bytes("a.txt"), "old and new");
  EXPECT_EQ(text(), u"old and new");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    " + path("a.txt"));
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
  EXPECT_EQ(document().sel_start(), 0);
}

TEST_F(FileCycle, SaveWithoutANameAsksForOne) {
  type(u"abc");
  program.desk.answer(path("b.txt"));
  pad().save();
  EXPECT_EQ(bytes("b.txt"), "abc");
}

TEST_F(FileCycle, SaveCurrentStoresAndLeavesTheScreen) {
  write("a.rtf.txt", u"old");
  open("a.rtf.txt");
  type(u"!");
  document().select(1, 0);
  pad().save_current();
  EXPECT_EQ(bytes("a.rtf.txt"), "old!");
  EXPECT_EQ(document().sel_start(), 1);
  EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
}

TEST_F(FileCycle, ACancelledDialogLeavesTheDocumentItsName) {
  write("a.txt", u"old");
  open("a.txt");
  program.desk.answer(Cancelled{});
  pad().open_document();
  type(u"!");
  pad().save();
  EXPECT_EQ(bytes("a.txt"), "old!");
}

TEST_F(FileCycle, AFileThatIsNoRichTextLeavesTheDocument) {
  write("a.rtf", u"plain");
  assign(u"kept");
  pad().rt1.Tag = u"notchange";
  open("a.rtf");
  EXPECT_EQ(text(), u"kept");
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
}

TEST_F(FileCycle, ARecentFileIsOpenedAgain) {
  write("a.txt", u"first");
  write("b.txt", u"second");
  open("a.txt");
  open("b.txt");
  EXPECT_EQ(pad().mnuRecent(2).Caption.get(), path("a.txt"));
  pad().mnuRecent(2).press();
  EXPECT_EQ(text(), u"first");
  EXPECT_EQ(pad().mnuRecent(1).Caption.get(), path("a.txt"));
  EXPECT_EQ(pad().mnuRecent(2).Caption.get(), path("b.txt"));
}

TEST_F(FileCycle, ARecentFileThatIsGoneLeavesTheDocumentAndItsName) {
  write("a.txt", u"first");
  write("b.txt", u"second");
  open("a.txt");
  open("b.txt");
  std::filesystem::remove(program.folder() / "a.txt");
  pad().mnuRecent(2).press();
  EXPECT_EQ(text(), u"second");
  type(u"!");
  pad().save();
  EXPECT_EQ(bytes("b.txt"), "second!");
}

TEST_F(FileCycle, ARecentFileAsksOverChanges) {
  write("a.txt", u"first");
  open("a.txt");
  type(u"!");
  program.desk.answer(MessageResult::yes);
  pad().mnuRecent(1).press();
  EXPECT_EQ(last_dialog().text, u"Do you want to save the changes you made?");
  EXPECT_EQ(bytes("a.txt"), "first!");
}

TEST_F(FileCycle, APictureComesInOverTheClipboard) {
  const auto raster = program.desk.make_raster(20, 10);
  raster->clear(rgb(255, 0, 0));
  ASSERT_TRUE(raster->save(program.folder() / "red.bmp"));
  program.desk.answer(path("red.bmp"));
  pad().insert_picture();
  EXPECT_EQ(last_dialog().title, u"Insert Image");
  EXPECT_EQ(last_dialog().filter,
            u"Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|All Files (*.*)|*.*");
  EXPECT_TRUE(program.desk.clipboard_has_picture());
  EXPECT_EQ(document().length(), 1);
  save_as("picture.rtf");
  EXPECT_NE(bytes("picture.rtf").find("\\pngblip"), std::string::npos);
  EXPECT_EQ(document().length(), 1);
}

TEST_F(FileCycle, AGraphCopiedAsAPictureIsPasted) {
  auto& graph = program.window<frmFunc>();
  graph.Show();
  int key_c = 67;
  graph.KeyDown.raise(key_c, 2);
  type(u"y = ");
  pad().mnuEdit.press();
  EXPECT_TRUE(pad().mnuEditPaste.Enabled);
  pad().mnuEditPaste.press();
  EXPECT_EQ(document().length(), 5);
  EXPECT_NE(document().rtf().find("\\picw400"), std::string::npos);
}

TEST_F(FileCycle, AFileThatIsNoPictureLeavesTheDocument) {
  write("no.bmp", u"no picture");
  program.desk.answer(path("no.bmp"));
  pad().insert_picture();
  EXPECT_EQ(document().length(), 0);
  EXPECT_FALSE(program.desk.clipboard_has_picture());
}

}  // namespace
}  // namespace tarnmill
