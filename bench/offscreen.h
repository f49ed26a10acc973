#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

/// Runs the benchmarks of a program that needs the toolkit, without a display. Gives its exit status.
inline int run_benchmarks_offscreen(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application{argc, argv};
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
