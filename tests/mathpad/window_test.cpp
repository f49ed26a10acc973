#include "math_pad_fixture.h"
#include "mathpad/window_record.h"

namespace tarnmill {
namespace {

class EditorWindow : public MathPadTest {
 protected:
  [[nodiscard]] bool is_loaded() { return program.bench.find_window("MathPad") != nullptr; }
  void close() {
    program.bench.enter([this] { pad().close(); });
  }
};

TEST_F(EditorWindow, UnchangedItClosesWithoutAQuestion) {
  pad().Show();
  close();
  EXPECT_FALSE(is_loaded());
  EXPECT_TRUE(dialogs().empty());
}

TEST_F(EditorWindow, ChangedItAsksOnceAndStaysOnCancel) {
  pad().Show();
  type(u"abc");
  program.desk.answer(MessageResult::cancel);
  close();
  ASSERT_EQ(dialogs().size(), 1U);
  EXPECT_EQ(last_dialog().text, u"Save changes before closing?");
  EXPECT_EQ(last_dialog().title, u"Save Dialog");
  EXPECT_EQ(last_dialog().icon, MessageIcon::question);
  EXPECT_EQ(last_dialog().buttons, MessageButtons::yes_no_cancel);
  ASSERT_TRUE(is_loaded());
  EXPECT_TRUE(pad().Visible);
}

TEST_F(EditorWindow, TheMenuAsksOnceToo) {
  type(u"abc");
  program.desk.answer(MessageResult::no);
  program.bench.enter([this] { pad().mnuexit.press(); });
  EXPECT_EQ(dialogs().size(), 1U);
  EXPECT_FALSE(is_loaded());
}

TEST_F(EditorWindow, YesSavesAndCloses) {
  type(u"abc");
  program.desk.answer(MessageResult::yes);
  program.desk.answer(path("a.txt"));
  program.bench.enter([this] { pad().Unload(); });
  EXPECT_EQ(bytes("a.txt"), "abc");
  EXPECT_FALSE(is_loaded());
}

TEST_F(EditorWindow, ItComesBackAtItsPlaceWithItsFont) {
  pad().Left = 300;
  pad().Top = 450;
  pad().Width = 9900;
  pad().Height = 6000;
  pad().rt1.FontName = u"Inter";
  pad().rt1.FontSize = 14;
  close();
  program.restart();
  EXPECT_EQ(pad().Left, 300);
  EXPECT_EQ(pad().Top, 450);
  EXPECT_EQ(pad().Width, 9900);
  EXPECT_EQ(pad().Height, 6000);
  EXPECT_EQ(pad().rt1.FontName.get(), u"Inter");
  EXPECT_EQ(document().sel_font_name(), u"Inter");
  EXPECT_EQ(document().sel_font_size(), 14);
}

TEST_F(EditorWindow, TheRecordLiesInItsFile) {
  pad().Top = 258;
  pad().Left = -2;
  pad().Width = 9000;
  pad().Height = 6000;
  pad().rt1.FontName = u"Ab";
  pad().rt1.FontSize = 12;
  pad().save_window_record();
  const std::string expected{
      "\x02\x01\xFE\xFF\x28\x23\x70\x17\x00\x00\x02\x00"
      "Ab\x0C\x00",
      16};
  EXPECT_EQ(bytes("tarnmill.INI"), expected);
}

TEST_F(EditorWindow, ADamagedRecordIsReadAsFarAsItGoes) {
  const std::string whole = bytes_of({.top = 1, .left = 2, .width = 3, .height = 4, .font_name = u"Inter"});
  for (std::size_t i = 0; i <= whole.size(); ++i) {
    const WindowRecord read = read_window_record(std::string_view{whole}.substr(0, i));
    EXPECT_EQ(read.top, i < 2 ? 0 : 1) << i;
    EXPECT_EQ(read.height, i < 8 ? 0 : 4) << i;
  }
  EXPECT_EQ(read_window_record("\1\1\1\1\1\1\1\1\1\1\xFF\xFFxy").font_name, u"xy");
}

TEST_F(EditorWindow, TheEditorTakesTheRoomOfTheWindow) {
  pad().Width = 12000;
  pad().Height = 9000;
  EXPECT_EQ(pad().rt1.Width, 12000 - 40);
  EXPECT_EQ(pad().rt1.Height, 9000 - pad().rt1.Top - 50);
}

TEST_F(EditorWindow, ItHasALeastSize) {
  pad().Width = 100;
  EXPECT_EQ(pad().Width, 8850);
  pad().Height = 100;
  EXPECT_EQ(pad().Height, 2235);
}

TEST_F(EditorWindow, RecentFilesComeBack) {
  write("a.txt", u"a");
  open("a.txt");
  close();
  program.restart();
  EXPECT_EQ(pad().mnuRecent(1).Caption.get(), path("a.txt"));
  EXPECT_TRUE(pad().mnuRecent(1).Visible);
}

TEST_F(EditorWindow, WithoutRecentFilesTheMenuHidesTheirPlace) {
  for (const auto& each : pad().mnuRecent) EXPECT_FALSE(each->Visible);
  EXPECT_FALSE(pad().mnuSeparator2.Visible);
}

}  // namespace
}  // namespace tarnmill
