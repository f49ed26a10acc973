// A plot of 401 points on a surface that no window shows.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "app/program.h"
#include "graph/frm_func.h"
#include "script/scripted_program.h"
#include "script/temporary_folder.h"

namespace {

constexpr std::array<const char16_t*, 4> curves{u"K", u"K^2", u"SinK*Cos(2*K)", u"(K^2)-1/(1-K)+1/K"};

void plot(benchmark::State& state) {
  const tarnmill::TemporaryFolder folder;
  tarnmill::ScriptedProgram program{folder.path(), tarnmill::Views::on_demand,
                                    [](tarnmill::Workbench& bench) { tarnmill::start_program(bench); }};
  auto& form = program.bench().window<tarnmill::frmFunc>();
  form.txtY.Text = curves.at(static_cast<std::size_t>(state.range(0)));
  state.SetLabel(tarnmill::to_utf8(form.txtY.Text.get()));
  for (auto _ : state) {
    state.PauseTiming();
    // A history that grows would be measured along with the plot.
    std::filesystem::remove(form.history_path());
    state.ResumeTiming();
    form.plot();
  }
}

BENCHMARK(plot)->DenseRange(0, curves.size() - 1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application{argc, argv};
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
