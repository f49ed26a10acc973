// Plots on a surface that no window shows: of 401 points each, and of the whole catalogue.
#include <benchmark/benchmark.h>

#include "app/program.h"
#include "graph/catalogue.h"
#include "graph/frm_func.h"
#include "offscreen.h"
#include "script/scripted_program.h"
#include "script/temporary_folder.h"

namespace {

constexpr std::array<const char16_t*, 5> curves{u"K", u"K^2", u"SinK*Cos(2*K)", u"(K^2)-1/(1-K)+1/K",
                                                u"(SinK)^3-(CosK)^3"};

/// The program with graph mode, in a folder of its own.
struct GraphProgram {
  const tarnmill::TemporaryFolder folder;
  tarnmill::ScriptedProgram program{folder.path(), tarnmill::Views::on_demand,
                                    [](tarnmill::Workbench& bench) { tarnmill::start_program(bench); }};
  tarnmill::frmFunc& form = program.bench().window<tarnmill::frmFunc>();

  /// A history that grows would be measured along with the plots.
  void forget_history(benchmark::State& state) const {
    state.PauseTiming();
    std::filesystem::remove(form.history_path());
    state.ResumeTiming();
  }
};

void plot(benchmark::State& state) {
  const GraphProgram graph;
  graph.form.txtY.Text = curves.at(static_cast<std::size_t>(state.range(0)));
  state.SetLabel(tarnmill::to_utf8(graph.form.txtY.Text.get()));
  for (auto _ : state) {
    graph.forget_history(state);
    graph.form.plot();
  }
}

void catalogue(benchmark::State& state) {
  const GraphProgram graph;
  for (auto _ : state) {
    graph.forget_history(state);
    for (const tarnmill::CurveMenu& menu : tarnmill::curve_catalogue()) {
      for (const tarnmill::Curve& curve : menu.curves) graph.form.draw_curve(curve);
    }
  }
}

BENCHMARK(plot)->DenseRange(0, curves.size() - 1)->Unit(benchmark::kMillisecond);
BENCHMARK(catalogue)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) { return run_benchmarks_offscreen(argc, argv); }
