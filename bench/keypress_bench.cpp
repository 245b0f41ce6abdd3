// Typing speed of the core: realistic calculations typed key by key through
// the calculator's keyboard handler, tape lines included.

#include <benchmark/benchmark.h>

#include <string>

#include "core/calc/calc_engine.h"
#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/tape/tape_window.h"
#include "fake/fake_platform.h"

namespace brenko {
namespace {

// A working session: lengths, an area, a volume, fractions, a division and
// a clear, the way a user types them.
constexpr const char* kSession =
    "12'7 3/16\"\r+3'4 1/2\"\r-1'0\"\r\x1b"
    "2'6\"\r*4'\r*3'\r\x1b\x1b"
    "151.1875\r/12\r+7/16\"\r\x1b"
    "5'\r+6 3/4\"\r+\b2\r\x1b\x1b";

constexpr int kKeysPerRun = 100000;

void BM_TypedKeys(benchmark::State& state) {
  const std::string session = kSession;
  for (auto _ : state) {
    state.PauseTiming();
    FakePlatform platform;
    MemorySettingsStore store;
    App app(platform, store);
    app.calculator.Readout().caption = "0.";
    app.engine.PendingOp = kOpStartUp;
    frmTape_Form_Load(app);
    state.ResumeTiming();
    for (int typed = 0; typed < kKeysPerRun;) {
      for (char c : session) {
        Form_KeyPress(app, static_cast<unsigned char>(c));
        if (++typed == kKeysPerRun) break;
      }
    }
    benchmark::DoNotOptimize(app.tapes.TapeLineCount()[0]);
  }
  state.SetItemsProcessed(state.iterations() * kKeysPerRun);
  state.counters["time_per_key"] = benchmark::Counter(
      static_cast<double>(state.iterations()) * kKeysPerRun,
      benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_TypedKeys)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(7)
    ->ReportAggregatesOnly(true);

}  // namespace
}  // namespace brenko
