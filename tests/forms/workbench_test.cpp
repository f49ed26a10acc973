#include "forms/workbench.h"

#include <gtest/gtest.h>

#include "forms/sample_window.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

using Notes = std::vector<std::string>;

class OtherWindow final : public SampleWindow {
 public:
  static constexpr std::string_view class_name = "OtherWindow";
  explicit OtherWindow(Workbench& workbench) : SampleWindow{workbench, class_name} {}
};

class WorkbenchTest : public ::testing::Test {
 protected:
  WorkbenchTest() {
    bench.add_window("SampleWindow", [](Workbench& w) { return std::make_unique<SampleWindow>(w); });
    bench.add_window("OtherWindow", [](Workbench& w) { return std::make_unique<OtherWindow>(w); });
  }

  SampleWindow& sample() { return bench.window<SampleWindow>(); }
  OtherWindow& other() { return bench.window<OtherWindow>(); }

  TestProgram program;
  Workbench& bench = program.bench;
};

TEST_F(WorkbenchTest, TheFirstTouchMakesAWindowHidden) {
  EXPECT_EQ(bench.find_window("SampleWindow"), nullptr);
  EXPECT_FALSE(sample().Visible);
  EXPECT_EQ(sample().notes, Notes{"Load"});
  EXPECT_EQ(bench.find_window("SampleWindow"), &sample());
}

TEST_F(WorkbenchTest, ShowRaisesActivateEachTime) {
  sample().Show();
  sample().Show();
  EXPECT_TRUE(sample().Visible);
  EXPECT_EQ(sample().notes, (Notes{"Load", "Activate", "Activate"}));
}

TEST_F(WorkbenchTest, TheWindowBelowTakesOverWhenTheActiveOneIsHidden) {
  sample().Show();
  other().Show();
  sample().notes.clear();
  other().Hide();
  EXPECT_EQ(sample().notes, Notes{"Activate"});
  EXPECT_EQ(bench.active_window(), &sample());
}

TEST_F(WorkbenchTest, HidingAWindowInTheBackgroundActivatesNothing) {
  sample().Show();
  other().Show();
  other().notes.clear();
  sample().Hide();
  EXPECT_TRUE(other().notes.empty());
}

TEST_F(WorkbenchTest, TakingOverFromAnotherWindowRaisesActivateOnce) {
  sample().Show();
  other().Show();
  sample().notes.clear();
  bench.activate(sample());
  bench.activate(sample());
  EXPECT_EQ(sample().notes, Notes{"Activate"});
}

TEST_F(WorkbenchTest, AMessageBoxDoesNotActivateTheWindowAgain) {
  sample().Show();
  sample().notes.clear();
  sample().MsgBox(u"Hello");
  EXPECT_TRUE(sample().notes.empty());
}

TEST_F(WorkbenchTest, AnUnloadedWindowLivesUntilItsHandlerHasReturned) {
  sample().cmd.Click.handle([this] {
    SampleWindow& before = sample();
    before.Unload();
    EXPECT_EQ(bench.find_window("SampleWindow"), nullptr);
    before.note("still here");
    EXPECT_EQ(before.notes.back(), "still here");
    EXPECT_NE(&sample(), &before);
  });
  bench.enter([this] { sample().cmd.press(); });
  EXPECT_EQ(sample().notes, Notes{"Load"});
}

TEST_F(WorkbenchTest, UnloadRunsItsHandlerOnce) {
  SampleWindow& window = sample();
  Notes notes;
  window.Unloading.handle([&] {
    notes.emplace_back("Unload");
    window.Unload();
  });
  bench.enter([&] { window.Unload(); });
  EXPECT_EQ(notes, Notes{"Unload"});
}

TEST_F(WorkbenchTest, AFaultThatReachesTheEventLoopShowsTheRuntimesMessageAndEnds) {
  EXPECT_FALSE(bench.enter([] { throw Fault{FaultCode::DivisionByZero}; }));
  EXPECT_TRUE(bench.ended());
  EXPECT_EQ(bench.fault(), 11);
  const auto& shown = program.desk.dialogs().back();
  EXPECT_EQ(shown.text, u"Run-time error '11':\r\n\r\nDivision by zero");
  EXPECT_EQ(shown.title, u"Tarnmill");
  EXPECT_EQ(shown.icon, MessageIcon::critical);
  EXPECT_EQ(shown.buttons, MessageButtons::ok);
}

TEST_F(WorkbenchTest, AFaultOutsideTheProgramsHandlersIsARefusal) {
  const auto refusal = bench.attempt([] { throw Fault{FaultCode::TypeMismatch}; });
  ASSERT_TRUE(refusal.has_value());
  EXPECT_TRUE(refusal->is(FaultCode::TypeMismatch));
  EXPECT_FALSE(bench.attempt([] {}).has_value());
}

TEST_F(WorkbenchTest, AFaultThatLeavesAHandlerIsNoRefusal) {
  sample().timer.Tick.handle([this] { sample().fail(); });
  EXPECT_THROW(static_cast<void>(bench.attempt([this] { sample().timer.Tick.raise(); })), Fault);
}

