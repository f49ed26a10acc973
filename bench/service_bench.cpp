// Time for each kind of statement of the service evaluator, the text read anew each time.

#include <benchmark/benchmark.h>

#include <initializer_list>

#include "engine/service/service_evaluator.h"

namespace {

using tarnmill::RandomSequence;
using tarnmill::ServiceEvaluator;
using tarnmill::TextView;

void run_all(benchmark::State& state, std::initializer_list<TextView> statements) {
  RandomSequence random;
  ServiceEvaluator evaluator{random};
  for (auto _ : state) {
    for (const TextView statement : statements) evaluator.formula(statement);
    benchmark::DoNotOptimize(evaluator.Result());
  }
}

void plain_short(benchmark::State& state) { run_all(state, {u"((1.234)^2)"}); }

void plain_long(benchmark::State& state) {
  run_all(state, {u"2sin((1.234))+cos((1.234))*e^(-(1.234))/(1+((1.234)^2))-nil((1.234))"});
}

void derivative(benchmark::State& state) {
  run_all(state, {u"Push(1.234)", u"diff(2sin((x))+cos((x))*e^(-(x)))"});
}

void integral(benchmark::State& state) {
  run_all(state, {u"Push(200)", u"Push(0)", u"Push(1)", u"Intg(2sin((x))+cos((x))*e^(-(x)))", u"PopAll()"});
}

void average_of_singular_function(benchmark::State& state) {
  run_all(state, {u"Push(0)", u"Push(1)", u"Avg(1/sqr((x)))"});
}

}  // namespace

BENCHMARK(plain_short);
BENCHMARK(plain_long);
BENCHMARK(derivative);
BENCHMARK(integral);
BENCHMARK(average_of_singular_function);

BENCHMARK_MAIN();
