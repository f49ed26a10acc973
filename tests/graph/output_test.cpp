#include <sys/resource.h>

#include <csignal>
#include <cstdio>
#include <memory>

#include "engine/fault.h"
#include "graph_fixture.h"
#include "mathpad/math_pad.h"

namespace tarnmill {
namespace {

class OutputTest : public GraphTest {
 protected:
  [[nodiscard]] std::filesystem::path picture() const { return program.folder() / "graph.bmp"; }
  void save_under(const std::filesystem::path& path) {
    program.desk.answer(path.u16string());
    form().Command6.press();
  }
  bool frame_shows() {
    return form().Line3.Visible && form().Line4.Visible && form().Line5.Visible && form().Line6.Visible;
  }
  /// What a program of the platform prints.
  static std::string output_of(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe{popen(command.c_str(), "r"), pclose};
    std::string output;
    for (int each = fgetc(pipe.get()); each != EOF; each = fgetc(pipe.get()))
      output += static_cast<char>(each);
    return output;
  }
};

TEST_F(OutputTest, TheHistoryIsOpenedInTheEditorWhenThePersonAgrees) {
  plot(u"K");
  program.desk.answer(MessageResult::yes);
  menus().mnuprnthistory.press();
  expect_message(
      u"Current Function History will be opened with MathPad.\r\nThere you can edit it, save or print.",
      MessageIcon::information, u"Tarnmill", MessageButtons::yes_no, 2);
  EXPECT_TRUE(program.bench.is_visible("MathPad"));
  EXPECT_EQ(program.window<MathPad>().rt1.document().text(), history());
}

TEST_F(OutputTest, TheHistoryStaysClosedOtherwise) {
  program.desk.answer(MessageResult::no);
  form().open_history();
  EXPECT_FALSE(program.bench.is_visible("MathPad"));
}

TEST_F(OutputTest, ClearingTheHistoryLeavesTheEditorsCopy) {
  plot(u"K");
  const Text before = history();
  program.desk.answer(MessageResult::yes);
  form().open_history();
  program.desk.answer(MessageResult::yes);
  menus().mnuclhistory.press();
  EXPECT_EQ(history(), u"");
  EXPECT_EQ(program.window<MathPad>().rt1.document().text(), before);
}

TEST_F(OutputTest, AHistoryThatIsGoneLeavesTheEditorEmpty) {
  form();
  std::filesystem::remove(program.folder() / "GraphLog.txt");
  program.desk.answer(MessageResult::yes);
  EXPECT_TRUE(program.bench.enter([&] { form().open_history(); }));
  EXPECT_TRUE(program.bench.is_visible("MathPad"));
}

TEST_F(OutputTest, TheKeyOpensThePrintMenu) {
  EXPECT_EQ(form().Command5.ToolTipText.get(), u" Print ");
  form().Command5.MouseDown.raise(1, 0, 0, 0);
  EXPECT_EQ(form().popup_shown(), &menus().mnustampaj);
}

TEST_F(OutputTest, ThePlotIsPrintedAtItsOwnSizeInItsFrame) {
  plot(u"K^2");
  const auto paper = program.folder() / "paper.pdf";
  program.desk.printer(paper);
  menus().mnuprint.press();
  EXPECT_FALSE(program.bench.ended());
  const std::string images = output_of("pdfimages -list '" + paper.string() + "'");
  EXPECT_NE(images.find(" 400   400 "), std::string::npos) << images;
  EXPECT_NE(images.find("  96    96 "), std::string::npos) << "dots to the inch, at 15 twips to the dot";
  EXPECT_NE(output_of("pdfinfo '" + paper.string() + "'").find("Pages:           1"), std::string::npos);
  EXPECT_EQ(output_of("pdftotext '" + paper.string() + "' - | tr -d '\\f\\n'"), "");
  EXPECT_TRUE(frame_shows());
}

TEST_F(OutputTest, ThePrintedFrameBecomesPartOfThePicture) {
  plot(u"K^2");
  program.desk.printer(program.folder() / "paper.pdf");
  EXPECT_NE(form().pDraw.Point(3, 0), 0);
  form().print_graph();
  for (const auto& [x, y] : {std::pair{3, 0}, {399, 3}, {3, 399}, {0, 3}})
    EXPECT_EQ(form().pDraw.Point(x, y), 0);
  form().pDraw.Cls();
  EXPECT_EQ(form().pDraw.Point(3, 0), 0);
  form().cmdClear.press();
  EXPECT_NE(form().pDraw.Point(3, 0), 0);
  EXPECT_FALSE(frame_shows());
}

TEST_F(OutputTest, TheFrameStaysUntilTheNextPlot) {
  program.desk.printer(program.folder() / "paper.pdf");
  form().print_graph();
  EXPECT_TRUE(frame_shows());
  plot(u"K");
  EXPECT_FALSE(form().Line3.Visible);
}

TEST_F(OutputTest, WithoutAPrinterTheProgramEnds) {
  form();
  EXPECT_FALSE(program.bench.enter([&] { menus().mnuprint.press(); }));
  EXPECT_EQ(program.bench.fault(), 482);
  expect_message(u"Run-time error '482':\r\n\r\nPrinter error", MessageIcon::critical);
}

TEST_F(OutputTest, APrinterThatCantBeWrittenEndsTheProgram) {
  form();
  program.desk.printer(program.folder() / "missing" / "paper.pdf");
  EXPECT_FALSE(program.bench.enter([&] { form().print_graph(); }));
  EXPECT_EQ(program.bench.fault(), 482);
}

TEST_F(OutputTest, ThePrinterIsSetUpAndACancelIsSilent) {
  for (const MessageResult answer : {MessageResult::ok, MessageResult::cancel}) {
    program.desk.answer(answer);
    menus().mnuprset.press();
    EXPECT_EQ(only_dialog().kind, DialogShown::Kind::printer);
    EXPECT_EQ(only_dialog().flags, 64);
    program.desk.forget();
  }
  EXPECT_TRUE(form().CD1.CancelError);
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(OutputTest, ThePlotIsWrittenAsABitmap) {
  plot(u"K^2");
  EXPECT_EQ(form().Command6.ToolTipText.get(), u" Save Graph As ");
  save_under(picture());
  const DialogShown dialog = only_dialog();
  EXPECT_EQ(dialog.kind, DialogShown::Kind::save);
  EXPECT_EQ(dialog.title, u"Save Graph As");
  EXPECT_EQ(dialog.flags, 2107396);
  const std::unique_ptr<Raster> read = program.desk.load_picture(picture());
  ASSERT_NE(read, nullptr);
  ASSERT_EQ(read->width(), 400);
  ASSERT_EQ(read->height(), 400);
  for (int y = 0; y < 400; ++y) {
    for (int x = 0; x < 400; ++x) ASSERT_EQ(read->point(x, y), form().pDraw.Point(x, y)) << x << "," << y;
  }
}

TEST_F(OutputTest, AnyNameHoldsABitmap) {
  save_under(program.folder() / "graph.png");
  EXPECT_TRUE(read_file(program.folder() / "graph.png").starts_with("BM"));
  save_under(program.folder() / "graph");
  EXPECT_TRUE(read_file(program.folder() / "graph").starts_with("BM"));
}

TEST_F(OutputTest, TheMenuAndTheProcedureSaveAsWell) {
  program.desk.answer(picture().u16string());
  menus().mnusavbmp.press();
  EXPECT_TRUE(std::filesystem::exists(picture()));
}

TEST_F(OutputTest, SavingFreezesThePlotUntilAClear) {
  plot(u"K^2");
  save_under(picture());
  const Color drawn = form().pDraw.Point(200, 200);
  form().pDraw.Cls();
  EXPECT_EQ(form().pDraw.Point(200, 200), drawn);
}

TEST_F(OutputTest, AFileThatIsThereIsReplacedOnYesAlone) {
  write_file(picture(), "old");
  const Text question = picture().u16string() + u" already exists.\r\nDo you want to replace it?";
  for (const MessageResult answer : {MessageResult::no, MessageResult::yes}) {
    program.desk.forget();
    program.desk.answer(picture().u16string());
    program.desk.answer(answer);
    form().save_graph();
    ASSERT_EQ(program.desk.dialogs().size(), 2U);
    const DialogShown& box = program.desk.dialogs().back();
    EXPECT_EQ(box.text, question);
    EXPECT_EQ(box.title, u"Save As");
    EXPECT_EQ(box.icon, MessageIcon::none);
    EXPECT_EQ(box.buttons, MessageButtons::yes_no);
    EXPECT_EQ(box.default_button, 1);
    EXPECT_EQ(read_file(picture()) == "old", answer == MessageResult::no);
  }
}

TEST_F(OutputTest, ACancelledSaveIsSilent) {
  for (const bool error : {false, true}) {
    form().CD1.CancelError = error;
    form().CD1.FileName = u"of another time";
    EXPECT_TRUE(program.bench.enter([&] { form().save_graph(); }));
    EXPECT_EQ(only_dialog().kind, DialogShown::Kind::save);
    program.desk.forget();
  }
  EXPECT_FALSE(std::filesystem::exists("of another time"));
}

TEST_F(OutputTest, AFolderThatCantBeWrittenIsPassedOver) {
  plot(u"K");
  const auto before = form().pDraw.raster().copy();
  EXPECT_TRUE(program.bench.enter([&] { save_under(program.folder() / "missing" / "graph.bmp"); }));
  EXPECT_TRUE(program.bench.enter([&] { save_under(program.folder()); }));
  EXPECT_EQ(program.desk.dialogs().size(), 2U);
  EXPECT_EQ(form().pDraw.Point(200, 200), before->point(200, 200));
}

TEST_F(OutputTest, AFileIsThereByItsNameAndAFolderIsNone) {
  EXPECT_FALSE(form().file_exists(picture().u16string()));
  write_file(picture(), "old");
  EXPECT_TRUE(form().file_exists(picture().u16string()));
  EXPECT_FALSE(form().file_exists(program.folder().u16string()));
  EXPECT_FALSE(form().file_exists(u""));
}

TEST_F(OutputTest, AFullDiskLeavesTheOldFileWhole) {
  write_file(picture(), "old");
  form();
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto signal_before = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = before;
  small.rlim_cur = 1000;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  program.desk.answer(picture().u16string());
  program.desk.answer(MessageResult::yes);
  const bool goes_on = program.bench.enter([&] { form().save_graph(); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, signal_before);
  EXPECT_TRUE(goes_on);
  EXPECT_EQ(read_file(picture()), "old");
}

}  // namespace
}  // namespace tarnmill
