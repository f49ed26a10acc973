#include "forms/raster.h"
#include "math_pad_fixture.h"

namespace tarnmill {
namespace {

class Editing : public MathPadTest {
 protected:
  void click(std::string_view key) { pad().Toolbar1.Buttons(key).press(); }
  [[nodiscard]] int value(int button) { return pad().Toolbar1.Buttons(button).Value; }
  void all() { document().select(0, document().length()); }
};

TEST_F(Editing, TheToolbarHasItsIndices) {
  const std::vector<std::pair<int, std::string_view>> rows{{9, "Left"},  {10, "Center"}, {11, "Right"},
                                                           {13, "Bold"}, {14, "Italic"}, {15, "Underline"}};
  for (const auto& [index, key] : rows) EXPECT_EQ(pad().Toolbar1.Buttons(index).key(), key);
}

TEST_F(Editing, TheSizesAreListed) {
  EXPECT_EQ(pad().cmbSize.items().size(), 23U);
  EXPECT_EQ(pad().cmbSize.List(0), u"6");
  EXPECT_EQ(pad().cmbSize.List(6), u"12");
  EXPECT_EQ(pad().cmbSize.List(22), u"96");
}

TEST_F(Editing, TogglesTakeTheSelectionAndShowIt) {
  type(u"abc");
  all();
  for (const auto& [key, button] :
       std::vector<std::pair<std::string_view, int>>{{"Bold", 13}, {"Italic", 14}, {"Underline", 15}}) {
    click(key);
    EXPECT_EQ(value(button), 1) << key;
    click(key);
    EXPECT_EQ(value(button), 0) << key;
  }
  click("Bold");
  EXPECT_EQ(document().sel_bold(), true);
}

TEST_F(Editing, AlignmentsAreAGroup) {
  type(u"abc");
  click("Center");
  EXPECT_EQ(document().sel_alignment(), 2);
  EXPECT_EQ(value(10), 1);
  click("Right");
  EXPECT_EQ(document().sel_alignment(), 1);
  EXPECT_EQ(value(11), 1);
  EXPECT_EQ(value(10), 0);
  click("Left");
  EXPECT_EQ(document().sel_alignment(), 0);
  EXPECT_EQ(value(9), 0);
  EXPECT_EQ(value(11), 0);
  document().select(0, 1);
  EXPECT_EQ(value(9), 1);
}

TEST_F(Editing, TheSelectionShowsInTheToolbar) {
  type(u"abc");
  document().select(0, 1);
  document().set_sel_bold(true);
  document().set_sel_font_name(u"Inter");
  document().set_sel_font_size(14);
  document().select(3, 0);
  document().select(0, 1);
  EXPECT_EQ(value(13), 1);
  EXPECT_EQ(value(14), 0);
  EXPECT_EQ(pad().Combo1.Text.get(), u"Inter");
  EXPECT_EQ(pad().cmbSize.Text.get(), u"14");
}

TEST_F(Editing, AMixedSelectionEmptiesTheBoxesAndKeepsItsFormats) {
  type(u"abc");
  document().select(0, 1);
  document().set_sel_font_name(u"Inter");
  document().set_sel_font_size(14);
  all();
  EXPECT_EQ(pad().Combo1.Text.get(), u"");
  EXPECT_EQ(pad().cmbSize.Text.get(), u"");
  document().select(0, 1);
  EXPECT_EQ(document().sel_font_size(), 14);
  document().select(1, 1);
  EXPECT_EQ(document().sel_font_size(), 10);
}

TEST_F(Editing, TheBoxesSetTheSelection) {
  type(u"abc");
  all();
  pad().cmbSize.choose(7);
  EXPECT_EQ(document().sel_font_size(), 14);
  pad().cmbSize.Text = u"15";
  EXPECT_EQ(document().sel_font_size(), 15);
  pad().cmbSize.Text = u"";
  EXPECT_EQ(document().sel_font_size(), 15);
  ASSERT_FALSE(pad().Combo1.items().empty());
  pad().Combo1.choose(0);
  EXPECT_EQ(document().sel_font_name(), pad().Combo1.List(0));
}

TEST_F(Editing, ACaretInASizeWithAFractionLeavesItAloneUnderADecimalComma) {
  program.desk.decimal_separator(u',');
  type(u"abc");
  document().select(0, 2);
  pad().rt1.SelFontSize.write(10.5);
  document().select(3, 0);
  document().select(0, 1);
  EXPECT_EQ(pad().cmbSize.Text.get(), u"10,5");
  EXPECT_EQ(document().sel_font_size(), 10.5);
  pad().cmbSize.Text = u"12,5";
  EXPECT_EQ(document().sel_font_size(), 12.5);
}

TEST_F(Editing, TheActiveBoxIsKnownByItsHandle) {
  EXPECT_EQ(&pad().m_ActiveText.control(), &pad().rt1);
  EXPECT_NE(pad().box_handle(), 0);
  EXPECT_EQ(pad().hWnd.read().to_number({}), pad().box_handle());
}

struct Raised {
  const char* label;
  const char16_t* size;
  bool super;
  double offset;
  double shown_size;
};

class RaisedText : public Editing, public testing::WithParamInterface<Raised> {};

TEST_P(RaisedText, IsMeasuredByTheBoxOfSizes) {
  type(u"abc");
  all();
  pad().cmbSize.Text = GetParam().size;
  MenuItem& entry = GetParam().super ? pad().mnusuper : pad().mnusub;
  entry.press();
  EXPECT_EQ(document().sel_char_offset(), GetParam().offset);
  EXPECT_EQ(document().sel_font_size(), GetParam().shown_size);
  EXPECT_TRUE(entry.Checked);
}

INSTANTIATE_TEST_SUITE_P(Sizes, RaisedText,
                         testing::Values(Raised{"super12", u"12", true, 66, 8.4},
                                         Raised{"sub12", u"12", false, -45, 8.4},
                                         Raised{"superEmpty", u"", true, 0, 10},
                                         Raised{"subEmpty", u"", false, -33, 10}),
                         [](const auto& each) { return each.param.label; });

TEST_F(Editing, OneOfTheTwoEndsTheOther) {
  type(u"abc");
  all();
  pad().cmbSize.Text = u"12";
  pad().mnusub.press();
  pad().mnusuper.press();
  EXPECT_EQ(document().sel_char_offset(), 66);
  EXPECT_TRUE(pad().mnusuper.Checked);
  EXPECT_FALSE(pad().mnusub.Checked);
  pad().mnusuper.press();
  EXPECT_EQ(document().sel_char_offset(), 0);
  EXPECT_EQ(document().sel_font_size(), 12);
  EXPECT_FALSE(pad().mnusuper.Checked);
}

TEST_F(Editing, TheToolbarAskedToShowTheSelectionShowsItsSizeToo) {
  type(u"x");
  all();
  pad().cmbSize.Text = u"12";
  pad().mnusuper.press();
  pad().adjust_buttons_2();
  EXPECT_EQ(pad().cmbSize.Text.get(), u"8.4");
  EXPECT_TRUE(pad().mnusuper.Checked);
}

TEST_F(Editing, TheBaseSizeStaysWhileRaisedTextIsWritten) {
  type(u"x");
  pad().cmbSize.Text = u"12";
  pad().mnusuper.press();
  document().replace_selection(u"2");
  EXPECT_EQ(pad().cmbSize.Text.get(), u"12");
  pad().mnusuper.press();
  document().replace_selection(u"y");
  document().select(1, 1);
  EXPECT_EQ(document().sel_font_size(), 8.4);
  EXPECT_TRUE(pad().mnusuper.Checked);
  document().select(2, 1);
  EXPECT_EQ(document().sel_font_size(), 12);
  EXPECT_FALSE(pad().mnusuper.Checked);
}

TEST_F(Editing, TheCaseChangesAndTheFormatsStay) {
  type(u"abCd");
  document().select(1, 1);
  document().set_sel_bold(true);
  all();
  pad().mnuupper.press();
  EXPECT_EQ(text(), u"ABCD");
  EXPECT_EQ(document().sel_length(), 4);
  document().select(1, 1);
  EXPECT_EQ(document().sel_bold(), true);
  document().select(2, 1);
  EXPECT_EQ(document().sel_bold(), false);
  all();
  pad().mnulower.press();
  EXPECT_EQ(text(), u"abcd");
}

TEST_F(Editing, AllAndTheLineAreSelected) {
  type(u"ab\r\ncd");
  pad().mnuselall.press();
  EXPECT_EQ(document().sel_text(), u"ab\r\ncd");
  document().select(4, 0);
  pad().mnuline.press();
  EXPECT_EQ(document().sel_text(), u"cd");
}

TEST_F(Editing, TheEditMenuKnowsWhatCanBeDone) {
  program.desk.clear_clipboard();
  assign(u"abc");
  pad().mnuEdit.press();
  EXPECT_FALSE(pad().mnuEditUndo.Enabled);
  for (const MenuItem* each :
       {&pad().mnuEditCut, &pad().mnuEditCopy, &pad().mnuEditClear, &pad().mnuEditPaste}) {
    EXPECT_FALSE(each->Enabled);
  }
  document().select(0, 2);
  pad().mnuEditCopy.press();
  pad().mnuEditClear.press();
  EXPECT_EQ(text(), u"c");
  document().select(0, 1);
  pad().mnuEdit.press();
  EXPECT_EQ(pad().mnuEditUndo.Caption.get(), u"&Undo");
  for (const MenuItem* each : {&pad().mnuEditUndo, &pad().mnuEditCut, &pad().mnuEditCopy, &pad().mnuEditClear,
                               &pad().mnuEditPaste}) {
    EXPECT_TRUE(each->Enabled);
  }
  pad().mnuEditUndo.press();
  EXPECT_EQ(text(), u"abc");
}

TEST_F(Editing, APictureCanBePasted) {
  program.desk.set_clipboard_picture(*program.desk.make_raster(4, 4));
  EXPECT_TRUE(pad().can_paste());
}

TEST_F(Editing, CutAndPasteKeepTheFormats) {
  type(u"abc");
  document().select(1, 1);
  document().set_sel_bold(true);
  pad().mnuEditCut.press();
  EXPECT_EQ(text(), u"ac");
  EXPECT_EQ(pad().undo_type(), 4);
  document().select(2, 0);
  pad().mnuEditPaste.press();
  EXPECT_EQ(text(), u"acb");
  EXPECT_EQ(pad().undo_type(), 5);
  document().select(2, 1);
  EXPECT_EQ(document().sel_bold(), true);
}

TEST_F(Editing, KindsOfUndoHaveNames) {
  const std::vector<TextView> names{u"Last Action", u"Typing", u"Delete", u"Drag Drop",
                                    u"Cut",         u"Paste",  u""};
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(pad().undo_name(static_cast<int>(i)), names[i]);
}

TEST_F(Editing, TheFontDialogSetsAll) {
  type(u"abc");
  all();
  program.desk.answer(FontChoice{{u"Inter", 16, true, true, true, true}, rgb(1, 2, 3)});
  pad().mnuselfont.press();
  EXPECT_EQ(last_dialog().kind, DialogShown::Kind::font);
  EXPECT_EQ(last_dialog().flags, 259);
  EXPECT_EQ(document().sel_font_name(), u"Inter");
  EXPECT_EQ(document().sel_font_size(), 16);
  EXPECT_EQ(document().sel_bold(), true);
  EXPECT_EQ(document().sel_italic(), true);
  EXPECT_EQ(document().sel_underline(), true);
  EXPECT_EQ(document().sel_strike_through(), true);
  EXPECT_EQ(document().sel_color(), rgb(1, 2, 3));
  EXPECT_EQ(value(13), 1);
  EXPECT_EQ(pad().Combo1.Text.get(), u"Inter");
  EXPECT_EQ(pad().cmbSize.Text.get(), u"16");
  EXPECT_EQ(pad().Toolbar1.Buttons("Color").ToolTipText.get(), u" Text Color: RGB(1, 2, 3)");
  EXPECT_EQ(program.bench.focus(), &pad().rt1);
}

TEST_F(Editing, AColourGoesToTheSelectionAndItsParts) {
  type(u"abc");
  all();
  program.desk.answer(rgb(255, 16, 2));
  click("Color");
  EXPECT_EQ(document().sel_color(), rgb(255, 16, 2));
  EXPECT_EQ(pad().Text1.Text.get(), u"255");
  EXPECT_EQ(pad().Text2.Text.get(), u"16");
  EXPECT_EQ(pad().Text3.Text.get(), u"2");
}

TEST_F(Editing, TheFontsTooltipFollowsTheMouse) {
  type(u"abc");
  document().select(0, 1);
  document().set_sel_font_name(u"Inter");
  pad().Toolbar1.MouseMove.raise(0, 0, 1, 1);
  EXPECT_EQ(pad().Toolbar1.Buttons("Font").ToolTipText.get(), u" Selected Font: Inter, 10");
}

TEST_F(Editing, TextsArePaddedByAMask) {
  EXPECT_EQ(pad().pad_left_zeros(u"FF", u"000000"), u"0000FF");
  EXPECT_EQ(pad().pad_left_zeros(u"12345678", u"000000"), u"345678");
}

}  // namespace
}  // namespace tarnmill
