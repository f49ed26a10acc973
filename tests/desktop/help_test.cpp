#include "shell/help.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>
#include <fstream>
#include <set>

#include "desktop/help/help_browser.h"
#include "desktop/help/help_file.h"
#include "desktop/help/help_window.h"
#include "desktop/program_fixture.h"
#include "desktop/qt_text.h"
#include "engine/function_table.h"

namespace tarnmill::desktop {
namespace {

std::filesystem::path built_file() {
  const TemporaryFolder folder;
  return QtDesk{folder.path(), Views::on_demand}.data_folder() / "Tarnmill.chm";
}

std::unique_ptr<HelpFile> opened() { return HelpFile::open(built_file()); }

QString read_page(const HelpFile& file, const QString& name) {
  return QString::fromUtf8(file.read(name).value_or(QByteArray{}));
}

TEST(HelpContents, NestAsTheirListsDo) {
  const auto entries = read_help_contents(
      R"(<UL><LI><OBJECT type="text/sitemap"><param name="Name" value="One &amp; only">)"
      R"(<param name="Local" value="one.html"></OBJECT><ul><li><object><PARAM NAME="Name" VALUE="Inner"></object>)"
      R"(</ul><LI><OBJECT><param name="Name" value="Two"></OBJECT></UL>)");
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries[0].name, "One & only");
  EXPECT_EQ(entries[0].page, "one.html");
  EXPECT_EQ(entries[0].depth, 1);
  EXPECT_EQ(entries[1].name, "Inner");
  EXPECT_EQ(entries[1].page, "");
  EXPECT_EQ(entries[1].depth, 2);
  EXPECT_EQ(entries[2].depth, 1);
}

TEST(HelpContents, OfNothingAreEmpty) {
  EXPECT_TRUE(read_help_contents("").empty());
  EXPECT_TRUE(read_help_contents("</ul></object><param name=\"Name\" value=\"loose\">").empty());
}

TEST(HelpFileOpening, FailsForWhatIsNoHelpFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(HelpFile::open(folder.path() / "missing.chm"), nullptr);
  std::ofstream{folder.path() / "words.chm"} << "ITSF and then only words";
  EXPECT_EQ(HelpFile::open(folder.path() / "words.chm"), nullptr);
  std::ifstream whole{built_file(), std::ios::binary};
  const std::string bytes{std::istreambuf_iterator<char>{whole}, {}};
  ASSERT_GT(bytes.size(), 1000U);
  std::ofstream{folder.path() / "half.chm", std::ios::binary} << bytes.substr(0, bytes.size() / 2);
  if (const auto half = HelpFile::open(folder.path() / "half.chm")) {
    EXPECT_EQ(half->read("Tarnmill.hhc").has_value() && half->read("pictures/table.png").has_value() &&
                  half->read("symbols.html").has_value() && half->read("tutorial.html").has_value(),
              false);
  }
}

TEST(ProgramHelp, OpensAtItsFirstPage) {
  const auto file = opened();
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->title(), "Tarnmill Help");
  EXPECT_EQ(file->default_page(), "index.html");
  EXPECT_TRUE(read_page(*file, "index.html").contains("<h1>Tarnmill</h1>"));
  EXPECT_EQ(file->read("missing.html"), std::nullopt);
  EXPECT_EQ(file->read(""), std::nullopt);
}

TEST(ProgramHelp, HasAPageForEachWindow) {
  const auto file = opened();
  ASSERT_NE(file, nullptr);
  std::set<QString> listed;
  for (const HelpEntry& each : file->contents()) listed.insert(each.page);
  for (const char* page :
       {"tutorial.html", "calculator.html", "complex.html", "keypad.html", "graph.html", "tangent.html",
        "analysis.html", "integral.html", "table.html", "mathpad.html", "find.html", "page-setup.html",
        "symbols.html", "modes.html", "expressions.html", "analysis-expressions.html", "quirks.html"}) {
    EXPECT_TRUE(file->read(page).has_value()) << page;
    EXPECT_TRUE(listed.contains(page)) << page;
  }
}

