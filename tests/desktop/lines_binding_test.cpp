#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "desktop/sample_desk.h"

namespace tarnmill::desktop {
namespace {

class NotesWindow final : public Window {
 public:
  static constexpr std::string_view class_name = "NotesWindow";
  explicit NotesWindow(Workbench& workbench) : Window{workbench, class_name} {
    text.MultiLine.start_as(true);
  }
  TextBox text{*this, "text"};
};

std::unique_ptr<QWidget> notes_form(std::string_view /*window*/) {
  auto form = std::make_unique<QWidget>();
  add_widget<QPlainTextEdit>(*form, "text", {0, 0, 200, 200});
  return form;
}

class LinesOfText : public ::testing::Test {
 protected:
  LinesOfText() {
    bench.add_window("NotesWindow", [](Workbench& w) { return std::make_unique<NotesWindow>(w); });
    pulse.attach(bench);
    view = std::make_unique<WindowView>(window(), store, notes_form(""), false);
  }

  NotesWindow& window() { return bench.window<NotesWindow>(); }
  TextBox& text() { return window().text; }
  QPlainTextEdit& edit() { return *view->widget().findChild<QPlainTextEdit*>("text"); }

  TemporaryFolder folder;
  QtDesk desk{folder.path(), Views::on_demand};
  Workbench bench{desk};
  Pulse pulse;
  ViewStore store{pulse, false, notes_form};
  std::unique_ptr<WindowView> view;
};

TEST_F(LinesOfText, ALineBreakIsTwoPositionsForTheProgramAndOneForTheWidget) {
  text().Text = u"ab\r\ncd";
  EXPECT_EQ(edit().toPlainText(), "ab\ncd");
  text().select(4, 1);
  EXPECT_EQ(edit().textCursor().selectedText(), "c");
  text().select(1, 3);
  EXPECT_EQ(edit().textCursor().selectionStart(), 1);
  EXPECT_EQ(edit().textCursor().selectionEnd(), 3);
}

TEST_F(LinesOfText, TypingComesBackWithCarriageReturns) {
  text().Text = u"ab";
  text().select(2, 0);
  edit().textCursor().insertText("\nc");
  EXPECT_EQ(text().Text.get(), u"ab\r\nc");
}

TEST_F(LinesOfText, APersonsSelectionIsTheProgramsSelection) {
  text().Text = u"ab\r\ncd";
  QTextCursor cursor = edit().textCursor();
  cursor.setPosition(3);
  cursor.setPosition(5, QTextCursor::KeepAnchor);
  edit().setTextCursor(cursor);
  EXPECT_EQ(text().sel_start(), 4);
  EXPECT_EQ(text().sel_length(), 2);
}

}  // namespace
}  // namespace tarnmill::desktop
