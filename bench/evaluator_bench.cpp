#include <benchmark/benchmark.h>

#include <array>

#include "engine/evaluator.h"
#include "engine/random.h"

namespace tarnmill {
namespace {

// A host as it is while a graph is drawn: no fraction counts and nobody is told anything.
class QuietHost : public EvaluatorHost {
 public:
  ExponentHint graph_hint() override {
    return {.txtY3 = u"1", .txtImenilac = u"1", .lblY3 = u"OK", .lblGot = {}};
  }
  ExponentHint keypad_hint() override {
    return {.txtY3 = u"1", .txtImenilac = u"1", .lblY3 = u"OK", .lblGot = u"GOT"};
  }
  void Boje2() override {}
  void Boje3() override {}
  void show_message(TextView, TextView, Icon) override {}
  bool keypad_visible() override { return false; }
  void show_keypad_result(TextView) override {}
  float NextRandom(double x) override { return randoms_.NextRandom(x); }
  float SecondsSinceMidnight() override { return 0; }
  DateTime now() override { return {}; }
  const Regional& regional() override { return regional_; }

 private:
  RandomSequence randoms_;
  Regional regional_;
};

constexpr std::array<TextView, 10> expressions{
    u"1+1",
    u"2+3*4-5/6",
    u"-9.95",
    u"(-9.95)^2",
    u"Bin(-9.95)",
    u"sin(3.14)*cos(1.57)",
    u"((1.25+2.5)*(3.75-1.5))/(2.25+(1.5*(2-0.5)))",
    u"Cbr(-8)+Qvr(16)-Pbr(-32)",
    u"Exp(-(1.5^2)/2)/Sqr(2*Pi(1))",
    u"HArcsin(1.5)+HArccos(2.5)-HArctan(0.5)*Arccotan(0.25)+Log(100)",
};

// One expression from its text to its value, as each point of a plot evaluates it.
void evaluate_text(benchmark::State& state) {
  QuietHost host;
  Evaluator evaluator{host};
  const TextView text = expressions.at(static_cast<std::size_t>(state.range(0)));
  for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(evaluator.Evaluate(text, true));
  if (evaluator.error() != 0) state.SkipWithError("the expression does not evaluate");
  state.SetLabel(to_utf8(text));
}
BENCHMARK(evaluate_text)->DenseRange(0, 9);

}  // namespace
}  // namespace tarnmill

BENCHMARK_MAIN();