TEST_F(WorkbenchTest, AFaultThatAHandlerRecoveredFromLeavesARefusalOne) {
  sample().timer.Tick.handle([this] { sample().fail(); });
  sample().cmd.Click.handle([this] { resume_next([this] { sample().timer.Tick.raise(); }); });
  const auto refusal = bench.attempt([this] {
    sample().cmd.Click.raise();
    throw Fault{FaultCode::TypeMismatch};
  });
  ASSERT_TRUE(refusal.has_value());
  EXPECT_TRUE(refusal->is(FaultCode::TypeMismatch));
}

TEST_F(WorkbenchTest, EndingPassesEveryRecovery) {
  bool went_on = false;
  bench.enter([&] { resume_next([&] { bench.end(); }, [&] { went_on = true; }); });
  EXPECT_TRUE(bench.ended());
  EXPECT_FALSE(went_on);
  EXPECT_FALSE(bench.fault().has_value());
}

TEST_F(WorkbenchTest, AnEndedProgramRunsNothingMore) {
  bench.enter([this] { bench.end(); });
  bool ran = false;
  EXPECT_FALSE(bench.enter([&] { ran = true; }));
  EXPECT_FALSE(ran);
}

TEST_F(WorkbenchTest, AnEndingWithinATurnOfTheEventLoopLeavesTheOuterHandlerToo) {
  bool went_on = false;
  program.desk.on_yield = [this] { bench.enter([this] { bench.end(); }); };
  bench.enter([&] {
    bench.do_events();
    went_on = true;
  });
  EXPECT_TRUE(bench.ended());
  EXPECT_FALSE(went_on);
}

TEST_F(WorkbenchTest, EndingRunsNoUnloadHandlers) {
  SampleWindow& window = sample();
  bench.enter([this] { bench.end(); });
  EXPECT_EQ(window.notes, Notes{"Load"});
}

TEST_F(WorkbenchTest, ClosingTheLastVisibleWindowEndsTheProgram) {
  bench.window("Form1").Hide();
  sample().Show();
  other();
  bench.enter([this] { sample().close(); });
  EXPECT_TRUE(bench.ended());
}

TEST_F(WorkbenchTest, ClosingOneOfTwoVisibleWindowsDoesNotEnd) {
  sample().Show();
  other().Show();
  bench.enter([this] { sample().close(); });
  EXPECT_FALSE(bench.ended());
  EXPECT_EQ(bench.find_window("SampleWindow"), nullptr);
}

TEST_F(WorkbenchTest, AWindowMayRefuseToClose) {
  sample().QueryUnload.handle([](std::int16_t& cancel) { cancel = -1; });
  sample().Show();
  bench.enter([this] { sample().close(); });
  EXPECT_TRUE(sample().Visible);
}

TEST_F(WorkbenchTest, TheFocusLeavesOneControlAndReachesTheOther) {
  SampleWindow& window = sample();
  window.notes.clear();
  window.cmd.SetFocus();
  window.cmd.SetFocus();
  window.txt.SetFocus();
  EXPECT_EQ(window.notes, (Notes{"cmd got focus", "cmd lost focus"}));
  EXPECT_EQ(bench.focus(), &window.txt);
}

TEST_F(WorkbenchTest, AControlThatGoesTakesTheFocusWithIt) {
  sample().cmd.SetFocus();
  bench.enter([this] { sample().Unload(); });
  EXPECT_EQ(bench.focus(), nullptr);
}

TEST_F(WorkbenchTest, TheRegistryFindsEveryKindOfMember) {
  SampleWindow& window = sample();
  EXPECT_EQ(window.find_control("txt"), &window.txt);
  EXPECT_EQ(window.find_control("Keys", 2), &window.Keys(2));
  EXPECT_EQ(window.find_control("Keys", 9), nullptr);
  EXPECT_EQ(window.find("nothing"), nullptr);
  const std::vector<Variant> four{Variant{4}};
  EXPECT_EQ((*window.find_procedure("Half"))(four).to_number({}), 2);
  EXPECT_EQ(std::get<FieldBase*>(*window.find("Count"))->read().to_number({}), 7);
}

TEST_F(WorkbenchTest, ControlNamesAreSortedAndNameAnArrayOnce) {
  const auto names = sample().control_names();
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  EXPECT_EQ(std::count(names.begin(), names.end(), "Keys"), 1);
}

TEST_F(WorkbenchTest, TooFewArgumentsOfAProcedureAreRefused) {
  EXPECT_THROW((*sample().find_procedure("Half"))({}), Fault);
}

TEST_F(WorkbenchTest, AProcedureMayBeMadeOfACallable) {
  int runs = 0;
  const Procedure counting{sample(), "Counting", [&runs] { ++runs; }};
  EXPECT_EQ(counting.arity(), 0U);
  EXPECT_TRUE((*sample().find_procedure("Counting"))({}).is_empty());
  EXPECT_EQ(runs, 1);
}

TEST_F(WorkbenchTest, APopupIsRememberedByTheWindowThatShowedIt) {
  sample().PopupMenu(other().menu, 30, 45);
  EXPECT_EQ(sample().popup_shown(), &other().menu);
  EXPECT_EQ(other().popup_shown(), nullptr);
}

TEST_F(WorkbenchTest, TwoWorkbenchesShareNothing) {
  TestProgram second;
  sample().Show();
  EXPECT_EQ(second.bench.find_window("SampleWindow"), nullptr);
}

}  // namespace
}  // namespace tarnmill
