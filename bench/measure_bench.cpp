// Cost of reading and writing measurement texts: every key press, operation
// and tape line goes through these.

#include <benchmark/benchmark.h>

#include <string>

#include "core/measure/measure.h"

namespace {

void BM_ParseLinear(benchmark::State& state) {
  const std::string input = "12'- 7 3/16\"";
  for (auto _ : state) {
    std::string text = input;  // ParseLinear rewrites its text
    benchmark::DoNotOptimize(brenko::ParseLinear(text));
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_ParseLinear);

void BM_FormatLinear(benchmark::State& state) {
  const int accuracy = static_cast<int>(state.range(0));
  double value = 151.1875;
  for (auto _ : state) {
    benchmark::DoNotOptimize(value);
    std::string text = brenko::FormatLinear(value, accuracy);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_FormatLinear)->Arg(16)->Arg(32);

void BM_FormatCubicLarge(benchmark::State& state) {
  double value = 123456789.4;
  for (auto _ : state) {
    benchmark::DoNotOptimize(value);
    std::string text = brenko::FormatCubic(value);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_FormatCubicLarge);

}  // namespace
