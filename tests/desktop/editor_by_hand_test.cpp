// The editor and its windows, used with mouse and keyboard.
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableWidget>
#include <QTextEdit>

#include "desktop/program_fixture.h"
#include "desktop/qt_text.h"
#include "desktop/skin/combo.h"
#include "mathpad/frm_ansi.h"
#include "mathpad/frm_find.h"
#include "mathpad/frm_page_setup.h"
#include "mathpad/math_pad.h"

namespace tarnmill::desktop {
namespace {

class EditorByHand : public ProgramByHand {
 protected:
  EditorByHand() { show("MathPad"); }

  MathPad& pad() { return bench.window<MathPad>(); }
  RichText& document() { return pad().rt1.document(); }
  QTextEdit& edit() { return widget<QTextEdit>("MathPad", "rt1"); }
  QMenuBar& menu_bar() { return widget<QMenuBar>("MathPad", "deco_menu"); }

  void type(const char* words) {
    QTest::keyClicks(&edit(), words);
    QCoreApplication::processEvents();
  }
  /// Opens one of the top menus and gives it.
  QMenu& open_menu(const char* name) {
    auto* action = menu_bar().findChild<QAction*>(name);
    EXPECT_NE(action, nullptr) << name;
    QMetaObject::invokeMethod(action->menu<QMenu*>(), "aboutToShow");
    return *action->menu<QMenu*>();
  }
  static QAction& entry(const QMenu& menu, const char* name) {
    auto* found = menu.findChild<QAction*>(name);
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QTableWidget& table() { return widget<QTableWidget>("frmansi", "Grid1"); }
  QPoint cell(int code) {
    return table().visualItemRect(table().item((code - 1) / 22, (code - 1) % 22)).center();
  }
};

TEST_F(EditorByHand, TheKeyboardIsOnTheDocument) { EXPECT_TRUE(edit().hasFocus()); }

TEST_F(EditorByHand, TypingIsCountedAndAskedAbout) {
  type("abc");
  EXPECT_EQ(pad().lblchar2.Caption.get(), u"3");
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
}

TEST_F(EditorByHand, EditsAreTakenBackAndDoneAgainByKeys) {
  type("abc");
  key("MathPad", Qt::Key_A, Qt::ControlModifier);
  QCoreApplication::processEvents();
  key("MathPad", Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(document().text(), u"");
  key("MathPad", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(document().text(), u"abc");
  EXPECT_EQ(pad().redo_type(), 4);
  key("MathPad", Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(document().text(), u"");
  EXPECT_EQ(pad().undo_type(), 4);
}

TEST_F(EditorByHand, TabIsTextAndCtrlTabLeadsOut) {
  key("MathPad", Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(document().text(), u"\t");
  EXPECT_TRUE(edit().hasFocus());
  key("MathPad", Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_FALSE(edit().hasFocus());
  EXPECT_EQ(document().text(), u"\t");
}

TEST_F(EditorByHand, AToolIsPressedByTheSpaceBar) {
  type("abc");
  document().select(0, 3);
  auto& bold = widget<QAbstractButton>("MathPad", "deco_bold");
  bold.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&bold, Qt::Key_Space);
  EXPECT_EQ(document().sel_bold(), true);
  EXPECT_EQ(pad().Toolbar1.Buttons("Bold").Value, 1);
}

TEST_F(EditorByHand, TheMenusStandInTheirOrder) {
  QStringList captions;
  for (const QAction* each : menu_bar().actions()) captions += each->text();
  EXPECT_EQ(captions.join(' '), "&File &Edit &Tools F&ormat &Help");
}

TEST_F(EditorByHand, TheEditMenuOpensWithWhatCanBeDone) {
  EXPECT_FALSE(entry(open_menu("mnuEdit"), "mnuEditUndo").isEnabled());
  type("abc");
  document().select(0, 2);
  QMenu& menu = open_menu("mnuEdit");
  for (const char* each : {"mnuEditUndo", "mnuEditCut", "mnuEditCopy", "mnuEditClear", "mnuselall"}) {
    EXPECT_TRUE(entry(menu, each).isEnabled()) << each;
  }
  entry(menu, "mnuEditClear").trigger();
  EXPECT_EQ(document().text(), u"c");
  EXPECT_FALSE(entry(open_menu("mnuEdit"), "mnuEditCut").isEnabled());
}

TEST_F(EditorByHand, RecentFilesStandAtTheEndOfTheFileMenu) {
  QStringList entries;
  for (const QAction* each : open_menu("mnufile").actions()) entries += each->text();
  EXPECT_EQ(entries.join(','), "&New,&Open,&Save,Save &As,,&Print,Page Se&tup...,,Close &MathPad");
  const Text path = from_utf8((folder.path() / "a.txt").string());
  type("abc");
  desk.answer(path);
  bench.enter([this] { pad().save(); });
  const QMenu& menu = open_menu("mnufile");
  EXPECT_TRUE(menu.actions().at(9)->isSeparator());
  EXPECT_EQ(menu.actions().at(10)->text(), to_qt(path));
  EXPECT_EQ(menu.actions().size(), 11);
}

TEST_F(EditorByHand, AMenuWithinAMenuIsChosenFrom) {
  type("abc");
  document().select(0, 2);
  entry(open_menu("mnuformat"), "mnuupper").trigger();
  EXPECT_EQ(document().text(), u"ABc");
}

TEST_F(EditorByHand, ACheckMarkShows) {
  type("ab");
  document().select(1, 1);
  EXPECT_FALSE(entry(open_menu("mnuformat"), "mnusuper").isChecked());
  entry(open_menu("mnuformat"), "mnusuper").trigger();
  EXPECT_TRUE(entry(open_menu("mnuformat"), "mnusuper").isChecked());
  EXPECT_EQ(document().sel_char_offset(), 55);
}

TEST_F(EditorByHand, TheMenuMayCloseTheWindow) {
  entry(open_menu("mnufile"), "mnuexit").trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(bench.find_window("MathPad"), nullptr);
}

TEST_F(EditorByHand, AToolIsMarkedWhileTheSelectionHasItsFormat) {
  type("ab");
  document().select(0, 1);
  click("MathPad", "deco_bold");
  EXPECT_TRUE(widget("MathPad", "deco_bold").is_chosen());
  EXPECT_EQ(document().sel_bold(), true);
  document().select(1, 1);
  EXPECT_FALSE(widget("MathPad", "deco_bold").is_chosen());
  click("MathPad", "deco_center");
  EXPECT_EQ(document().sel_alignment(), 2);
}

TEST_F(EditorByHand, AFontSizeIsTyped) {
  type("ab");
  document().select(0, 2);
  auto& size = widget<Combo>("MathPad", "cmbSize");
  size.lineEdit()->selectAll();
  QTest::keyClicks(size.lineEdit(), "17");
  EXPECT_EQ(document().sel_font_size(), 17);
}

TEST_F(EditorByHand, BarsAndDocumentFollowTheWindow) {
  form("MathPad").resize(900, 600);
  QCoreApplication::processEvents();
  EXPECT_EQ(menu_bar().width(), 900);
  EXPECT_EQ(widget<QWidget>("MathPad", "Toolbar1").width(), 900);
  EXPECT_NEAR(edit().width(), 900 - 40 / 15.0, 1);
  EXPECT_NEAR(edit().height(), 600 - 71 - 50 / 15.0, 1);
}

TEST_F(EditorByHand, AStringIsFoundAndReplaced) {
  type("one two two");
  click("MathPad", "deco_find");
  auto& find = bench.window<frmFind>();
  ASSERT_TRUE(find.Visible);
  QTest::keyClicks(&widget<QLineEdit>("frmFind", "Text1"), "two");
  QTest::keyClicks(&widget<QLineEdit>("frmFind", "Text2"), "2");
  click("frmFind", "FindButton");
  EXPECT_EQ(document().sel_start(), 4);
  EXPECT_EQ(edit().textCursor().selectedText(), "two");
  click("frmFind", "ReplaceButton");
  EXPECT_EQ(document().text(), u"one 2 two");
  click("frmFind", "Command5");
  EXPECT_FALSE(find.Visible);
}

TEST_F(EditorByHand, ACharacterIsCollectedOnceByADoubleClickAndInserted) {
  show("frmansi");
  // As a person's mouse does it: the second press comes as a double click, and its release once more.
  QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cell(66));
  QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, cell(66));
  EXPECT_EQ(bench.window<frmansi>().Text1.Text.get(), u"B");
  EXPECT_EQ(document().text(), u"B");
  QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cell(67));
  EXPECT_EQ(bench.window<frmansi>().Text1.Text.get(), u"BC");
}

TEST_F(EditorByHand, TheChartShowsItsFontEverywhere) {
  show("frmansi");
  auto& fonts = bench.window<frmansi>().Combo1;
  ASSERT_FALSE(fonts.items().empty());
  fonts.choose(0);
  const QString name = widget<Combo>("frmansi", "Combo1").itemText(0);
  EXPECT_EQ(table().font().family(), name);
  EXPECT_EQ(table().font().pixelSize(), 16);
  EXPECT_EQ(widget<QLabel>("frmansi", "Label2").font().family(), name);
  EXPECT_EQ(widget<QLabel>("frmansi", "Label2").font().pixelSize(), 48);
  EXPECT_EQ(widget<QLineEdit>("frmansi", "Text1").font().family(), name);
  EXPECT_EQ(table().rowHeight(0), 23);
  EXPECT_EQ(table().columnWidth(21), 20);
}

TEST_F(EditorByHand, ControlCharactersShowNothing) {
  show("frmansi");
  for (const int code : {1, 9, 10, 31, 127}) {
    EXPECT_EQ(table().item((code - 1) / 22, (code - 1) % 22)->text(), "") << code;
  }
  EXPECT_EQ(table().item(2, 20)->text(), "A");
}

TEST_F(EditorByHand, MarginsAreChosenAndTyped) {
  show("frmPageSetup");
  auto& left = widget<Combo>("frmPageSetup", "cboLeftMargin");
  EXPECT_EQ(left.count(), 81);
  EXPECT_EQ(left.lineEdit()->text(), "1");
  left.lineEdit()->selectAll();
  QTest::keyClicks(left.lineEdit(), "2.5");
  click("frmPageSetup", "cmdOK");
  EXPECT_EQ(pad().txtlevo.Text.get(), u"2.5");
}

}  // namespace
}  // namespace tarnmill::desktop
