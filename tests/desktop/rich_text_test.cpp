#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

#include "desktop/qt_rich_text.h"

namespace tarnmill::desktop {
namespace {

class RichTextDocument : public ::testing::Test {
 protected:
  RichTextDocument() {
    rich.on_change = [this] { ++changes; };
    rich.on_selection = [this] { ++selections; };
  }

  void select(int start, int length) { rich.select(start, length); }

  QtRichText rich;
  int changes = 0;
  int selections = 0;
};

TEST_F(RichTextDocument, CountsALineBreakAsOnePosition) {
  rich.set_text(u"ab\r\ncd");
  EXPECT_EQ(rich.length(), 5);
  EXPECT_EQ(rich.text(), u"ab\r\ncd");
  select(3, 2);
  EXPECT_EQ(rich.sel_text(), u"cd");
  select(1, 3);
  EXPECT_EQ(rich.sel_text(), u"b\r\nc");
}

TEST_F(RichTextDocument, EveryKindOfLineBreakBecomesOne) {
  rich.set_text(u"a\nb\rc\r\nd");
  EXPECT_EQ(rich.text(), u"a\r\nb\r\nc\r\nd");
}

TEST_F(RichTextDocument, EveryCodeUnitComesBackAsItWent) {
  const Text odd = u"a\u00A0b\u00AD\u2003\uE000\xD83D\xDE00";
  rich.set_text(odd);
  EXPECT_EQ(rich.text(), odd);
  select(1, 1);
  EXPECT_EQ(rich.sel_text(), u"\u00A0");
}

TEST_F(RichTextDocument, NewTextForgetsTheHistoryAndTheSelection) {
  rich.set_text(u"abc");
  select(1, 2);
  rich.replace_selection(u"x");
  rich.set_text(u"other");
  EXPECT_FALSE(rich.can_undo());
  EXPECT_EQ(rich.sel_start(), 0);
  EXPECT_EQ(rich.sel_length(), 0);
}

TEST_F(RichTextDocument, ASelectionIsCutToTheDocument) {
  rich.set_text(u"abc");
  select(2, 50);
  EXPECT_EQ(rich.sel_start(), 2);
  EXPECT_EQ(rich.sel_length(), 1);
  select(-4, 2);
  EXPECT_EQ(rich.sel_start(), 0);
  select(70, 1);
  EXPECT_EQ(rich.sel_start(), 3);
  EXPECT_EQ(rich.sel_length(), 0);
}

TEST_F(RichTextDocument, AReplacementLeavesTheCaretBehindIt) {
  rich.set_text(u"abcd");
  select(1, 2);
  rich.replace_selection(u"x\r\ny");
  EXPECT_EQ(rich.text(), u"ax\r\nyd");
  EXPECT_EQ(rich.sel_start(), 4);
  EXPECT_EQ(rich.sel_length(), 0);
}

TEST_F(RichTextDocument, ChangesAndSelectionsAreToldOnce) {
  rich.set_text(u"abcd");
  EXPECT_EQ(changes, 1);
  select(1, 2);
  EXPECT_EQ(selections, 1);
  EXPECT_EQ(changes, 1);
  rich.replace_selection(u"x");
  EXPECT_EQ(changes, 2);
  select(2, 0);
  const int before = selections;
  select(2, 0);
  EXPECT_EQ(selections, before);
}

TEST_F(RichTextDocument, AFaultOfAHandlerComesThrough) {
  rich.on_change = [] { throw 1; };
  EXPECT_THROW(rich.set_text(u"x"), int);
  EXPECT_EQ(rich.text(), u"x");
}

TEST_F(RichTextDocument, EditsAreUndoneAndDoneAgain) {
  rich.set_text(u"abc");
  select(0, 1);
  rich.replace_selection(u"");
  EXPECT_TRUE(rich.can_undo());
  rich.undo();
  EXPECT_EQ(rich.text(), u"abc");
  EXPECT_TRUE(rich.can_redo());
  rich.redo();
  EXPECT_EQ(rich.text(), u"bc");
}

TEST_F(RichTextDocument, ALineBreakHasAFormat) {
  rich.set_text(u"a\r\nb");
  select(1, 1);
  rich.set_sel_bold(true);
  rich.set_sel_font_size(20);
  EXPECT_EQ(rich.sel_bold(), true);
  EXPECT_EQ(rich.sel_font_size(), 20);
  select(2, 1);
  EXPECT_EQ(rich.sel_bold(), false);
}

TEST_F(RichTextDocument, ASelectionWrittenBackChangesNothing) {
  rich.set_text(u"abc");
  select(1, 2);
  rich.replace_selection_rtf(rich.sel_rtf());
  EXPECT_EQ(rich.text(), u"abc");
  select(0, 3);
  rich.copy();
  rich.paste();
  EXPECT_EQ(rich.text(), u"abc");
}

TEST_F(RichTextDocument, PuttingNothingInPlaceOfNothingChangesNothing) {
  rich.replace_selection(u"");
  EXPECT_EQ(changes, 0);
}

TEST_F(RichTextDocument, EachReplacementIsUndoneByItself) {
  rich.replace_selection(u"abc");
  rich.replace_selection(u"def");
  rich.undo();
  EXPECT_EQ(rich.text(), u"abc");
}

TEST_F(RichTextDocument, AnAlignmentThatItHasMakesNoStep) {
  rich.set_sel_alignment(0);
  EXPECT_FALSE(rich.can_undo());
}

TEST_F(RichTextDocument, NewTextInOtherFormatsTellsOfTheSelection) {
  rich.set_text(u"abc");
  select(0, 3);
  rich.set_sel_char_offset(60);
  select(0, 0);
  selections = 0;
  rich.set_text(u"def");
  EXPECT_EQ(rich.sel_char_offset(), 0);
  EXPECT_EQ(selections, 1);
  rich.set_text(u"ghi");
  EXPECT_EQ(selections, 1);
}

TEST_F(RichTextDocument, SignsOfFontsOutliveAFile) {
  const Text signs = u"a\u0001\u0008\u000B\u001F\u007Fb";
  rich.set_text(signs);
  rich.set_rtf(rich.rtf());
  EXPECT_EQ(rich.text(), signs);
}

TEST_F(RichTextDocument, EastAsianTextOfACodePageOutlivesAFile) {
  rich.set_rtf(
      R"({\rtf1\ansi{\fonttbl{\f0\fcharset128 \'82\'6c\'82\'72 \'96\'be\'92\'a9;}}\f0 \'93\'fa\'96\'7b!})");
  rich.set_rtf(rich.rtf());
  EXPECT_EQ(rich.text(), u"日本!");
  select(0, 2);
  EXPECT_EQ(rich.sel_font_name(), u"ＭＳ 明朝");
}

TEST_F(RichTextDocument, TheHistoryTellsTheKindOfEachOfItsEdits) {
  rich.set_text(u"abcd");
  select(0, 2);
  rich.cut();
  rich.paste();
  EXPECT_EQ(rich.undo_kind(), 5);
  rich.undo();
  EXPECT_EQ(rich.undo_kind(), 4);
  EXPECT_EQ(rich.redo_kind(), 5);
  rich.undo();
  EXPECT_EQ(rich.undo_kind(), 0);
  EXPECT_EQ(rich.redo_kind(), 4);
  rich.redo();
  rich.redo();
  EXPECT_EQ(rich.undo_kind(), 5);
  EXPECT_EQ(rich.redo_kind(), 0);
}

TEST_F(RichTextDocument, SeveralLinesAreCopiedWithTheProgramsLineBreaks) {
  rich.set_text(u"one\r\ntwo");
  select(1, 4);
  rich.copy();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "ne\r\nt");
  select(0, 0);
  rich.paste();
  EXPECT_EQ(rich.text(), u"ne\r\ntone\r\ntwo");
}

TEST_F(RichTextDocument, ChangingTheCaseOfNothingChangesNothing) {
  rich.set_text(u"abc");
  select(1, 0);
  changes = 0;
  rich.change_selection([](TextView text) { return upper_case(text); });
  EXPECT_EQ(changes, 0);
  EXPECT_FALSE(rich.can_undo());
}

TEST_F(RichTextDocument, CutCopyAndPasteGoThroughTheClipboard) {
  rich.set_text(u"abcd");
  select(1, 2);
  rich.copy();
  EXPECT_EQ(rich.text(), u"abcd");
  rich.cut();
  EXPECT_EQ(rich.text(), u"ad");
  EXPECT_TRUE(rich.can_paste());
  select(2, 0);
  rich.paste();
  EXPECT_EQ(rich.text(), u"adbc");
}

TEST_F(RichTextDocument, AFormatGoesToTheSelectionAlone) {
  rich.set_text(u"abcd");
  select(1, 2);
  rich.set_sel_bold(true);
  EXPECT_EQ(rich.sel_bold(), true);
  select(0, 1);
  EXPECT_EQ(rich.sel_bold(), false);
  select(0, 4);
  EXPECT_EQ(rich.sel_bold(), std::nullopt);
}

TEST_F(RichTextDocument, AFormatIsNoChangeOfTheText) {
  rich.set_text(u"abcd");
  select(0, 4);
  rich.set_sel_italic(true);
  EXPECT_EQ(changes, 1);
}

TEST_F(RichTextDocument, EachFormatComesBack) {
  rich.set_text(u"abcd");
  select(0, 4);
  rich.set_sel_font_name(u"JetBrains Mono");
  rich.set_sel_font_size(17.5);
  rich.set_sel_underline(true);
  rich.set_sel_strike_through(true);
  rich.set_sel_color(rgb(10, 20, 30));
  rich.set_sel_char_offset(60);
  EXPECT_EQ(rich.sel_font_name(), u"JetBrains Mono");
  EXPECT_EQ(rich.sel_font_size(), 17.5);
  EXPECT_EQ(rich.sel_underline(), true);
  EXPECT_EQ(rich.sel_strike_through(), true);
  EXPECT_EQ(rich.sel_italic(), false);
  EXPECT_EQ(rich.sel_color(), rgb(10, 20, 30));
  EXPECT_EQ(rich.sel_char_offset(), 60);
}

TEST_F(RichTextDocument, AFormatWithNothingSelectedIsThatOfWhatIsTypedNext) {
  rich.set_text(u"ab");
  select(1, 0);
  rich.set_sel_bold(true);
  EXPECT_EQ(rich.sel_bold(), true);
  rich.replace_selection(u"X");
  select(1, 1);
  EXPECT_EQ(rich.sel_bold(), true);
  select(0, 1);
  EXPECT_EQ(rich.sel_bold(), false);
}

TEST_F(RichTextDocument, AlignmentBelongsToParagraphs) {
  rich.set_text(u"a\r\nb");
  for (const int alignment : {2, 1, 0}) {
    select(0, 0);
    rich.set_sel_alignment(alignment);
    EXPECT_EQ(rich.sel_alignment(), alignment);
  }
  rich.set_sel_alignment(2);
  select(0, 3);
  EXPECT_EQ(rich.sel_alignment(), std::nullopt);
}

TEST_F(RichTextDocument, ALongSelectionIsMixedByOneCharacter) {
  rich.set_text(Text(300, u'a') + u"\r\n" + Text(300, u'b'));
  select(0, 601);
  EXPECT_EQ(rich.sel_bold(), false);
  select(450, 1);
  rich.set_sel_bold(true);
  for (const int length : {40, 600}) {
    select(449, length);
    EXPECT_EQ(rich.sel_bold(), std::nullopt) << length;
    select(451, length);
    EXPECT_EQ(rich.sel_bold(), false) << length;
  }
}

TEST_F(RichTextDocument, NothingButALineBreakHasTheFormatOfWhatIsTypedNext) {
  rich.set_text(u"a\r\nb");
  select(1, 1);
  EXPECT_EQ(rich.sel_bold(), false);
}

TEST_F(RichTextDocument, ADraggedSelectionMovesWithItsFormats) {
  rich.set_text(u"abcdef");
  select(1, 2);
  rich.set_sel_bold(true);
  rich.drag_selection(5, false);
  EXPECT_EQ(rich.text(), u"adebcf");
  EXPECT_EQ(rich.sel_text(), u"bc");
  EXPECT_EQ(rich.sel_bold(), true);
  EXPECT_EQ(rich.undo_kind(), 3);
  rich.drag_selection(4, false);
  EXPECT_EQ(rich.text(), u"adebcf") << "within itself";
  rich.drag_selection(0, true);
  EXPECT_EQ(rich.text(), u"bcadebcf");
  rich.undo();
  rich.undo();
  EXPECT_EQ(rich.text(), u"abcdef");
}

TEST_F(RichTextDocument, ASearchSelectsWhatItFinds) {
  rich.set_text(u"one Two two twofold");
  EXPECT_EQ(rich.find(u"two", 0, false, false), 4);
  EXPECT_EQ(rich.sel_text(), u"Two");
  EXPECT_EQ(rich.find(u"two", 0, false, true), 8);
  EXPECT_EQ(rich.find(u"two", 11, false, false), 12);
  EXPECT_EQ(rich.find(u"two", 11, true, false), -1);
  EXPECT_EQ(rich.sel_text(), u"two");
}

TEST_F(RichTextDocument, LinesAreCountedFromTheFirst) {
  rich.set_text(u"ab\r\ncd\r\n");
  EXPECT_EQ(rich.line_of(0), 0);
  EXPECT_EQ(rich.line_of(2), 0);
  EXPECT_EQ(rich.line_of(3), 1);
  EXPECT_EQ(rich.line_of(6), 2);
  EXPECT_EQ(rich.line_of(600), 2);
  select(4, 0);
  rich.select_line();
  EXPECT_EQ(rich.sel_text(), u"cd");
}

}  // namespace
}  // namespace tarnmill::desktop