TEST(ProgramHelp, EachLinkAndPictureLeadsSomewhere) {
  static const QRegularExpression reference{R"--((?:href|src)="([^"#]+))--"};
  const auto file = opened();
  ASSERT_NE(file, nullptr);
  int followed = 0;
  for (const HelpEntry& entry : file->contents()) {
    if (entry.page.isEmpty()) continue;
    for (auto at = reference.globalMatch(read_page(*file, entry.page)); at.hasNext(); ++followed) {
      const QString name = at.next().captured(1);
      EXPECT_TRUE(file->read(name).has_value()) << entry.page.toStdString() << ": " << name.toStdString();
    }
  }
  EXPECT_GT(followed, 40);
}

TEST(ProgramHelp, NamesEveryFunctionOfExpressions) {
  const auto file = opened();
  ASSERT_NE(file, nullptr);
  const QString page = read_page(*file, "expressions.html").toUpper();
  for (const FunctionEntry& each : function_table()) {
    const QString name = to_qt(each.name);
    const QRegularExpression word{"(^|[^A-Z0-9])" + QRegularExpression::escape(name) + "([^A-Z0-9]|$)"};
    EXPECT_TRUE(page.contains(word)) << name.toStdString();
  }
}

class HelpViewer : public ::testing::Test {
 protected:
  HelpViewer() {
    window.show_default_page();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  template <class W>
  W& part(const char* name) {
    return *window.findChild<W*>(name);
  }
  void go_to(const char* page) {
    for (QTreeWidgetItemIterator at{&part<QTreeWidget>("contents")}; *at != nullptr; ++at) {
      if ((*at)->data(0, Qt::UserRole) == page) part<QTreeWidget>("contents").setCurrentItem(*at);
    }
    EXPECT_EQ(browser().page(), page);
  }
  HelpBrowser& browser() { return part<HelpBrowser>("page"); }
  void click(const char* name) { QTest::mouseClick(&part<Key>(name), Qt::LeftButton); }

  HelpWindow window{opened()};
};

TEST_F(HelpViewer, ShowsTheContentsAndTheFirstPage) {
  EXPECT_EQ(window.windowTitle(), "Tarnmill Help");
  EXPECT_EQ(browser().page(), "index.html");
  EXPECT_TRUE(browser().toPlainText().startsWith("Tarnmill\n"));
  EXPECT_EQ(part<QTreeWidget>("contents").topLevelItem(0)->text(0), "Tarnmill");
  EXPECT_EQ(part<QTreeWidget>("contents").currentItem()->text(0), "Tarnmill");
  EXPECT_EQ(part<QTreeWidget>("contents").topLevelItem(3)->childCount(), 12);
  EXPECT_TRUE(browser().hasFocus());
}

TEST_F(HelpViewer, AChoiceInTheContentsShowsItsPage) {
  go_to("complex.html");
  EXPECT_TRUE(browser().toPlainText().startsWith("Complex Mode\n"));
}

TEST_F(HelpViewer, GoesBackAndForward) {
  EXPECT_FALSE(part<Key>("back").isEnabled());
  EXPECT_FALSE(part<Key>("forward").isEnabled());
  go_to("complex.html");
  go_to("graph.html");
  click("back");
  EXPECT_EQ(browser().page(), "complex.html");
  EXPECT_EQ(part<QTreeWidget>("contents").currentItem()->text(0), "Complex Mode");
  QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(browser().page(), "index.html");
  EXPECT_FALSE(part<Key>("back").isEnabled());
  click("forward");
  QTest::keyClick(&window, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(browser().page(), "graph.html");
  EXPECT_FALSE(part<Key>("forward").isEnabled());
}

TEST_F(HelpViewer, SearchesInThePageAndAroundItsEnd) {
  go_to("graph.html");
  QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(part<QLineEdit>("words").hasFocus());
  QTest::keyClicks(&part<QLineEdit>("words"), "TANGENT");
  QTest::keyClick(&part<QLineEdit>("words"), Qt::Key_Return);
  EXPECT_EQ(browser().textCursor().selectedText().toLower(), "tangent");
  const int first = browser().textCursor().position();
  QTest::keyClick(&window, Qt::Key_F3);
  EXPECT_GT(browser().textCursor().position(), first);
  click("previous");
  EXPECT_EQ(browser().textCursor().position(), first);
  click("previous");
  EXPECT_GT(browser().textCursor().position(), first);
  click("next");
  EXPECT_EQ(browser().textCursor().position(), first);
  EXPECT_EQ(part<QLabel>("answer").text(), "");
}

TEST_F(HelpViewer, TellsWhenNothingIsFound) {
  part<QLineEdit>("words").setText("no such word");
  click("next");
  EXPECT_EQ(part<QLabel>("answer").text(), "Not found.");
  part<QLineEdit>("words").setText("Tarnmill");
  EXPECT_EQ(part<QLabel>("answer").text(), "");
  part<QLineEdit>("words").clear();
  click("next");
  EXPECT_EQ(part<QLabel>("answer").text(), "");
}

TEST_F(HelpViewer, FollowsLinksWithinTheFileOnly) {
  for (const char* link : {"https://tarnmill.example/", "file:///etc/hostname", "missing.html"}) {
    emit browser().anchorClicked(QUrl{link});
    EXPECT_EQ(browser().page(), "index.html") << link;
  }
  emit browser().anchorClicked(QUrl{"tutorial.html"});
  EXPECT_EQ(browser().page(), "tutorial.html");
  EXPECT_EQ(part<QTreeWidget>("contents").currentItem()->text(0), "A first tour");
  click("back");
  EXPECT_EQ(browser().page(), "index.html");
  EXPECT_FALSE(part<Key>("back").isEnabled());
}

TEST_F(HelpViewer, EscapeCloses) {
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpViewer, EachPartIsSpokenByName) {
  for (const char* name : {"contents", "page", "words", "back", "forward", "previous", "next"}) {
    EXPECT_FALSE(part<QWidget>(name).accessibleName().isEmpty()) << name;
    EXPECT_NE(part<QWidget>(name).focusPolicy(), Qt::NoFocus) << name;
  }
}

class HelpOfTheDesk : public ::testing::Test {
 protected:
  static QList<HelpWindow*> shown() {
    QList<HelpWindow*> windows;
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (auto* help = qobject_cast<HelpWindow*>(each)) windows.push_back(help);
    }
    return windows;
  }

  TemporaryFolder folder;
};

TEST_F(HelpOfTheDesk, OpensOneViewerAndGoesWithTheDesk) {
  {
    QtDesk desk{folder.path(), Views::eager};
    EXPECT_TRUE(ShowHelp(desk, built_file(), 0));
    EXPECT_TRUE(ShowHelp(desk, built_file(), 0));
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown().front()->isVisible());
  }
  EXPECT_TRUE(shown().empty());
}

TEST_F(HelpOfTheDesk, AMissingOrDamagedFileShowsNothing) {
  QtDesk desk{folder.path(), Views::eager};
  EXPECT_FALSE(ShowHelp(desk, folder.path() / "Tarnmill.chm", 0));
  std::ofstream{folder.path() / "Tarnmill.chm"} << "words";
  EXPECT_FALSE(ShowHelp(desk, folder.path() / "Tarnmill.chm", 0));
  EXPECT_TRUE(shown().empty());
}

class HelpKey : public ProgramByHand, public ::testing::WithParamInterface<const char*> {};

TEST_P(HelpKey, F1OpensTheHelp) {
  show(GetParam());
  key(GetParam(), Qt::Key_F1);
  ASSERT_EQ(desk.opened().size(), 1U);
  EXPECT_TRUE(to_utf8(desk.opened().front()).ends_with("/Tarnmill.chm"));
}

INSTANTIATE_TEST_SUITE_P(Windows, HelpKey,
                         ::testing::Values("Form1", "frmComplex", "frmTast", "frmFunc", "frmunesit",
                                           "frmAnaliza", "frmIntegral", "frmTabela", "frmAbout", "MathPad",
                                           "frmFind", "frmPageSetup", "frmansi"));

}  // namespace
}  // namespace tarnmill::desktop
