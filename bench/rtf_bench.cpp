#include <benchmark/benchmark.h>

#include <string>

#include "mathpad/rtf/reader.h"
#include "mathpad/rtf/writer.h"

namespace tarnmill::rtf {
namespace {

constexpr std::size_t ten_megabytes = 10'000'000;

std::string repeated(std::string_view head, std::string_view paragraph, std::size_t size) {
  std::string bytes{head};
  while (bytes.size() < size) bytes += paragraph;
  return bytes + '}';
}

constexpr std::string_view head =
    "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}{\\f1\\froman\\fcharset2 "
    "Symbol;}{\\f2\\fswiss\\fcharset161 Arial;}}{\\colortbl ;\\red255\\green0\\blue0;}\r\n";

struct Sample {
  const char* label;
  std::string_view paragraph;
};

constexpr Sample samples[]{
    {"plain text",
     "\\pard\\plain\\f0\\fs20 The quick brown fox jumps over the lazy dog, and the lazy dog does not care at "
     "all.\\par\r\n"},
    {"a format every few words",
     "\\pard\\qc\\plain\\f0\\fs20 f(x) = {\\b\\cf1 a}{\\i x}\\up6\\fs14 2\\up0\\fs20  + {\\f1 \\'61}\\u8730 "
     "? "
     "\\ul sum\\ulnone\\tab end\\par\r\n"},
    {"escaped letters",
     "\\pard\\plain\\f2\\fs20 \\'c4\\'e5\\'e4\\'ef\\'ec\\'dd\\'ed\\'e1 \\u945\\'e1\\par\r\n"},
};

const Sample& sample_of(const benchmark::State& state) { return samples[state.range(0)]; }

void read_ten_megabytes(benchmark::State& state) {
  const std::string bytes = repeated(head, sample_of(state).paragraph, ten_megabytes);
  for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(read(bytes));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
  state.SetLabel(sample_of(state).label);
}
BENCHMARK(read_ten_megabytes)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void write_ten_megabytes(benchmark::State& state) {
  const Document document = read(repeated(head, sample_of(state).paragraph, ten_megabytes));
  std::size_t written = 0;
  for ([[maybe_unused]] auto step : state) written = write(document).size();
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(written));
  state.SetLabel(sample_of(state).label);
}
BENCHMARK(write_ten_megabytes)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnmill::rtf

BENCHMARK_MAIN();
