#include "shell/evaluator_host.h"

#include <gtest/gtest.h>

#include "desktop/qt_desk.h"
#include "engine/evaluator.h"
#include "forms/label.h"
#include "forms/text_box.h"
#include "graph/frm_func.h"
#include "script/temporary_folder.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

/// The keypad as far as evaluators reach into it.
class Keypad final : public Window {
 public:
  static constexpr std::string_view class_name = "frmTast";
  explicit Keypad(Workbench& bench) : Window{bench, class_name} {}
  TextBox txtY3{*this, "txtY3", u"y3", parked};
  TextBox txtImenilac{*this, "txtImenilac", u"im", parked};
  Label lblY3{*this, "lblY3", u"OK", parked};
  Label lblGot{*this, "lblGot", u"GOT", parked};
  Label lbrezultat{*this, "lbrezultat"};
};

class EvaluatorHostTest : public testing::Test {
 protected:
  EvaluatorHostTest() {
    program.bench.add_window("frmTast", [](Workbench& owner) { return std::make_unique<Keypad>(owner); });
  }
  [[nodiscard]] EvaluatorHost& host() { return program.bench.evaluator_host(); }
  [[nodiscard]] Evaluator evaluator() { return Evaluator{host()}; }

  TestProgram program;
};

TEST_F(EvaluatorHostTest, TheGraphsHintComesFromItsFields) {
  auto& graph = program.window<frmFunc>();
  graph.txtY3.Text = u"K^(1/3";
  graph.txtImenilac.Text = u"K^(1";
  graph.lblY3.Caption = u"OK";
  const ExponentHint hint = host().graph_hint();
  EXPECT_EQ(hint.txtY3, u"K^(1/3");
  EXPECT_EQ(hint.txtImenilac, u"K^(1");
  EXPECT_EQ(hint.lblY3, u"OK");
  EXPECT_EQ(hint.lblGot, u"");
}

TEST_F(EvaluatorHostTest, ReadingTheHintsCreatesTheWindowsHidden) {
  EXPECT_EQ(program.bench.find_window("frmFunc"), nullptr);
  EXPECT_EQ(host().graph_hint().lblY3, u"OK");
  const ExponentHint hint = host().keypad_hint();
  EXPECT_EQ(hint.txtY3, u"y3");
  EXPECT_EQ(hint.txtImenilac, u"im");
  EXPECT_EQ(hint.lblGot, u"GOT");
  for (const char* name : {"frmFunc", "frmTast"}) {
    ASSERT_NE(program.bench.find_window(name), nullptr);
    EXPECT_FALSE(program.bench.is_visible(name));
  }
}

TEST_F(EvaluatorHostTest, ATypedFractionTakesANegativeBase) {
  auto& graph = program.window<frmFunc>();
  graph.txtY3.Text = u"K^(1/3";
  graph.txtImenilac.Text = u"K^(1";
  Evaluator engine = evaluator();
  EXPECT_NEAR(engine.Evaluate(u"(-8)^(1/3)", true), -2, 1e-9);
  EXPECT_EQ(engine.error(), 0);
}

TEST_F(EvaluatorHostTest, MessagesAreTheWindows) {
  Evaluator engine = evaluator();
  engine.Evaluate(u"1+", false);
  engine.Evaluate(u"50+50", false);
  const auto& boxes = program.desk.dialogs();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].icon, MessageIcon::critical);
  EXPECT_EQ(boxes[0].text, u"Check syntax!");
  EXPECT_EQ(boxes[1].icon, MessageIcon::information);
  EXPECT_EQ(boxes[1].text, u"Undefined.");
  EXPECT_EQ(boxes[1].title, u"Tarnmill");
}

TEST_F(EvaluatorHostTest, AResultGoesToAVisibleKeypadAlone) {
  auto& keypad = program.window<Keypad>();
  evaluator().Evaluate(u"1+1", false);
  EXPECT_EQ(keypad.lbrezultat.Caption.get(), u"");
  keypad.Show();
  evaluator().Evaluate(u"1+1", false);
  EXPECT_EQ(keypad.lbrezultat.Caption.get(), u"2");
}

TEST_F(EvaluatorHostTest, AHiddenKeypadIsNotCreatedToSeeWhetherItShows) {
  EXPECT_FALSE(host().keypad_visible());
  EXPECT_EQ(program.bench.find_window("frmTast"), nullptr);
}

TEST_F(EvaluatorHostTest, TheColoursAreTheGraphs) {
  auto& graph = program.window<frmFunc>();
  graph.AxisColor = 5;
  host().Boje2();
  EXPECT_EQ(graph.CurveColor, 5);
  host().Boje3();
  EXPECT_EQ(graph.CurveColor, 0xFF0000);
}

TEST_F(EvaluatorHostTest, TheClockIsTheDesks) {
  program.desk.freeze_clock(FrozenClock{{2024, 2, 29, 5, 1, 0, 30}, 0.5});
  EXPECT_EQ(host().now().day, 29);
  EXPECT_EQ(host().SecondsSinceMidnight(), 3630.5F);
}

TEST_F(EvaluatorHostTest, RandomNumbersAreTheProgramsOneSequence) {
  RandomSequence fresh;
  EXPECT_EQ(host().NextRandom(1), fresh.NextRandom(1));
  EXPECT_EQ(program.bench.random().NextRandom(1), fresh.NextRandom(1));
}

TEST(EvaluatorHostAlone, UnknownWindowsReadAsEmpty) {
  const TemporaryFolder folder;
  QtDesk desk{folder.path(), Views::on_demand};
  Workbench bench{desk};
  const std::unique_ptr<EvaluatorHost> host = make_evaluator_host(bench);
  EXPECT_EQ(host->graph_hint().lblY3, u"");
  EXPECT_EQ(host->keypad_hint().lblGot, u"");
  host->Boje2();
  host->show_keypad_result(u"2");
  EXPECT_TRUE(bench.window_names().empty());
}

}  // namespace
}  // namespace tarnmill
