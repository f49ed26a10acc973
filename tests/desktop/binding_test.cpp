#include <gtest/gtest.h>

#include "desktop/sample_desk.h"

namespace tarnmill::desktop {
namespace {

class ControlOnScreen : public SampleView {};

TEST_F(ControlOnScreen, AClickOnAKeyIsAClickOnItsControl) {
  QTest::mouseClick(&widget("Keys_2"), Qt::LeftButton);
  EXPECT_EQ(notes(), Notes{"Keys 2"});
}

TEST_F(ControlOnScreen, WhatTheProgramSetsShows) {
  sample().lbl.Caption = u"new & plain <b>";
  EXPECT_EQ(widget<QLabel>("lbl").text(), "new & plain <b>");
  EXPECT_EQ(widget<QLabel>("lbl").textFormat(), Qt::PlainText);
  sample().cmd.Caption = u"Stop";
  EXPECT_EQ(widget("cmd").text(), "Stop");
  sample().cmd.Visible = false;
  EXPECT_FALSE(widget("cmd").isVisible());
  sample().cmd.Visible = true;
  EXPECT_TRUE(widget("cmd").isVisible());
  sample().cmd.Enabled = false;
  EXPECT_FALSE(widget("cmd").isEnabled());
  sample().txt.ToolTipText = u" tip ";
  EXPECT_EQ(widget<QLineEdit>("txt").toolTip(), " tip ");
}

TEST_F(ControlOnScreen, TheStartShowsThePropertiesAsTheyStand) {
  EXPECT_EQ(widget("cmd").text(), "&Go");
  EXPECT_EQ(widget("cmd").toolTip(), "  Go there ");
  EXPECT_EQ(widget("cmd").accessibleName(), "Go there");
  EXPECT_EQ(widget<QLabel>("lbl").text(), "caption");
}

TEST_F(ControlOnScreen, ALabelsColoursStandOverThoseOfTheSkin) {
  form().setStyleSheet("QLabel { color: #111111; background: #eeeeee; }");
  sample().lbl.Caption = u"\u2588\u2588\u2588\u2588";
  sample().lbl.ForeColor = rgb(250, 200, 0);
  sample().lbl.BackColor = rgb(0, 40, 90);
  const QImage shown = widget<QLabel>("lbl").grab().toImage();
  EXPECT_EQ(shown.pixelColor(4, shown.height() / 2), QColor(250, 200, 0));
  EXPECT_EQ(shown.pixelColor(shown.width() - 2, 2), QColor(0, 40, 90));
}

TEST_F(ControlOnScreen, ATextBoxsBackColourStandsOverThatOfTheSkin) {
  form().setStyleSheet("QLineEdit { background: #eeeeee; }");
  sample().txt.Text = u"";
  sample().txt.BackColor = rgb(0, 40, 90);
  const QImage shown = widget<QLineEdit>("txt").grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(0, 40, 90));
}

TEST_F(ControlOnScreen, AControlIsPlacedInTwips) {
  sample().cmd.Left = 1500;
  sample().cmd.Top = 300;
  sample().cmd.Width = 450;
  sample().cmd.Height = 600;
  EXPECT_EQ(widget("cmd").geometry(), QRect(100, 20, 30, 40));
}

TEST_F(ControlOnScreen, ADisabledKeyTakesNoClick) {
  sample().Keys(1).Enabled = false;
  QTest::mouseClick(&widget("Keys_1"), Qt::LeftButton);
  EXPECT_EQ(notes(), Notes{});
}

TEST_F(ControlOnScreen, AFaceFollowsTheLabelOverIt) {
  EXPECT_EQ(widget("Keys_3").text(), "caption");
  sample().lbl.Caption = u"7";
  EXPECT_EQ(widget("Keys_3").text(), "7");
}

TEST_F(ControlOnScreen, AnIconIsNotPaintedOverByACaption) {
  widget("cmd").setIconName("plus");
  widget("cmd").setText("");
  sample().cmd.Caption = u"+";
  EXPECT_EQ(widget("cmd").text(), "");
}

TEST_F(ControlOnScreen, ATypedTextIsOneChange) {
  QTest::keyClicks(&widget<QLineEdit>("txt"), "a");
  EXPECT_EQ(notes(), Notes{"Change a"});
  QTest::keyClicks(&widget<QLineEdit>("txt"), "b");
  EXPECT_EQ(sample().txt.Text.get(), u"ab");
  EXPECT_EQ(sample().txt.sel_start(), 2);
}

TEST_F(ControlOnScreen, ATextThatTheProgramSetsShowsWithItsSelection) {
  auto& line = widget<QLineEdit>("txt");
  sample().txt.Text = u"hello";
  EXPECT_EQ(line.text(), "hello");
  EXPECT_EQ(line.cursorPosition(), 0);
  sample().txt.select(1, 3);
  EXPECT_EQ(line.selectedText(), "ell");
  sample().txt.replace_selection(u"-");
  EXPECT_EQ(line.text(), "h-o");
  EXPECT_EQ(line.cursorPosition(), 2);
}

TEST_F(ControlOnScreen, APersonsSelectionReachesTheProgram) {
  sample().txt.Text = u"hello";
  widget<QLineEdit>("txt").setSelection(1, 2);
  EXPECT_EQ(sample().txt.sel_start(), 1);
  EXPECT_EQ(sample().txt.sel_length(), 2);
  QTest::keyClick(&widget<QLineEdit>("txt"), Qt::Key_End);
  EXPECT_EQ(sample().txt.sel_start(), 5);
  EXPECT_EQ(sample().txt.sel_length(), 0);
}

TEST_F(ControlOnScreen, AHandlerThatRewritesWhatIsTypedWins) {
  sample().txt.Change.handle([this] {
    if (sample().txt.Text.get() == u"k") sample().txt.Text = u"K!";
  });
  QTest::keyClicks(&widget<QLineEdit>("txt"), "k");
  EXPECT_EQ(sample().txt.Text.get(), u"K!");
  EXPECT_EQ(widget<QLineEdit>("txt").text(), "K!");
}

TEST_F(ControlOnScreen, ALockedBoxMovesItsCaretAndTakesNoTyping) {
  sample().txt.Text = u"hello";
  sample().txt.Locked = true;
  notes().clear();
  auto& line = widget<QLineEdit>("txt");
  QTest::keyClick(&line, Qt::Key_Right);
  QTest::keyClicks(&line, "x");
  QTest::keyClick(&line, Qt::Key_Backspace);
  EXPECT_EQ(line.text(), "hello");
  EXPECT_EQ(notes(), Notes{});
  EXPECT_EQ(line.cursorPosition(), 1);
  EXPECT_EQ(sample().txt.sel_start(), 1);
}

TEST_F(ControlOnScreen, AnEntryChosenInAComboBoxIsChosenInTheProgram) {
  auto& combo = widget<QComboBox>("combo");
  EXPECT_EQ(combo.placeholderText(), "Functions");
  EXPECT_EQ(combo.currentIndex(), -1);
  sample().combo.AddItem(u"sin");
  sample().combo.AddItem(u"cos");
  EXPECT_EQ(combo.count(), 2);
  EXPECT_EQ(combo.currentIndex(), -1);
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(sample().combo.ListIndex.get(), 1);
  EXPECT_EQ(sample().combo.Text.get(), u"cos");
  EXPECT_EQ(notes(), (Notes{"combo sin", "combo cos"}));
}

TEST_F(ControlOnScreen, ACheckBoxTogglesOnceAClick) {
  auto& box = widget<QCheckBox>("check");
  QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, {8, 10});
  EXPECT_EQ(notes(), Notes{"check 1"});
  EXPECT_TRUE(box.isChecked());
  sample().check.Value = 0;
  EXPECT_FALSE(box.isChecked());
}

