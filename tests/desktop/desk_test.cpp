#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFile>
#include <QPageLayout>
#include <QPrinter>
#include <QTest>
#include <ctime>
#include <fstream>

#include "desktop/qt_desk.h"
#include "engine/fault.h"
#include "forms/raster.h"
#include "forms/rich_text.h"
#include "forms/sample_window.h"
#include "forms/settings_store.h"
#include "script/temporary_folder.h"

namespace tarnmill {
namespace {

/// A desk with a printer that prints into a file.
class PaperDesk final : public QtDesk {
 public:
  PaperDesk(const std::filesystem::path& folder, QString paper)
      : QtDesk{folder, Views::on_demand}, paper_{std::move(paper)} {}

 protected:
  std::unique_ptr<QPrinter> make_printer() override {
    if (paper_.isEmpty()) return nullptr;
    auto printer = std::make_unique<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(paper_);
    return printer;
  }

 private:
  QString paper_;
};

class DeskOfTheToolkit : public ::testing::Test {
 protected:
  TemporaryFolder folder;
  QtDesk desk{folder.path(), Views::on_demand};
};

TEST_F(DeskOfTheToolkit, MakesItsFolder) {
  const QtDesk other{folder.path() / "a" / "b", Views::on_demand};
  EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "a" / "b"));
}

TEST_F(DeskOfTheToolkit, AFolderThatCannotBeMadeCostsNothingElse) {
  std::ofstream{folder.path() / "file"} << "x";
  QtDesk other{folder.path() / "file" / "folder", Views::on_demand};
  other.settings().write(u"a", u"b", Text{u"c"});
  other.quit();
  EXPECT_FALSE(other.previous_instance());
  EXPECT_EQ(other.folder(), folder.path() / "file" / "folder");
}

TEST_F(DeskOfTheToolkit, TheUsersFolderIsAmongTheUsersData) {
  const std::filesystem::path user = QtDesk::user_folder();
  EXPECT_EQ(user.filename(), "Tarnmill");
  EXPECT_TRUE(user.string().starts_with(qgetenv("XDG_DATA_HOME").toStdString()));
}

TEST_F(DeskOfTheToolkit, TheProgramIsNamedWithoutEnding) { EXPECT_EQ(desk.program_name(), u"tarnmill"); }

TEST_F(DeskOfTheToolkit, ASecondInstanceIsRefusedInTheSameFolderOnly) {
  EXPECT_FALSE(desk.previous_instance());
  EXPECT_FALSE(desk.previous_instance());
  {
    QtDesk second{folder.path(), Views::on_demand};
    EXPECT_TRUE(second.previous_instance());
    QtDesk elsewhere{folder.path() / "other", Views::on_demand};
    EXPECT_FALSE(elsewhere.previous_instance());
  }
  EXPECT_FALSE(desk.previous_instance());
}

TEST_F(DeskOfTheToolkit, AnInstanceThatHasGoneRefusesNobody) {
  { EXPECT_FALSE(QtDesk(folder.path(), Views::on_demand).previous_instance()); }
  EXPECT_FALSE(desk.previous_instance());
}

TEST_F(DeskOfTheToolkit, SettingsAreSeenByTheNextStart) {
  {
    QtDesk first{folder.path(), Views::on_demand};
    first.settings().write(u"Software\\Tarnmill\\Boje", u"Grid", Text{u"255"});
  }
  EXPECT_EQ(desk.settings().read(u"Software\\Tarnmill\\Boje", u"Grid"), SettingsStore::Value{u"255"});
}

TEST_F(DeskOfTheToolkit, TheClipboardHoldsTextOrAPicture) {
  desk.set_clipboard_text(u"1,5 π");
  EXPECT_EQ(desk.clipboard_text(), u"1,5 π");
  EXPECT_FALSE(desk.clipboard_has_picture());
  const auto raster = desk.make_raster(6, 4);
  raster->clear(rgb(1, 2, 3));
  desk.set_clipboard_picture(*raster);
  EXPECT_TRUE(desk.clipboard_has_picture());
  EXPECT_EQ(desk.clipboard_text(), u"");
  EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(6, 4));
  desk.clear_clipboard();
  EXPECT_FALSE(desk.clipboard_has_picture());
}

TEST_F(DeskOfTheToolkit, TheClockIsTheMachines) {
  const std::time_t before = std::time(nullptr);
  const DateTime now = desk.now();
  const std::tm* expected = std::localtime(&before);  // NOLINT: one thread
  EXPECT_EQ(now.year, expected->tm_year + 1900);
  EXPECT_EQ(now.month, expected->tm_mon + 1);
  EXPECT_EQ(now.day, expected->tm_mday);
  EXPECT_EQ(now.weekday, expected->tm_wday + 1);
  const float seconds = desk.seconds_since_midnight();
  EXPECT_GE(seconds, 0);
  EXPECT_LT(seconds, 86400);
  EXPECT_NEAR(seconds, expected->tm_hour * 3600 + expected->tm_min * 60 + expected->tm_sec, 5);
}

TEST_F(DeskOfTheToolkit, TheHourglassIsShownAndTakenAway) {
  desk.set_mouse_pointer(11);
  desk.set_mouse_pointer(11);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  desk.set_mouse_pointer(0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DeskOfTheToolkit, AnEndingLeavesNoHourglass) {
  desk.set_mouse_pointer(11);
  desk.quit();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DeskOfTheToolkit, AViewOnDemandIsBuiltAndNotShown) {
  Workbench bench{desk};
  bench.add_window("SampleWindow", [](Workbench& w) { return std::make_unique<SampleWindow>(w); });
  auto& sample = bench.window<SampleWindow>();
  bench.enter([&sample] { sample.Show(); });
  sample.notes.clear();
  QWidget& view = desk.view(sample);
  EXPECT_EQ(&desk.view(sample), &view);
  EXPECT_FALSE(view.isVisible());
  EXPECT_FALSE(view.grab().isNull());
  EXPECT_EQ(sample.notes, std::vector<std::string>{});
  EXPECT_EQ(bench.focus(), nullptr);
}

TEST(Printing, PutsAPictureOnPaper) {
  const TemporaryFolder folder;
  const QString paper = QString::fromStdString((folder.path() / "page.pdf").string());
  PaperDesk desk{folder.path(), paper};
  const auto raster = desk.make_raster(40, 40);
  desk.print_picture(*raster, 300, 1440);
  QFile file{paper};
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("%PDF"));
}

TEST(Printing, WithoutAPrinterIsAFault) {
  const TemporaryFolder folder;
  PaperDesk desk{folder.path(), ""};
  const auto raster = desk.make_raster(40, 40);
  try {
    desk.print_picture(*raster, 0, 0);
    FAIL() << "printed on nothing";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number(), 482);
    EXPECT_EQ(fault.description(), u"Printer error");
  }
}

TEST(Printing, OnAPrinterThatFailsIsAFault) {
  const TemporaryFolder folder;
  PaperDesk desk{folder.path(), QString::fromStdString((folder.path() / "none" / "page.pdf").string())};
  const auto raster = desk.make_raster(40, 40);
  EXPECT_THROW(desk.print_picture(*raster, 0, 0), Fault);
}

}  // namespace
}  // namespace tarnmill
