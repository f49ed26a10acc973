#include "script/scripted_desk.h"

#include <gtest/gtest.h>

#include <fstream>

#include "forms/raster.h"
#include "script/script_fixture.h"

namespace tarnmill {
namespace {

using Desk = ScriptFixture;

TEST_F(Desk, AFrozenClockStands) {
  program.desk().freeze_clock(FrozenClock{{2024, 2, 29, 5, 13, 45, 30}, 0.5});
  EXPECT_EQ(program.desk().now().day, 29);
  EXPECT_EQ(program.desk().seconds_since_midnight(), 49530.5F);
  program.desk().freeze_clock(std::nullopt);
  EXPECT_GE(program.desk().now().year, 2024);
}

TEST_F(Desk, WhatIsOpenedIsOnlyRemembered) {
  program.desk().open_address(u"http://example.org");
  EXPECT_TRUE(program.desk().show_help("/data/Tarnmill.chm", 0));
  EXPECT_EQ(program.desk().opened(), (std::vector<Text>{u"http://example.org", u"/data/Tarnmill.chm"}));
}

TEST_F(Desk, WithoutAPrinterPrintingIsAFault) {
  const auto picture = program.desk().make_raster(10, 10);
  try {
    program.desk().print_picture(*picture, 0, 0);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number(), 482);
  }
}

TEST_F(Desk, WhatIsPrintedIsAPdf) {
  const auto path = folder.path() / "paper.pdf";
  program.desk().printer(path);
  const auto picture = program.desk().make_raster(10, 10);
  program.desk().print_picture(*picture, 0, 0);
  std::ifstream file{path};
  std::string mark(5, ' ');
  file.read(mark.data(), 5);
  EXPECT_EQ(mark, "%PDF-");
}

TEST_F(Desk, AModalWindowStaysVisible) {
  Window& window = program.bench().window("frmFind");
  program.bench().enter([&] { window.ShowModal(); });
  EXPECT_TRUE(window.Visible);
}

TEST_F(Desk, ATickRaisesWhatComesDueAndNothingElse) {
  EXPECT_EQ(run("frmFind.Timer1.Enabled = true; app.tick(99) expect(frmFind.Log, 'load') "
                "app.tick(1) expect(frmFind.Log, 'load tick') app.tick(250) "
                "expect(frmFind.Log, 'load tick tick tick')"),
            "");
}

TEST_F(Desk, RealTimeBeforeTheFirstTickDoesNotCount) {
  EXPECT_EQ(run("frmFind.Timer1.Enabled = true; local stop = os.clock() + 0.03 "
                "while os.clock() < stop do local seen = frmFind.Log end "
                "app.tick(99) expect(frmFind.Log, 'load')"),
            "");
}

TEST_F(Desk, ATimerRunsInRealTimeWithinTurns) {
  EXPECT_EQ(
      run("frmFind.Timer1.Interval = 10; frmFind.Timer1.Enabled = true "
          "while frmFind.Log == 'load' do app.doEvents() end expect(frmFind.Log:sub(1, 9), 'load tick')"),
      "");
}

TEST_F(Desk, ATimerStartedLateWaitsFromThen) {
  EXPECT_EQ(run("frmFind.Timer1.Interval = 400 app.doEvents() local stop = os.clock() + 0.45 "
                "while os.clock() < stop do end frmFind.Timer1.Enabled = true app.doEvents() "
                "expect(frmFind.Log, 'load')"),
            "");
}

TEST_F(Desk, AHandlerThatWaitsGetsRealTimeAlsoAfterTicks) {
  EXPECT_EQ(run("app.tick(5) frmFind.Timer1.Interval = 10 frmFind.Timer1.Enabled = true "
                "app.onYield = function() if frmFind.Log:find('tick') then frmFind.Small = 1 end end "
                "frmFind.cmdWait:Click() expect(frmFind.Log:match('%a+$'), 'waited')"),
            "");
}

TEST_F(Desk, TicksDriveAHandlerThatWaits) {
  EXPECT_EQ(run("local turns = 0 frmFind.Timer1.Enabled = true "
                "app.onYield = function() turns = turns + 1 app.tick(10) "
                "if frmFind.Log == 'load tick' then frmFind.Small = 1 end end "
                "frmFind.cmdWait:Click() expect(turns, 10)"),
            "");
}

TEST_F(Desk, AProgramThatEndsWhileAHandlerWaitsEndsThatToo) {
  EXPECT_EQ(run("app.onYield = function() frmFind.cmdFault:Click() end expect(frmFind.cmdWait:Click(), nil) "
                "expect(app.fault, 11)"),
            "");
}

TEST_F(Desk, AnAnswerThatDoesNotFitIsToldAfterTheCall) {
  EXPECT_EQ(error_of("app.answer('ok') frmFind.cmdAsk:Click()"),
            "a message box with the buttons \"yesno\" has no button for the answer queued: Go on?");
}

}  // namespace
}  // namespace tarnmill