TEST_F(ControlOnScreen, OptionButtonsAsKeysMarkTheChosenOne) {
  QTest::mouseClick(&widget("option_1"), Qt::LeftButton);
  EXPECT_TRUE(widget("option_1").is_chosen());
  QTest::mouseClick(&widget("option_0"), Qt::LeftButton);
  EXPECT_TRUE(widget("option_0").is_chosen());
  EXPECT_FALSE(widget("option_1").is_chosen());
  EXPECT_EQ(notes(), (Notes{"option 1", "option 0"}));
}

TEST_F(ControlOnScreen, APictureKeyGoesDownAndUpWithTheMouse) {
  sample().key_down.Picture = u"key-pressed";
  QTest::mousePress(&widget("key"), Qt::LeftButton);
  EXPECT_EQ(sample().key.Picture.get(), u"key-pressed");
  EXPECT_TRUE(widget("key").is_held());
  QTest::mouseRelease(&widget("key"), Qt::LeftButton);
  EXPECT_EQ(sample().key.Picture.get(), u"up");
  EXPECT_FALSE(widget("key").is_held());
}

TEST_F(ControlOnScreen, APictureKeyCannotHaveTheFocus) {
  sample().txt.SetFocus();
  int clicks = 0;
  sample().key.Click.handle([&clicks] { ++clicks; });
  QTest::mouseClick(&widget("key"), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(bench.focus(), &sample().txt);
  EXPECT_TRUE(widget<QLineEdit>("txt").hasFocus());
}

struct Mouse {
  std::string event;
  int button, shift;
  float x, y;
  bool operator==(const Mouse&) const = default;
};

class MouseOn : public SampleView {
 protected:
  /// The toolkit takes the keys that another test held for held while the mouse moves.
  void SetUp() override { QTest::keyRelease(&form(), Qt::Key_Shift); }

  template <class Source>
  void watch(Source& source) {
    source.MouseDown.handle([this](int b, int s, float x, float y) { told.push_back({"down", b, s, x, y}); });
    source.MouseMove.handle([this](int b, int s, float x, float y) { told.push_back({"move", b, s, x, y}); });
    source.MouseUp.handle([this](int b, int s, float x, float y) { told.push_back({"up", b, s, x, y}); });
  }

  std::vector<Mouse> told;
};

TEST_F(MouseOn, AControlCountsInTwips) {
  watch(sample().lbl);
  QTest::mousePress(&widget<QLabel>("lbl"), Qt::RightButton, Qt::ShiftModifier, {3, 4});
  QTest::mouseRelease(&widget<QLabel>("lbl"), Qt::RightButton, Qt::NoModifier, {5, 6});
  EXPECT_EQ(told, (std::vector<Mouse>{{"down", 2, 1, 45, 60}, {"up", 2, 0, 75, 90}}));
}

TEST_F(MouseOn, ASurfaceCountsInPixels) {
  watch(sample().surface);
  QTest::mouseMove(&widget<SurfaceView>("surface"), {7, 8});
  QTest::mouseClick(&widget<SurfaceView>("surface"), Qt::LeftButton, Qt::NoModifier, {3, 4});
  ASSERT_GE(told.size(), 3U);
  EXPECT_EQ(told.front(), (Mouse{"move", 0, 0, 7, 8}));
  EXPECT_EQ(told.end()[-2], (Mouse{"down", 1, 0, 3, 4}));
  EXPECT_EQ(told.back(), (Mouse{"up", 1, 0, 3, 4}));
}

TEST_F(MouseOn, MovingOverAKeyIsToldWithoutAPress) {
  watch(sample().cmd);
  QTest::mouseMove(&widget("cmd"), {10, 10});
  EXPECT_EQ(told, (std::vector<Mouse>{{"move", 0, 0, 150, 150}}));
}

TEST_F(MouseOn, DecorationIsTheWindowsOwnGround) {
  watch(sample());
  QTest::mouseClick(&widget<QWidget>("deco_ground"), Qt::LeftButton, Qt::NoModifier, {20, 10});
  EXPECT_EQ(told, (std::vector<Mouse>{{"down", 1, 0, 300, 3150}, {"up", 1, 0, 300, 3150}}));
}

TEST_F(MouseOn, APressOnAControlIsNoneOnTheWindow) {
  watch(sample());
  QTest::mouseClick(&widget<QLabel>("lbl"), Qt::LeftButton);
  QTest::mouseClick(&widget("Keys_1"), Qt::LeftButton);
  EXPECT_EQ(told, std::vector<Mouse>{});
}

TEST_F(MouseOn, ALabelIsClickedByTheLeftButtonWithinIt) {
  int clicks = 0;
  sample().lbl.Click.handle([&clicks] { ++clicks; });
  auto& label = widget<QLabel>("lbl");
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  QTest::mouseClick(&label, Qt::RightButton);
  QTest::mousePress(&label, Qt::LeftButton);
  QTest::mouseRelease(&label, Qt::LeftButton, Qt::NoModifier, {5, 400});
  EXPECT_EQ(clicks, 1);
}

TEST_F(MouseOn, ADoubleClickOnALabelIsTold) {
  int doubles = 0;
  sample().lbl.DblClick.handle([&doubles] { ++doubles; });
  QTest::mouseDClick(&widget<QLabel>("lbl"), Qt::LeftButton);
  QTest::mouseRelease(&widget<QLabel>("lbl"), Qt::LeftButton);
  EXPECT_EQ(doubles, 1);
}

class KeyboardOn : public SampleView {
 protected:
  KeyboardOn() {
    sample().txt.SetFocus();
    sample().KeyDown.handle([this](int& code, int shift) {
      told.push_back("window " + std::to_string(code) + ' ' + std::to_string(shift));
      if (code == swallowed) code = 0;
    });
    sample().txt.KeyDown.handle([this](int& code, int shift) {
      told.push_back("txt " + std::to_string(code) + ' ' + std::to_string(shift));
      if (code == replaced) code = replacement;
    });
  }

  QLineEdit& line() { return widget<QLineEdit>("txt"); }

  Notes told;
  int swallowed = -1;
  int replaced = -1;
  int replacement = 0;
};

TEST_F(KeyboardOn, TheWindowHearsOfAKeyBeforeItsControl) {
  QTest::keyClick(&line(), Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(told, (Notes{"window 17 2", "txt 17 2", "window 75 2", "txt 75 2"}));
}

TEST_F(KeyboardOn, AKeyThatTheWindowSwallowsGoesNoFurther) {
  swallowed = 53;
  QTest::keyClick(&line(), '5');
  EXPECT_EQ(told, Notes{"window 53 0"});
  EXPECT_EQ(line().text(), "");
}

TEST_F(KeyboardOn, AKeyThatTheControlSwallowsTypesNothing) {
  replaced = 53;
  QTest::keyClick(&line(), '5');
  EXPECT_EQ(told, (Notes{"window 53 0", "txt 53 0"}));
  EXPECT_EQ(line().text(), "");
}

TEST_F(KeyboardOn, AnotherCodeIsAnotherKeyForTheWidget) {
  sample().txt.Text = u"abc";
  replaced = 37;
  replacement = 39;
  QTest::keyClick(&line(), Qt::Key_Left);
  EXPECT_EQ(line().cursorPosition(), 1);
  EXPECT_EQ(told, (Notes{"window 37 0", "txt 37 0"}));
}

TEST_F(KeyboardOn, AKeyThatNobodyWantsIsToldOnce) {
  QTest::keyClick(&widget("cmd"), Qt::Key_F5);
  EXPECT_EQ(told, Notes{"window 116 0"});
}

TEST_F(KeyboardOn, AKeyIsToldWhenItComesUp) {
  Notes ups;
  sample().txt.KeyUp.handle([&ups](int& code, int) { ups.push_back(std::to_string(code)); });
  QTest::keyClick(&line(), Qt::Key_Return);
  EXPECT_EQ(ups, Notes{"13"});
}

TEST_F(ControlOnScreen, FocusGoesBothWays) {
  sample().cmd.SetFocus();
  EXPECT_TRUE(widget("cmd").hasFocus());
  widget<QLineEdit>("txt").setFocus();
  EXPECT_EQ(bench.focus(), &sample().txt);
  EXPECT_EQ(notes(), (Notes{"cmd got focus", "cmd lost focus"}));
}

TEST_F(ControlOnScreen, AHandlerOfAClickGivesTheFocusBack) {
  sample().txt.SetFocus();
  sample().cmd.Click.handle([this] { sample().txt.SetFocus(); });
  QTest::mouseClick(&widget("cmd"), Qt::LeftButton);
  EXPECT_TRUE(widget<QLineEdit>("txt").hasFocus());
  EXPECT_EQ(bench.focus(), &sample().txt);
}

TEST_F(ControlOnScreen, AFaultInAHandlerShowsItsMessageAndEndsTheProgram) {
  sample().cmd.Click.handle([] { throw Fault{FaultCode::DivisionByZero}; });
  QTest::mouseClick(&widget("cmd"), Qt::LeftButton);
  ASSERT_EQ(desk.messages.size(), 1U);
  EXPECT_EQ(desk.messages[0].text, u"Run-time error '11':\r\n\r\nDivision by zero");
  EXPECT_EQ(desk.quits, 1);
  EXPECT_TRUE(bench.ended());
  notes().clear();
  QTest::mouseClick(&widget("Keys_1"), Qt::LeftButton);
  EXPECT_EQ(notes(), Notes{});
}

TEST_F(ControlOnScreen, AWindowMayUnloadInAHandlerOfItsOwn) {
  const QPointer<QWidget> gone = &form();
  sample().cmd.Click.handle([this] { sample().Unload(); });
  QTest::mouseClick(&widget("cmd"), Qt::LeftButton);
  EXPECT_EQ(bench.find_window("SampleWindow"), nullptr);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_TRUE(gone.isNull());
}

}  // namespace
}  // namespace tarnmill::desktop
