// A million characters typed into one entry through the calculator's keyboard
// handler: each key must cost the same however long the readout already is.

#include <benchmark/benchmark.h>

#include <string>

#include "core/calc/calc_engine.h"
#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/tape_handlers.h"
#include "fake/fake_platform.h"

namespace brenko {
namespace {

constexpr int kCharacters = 1000000;

// The repeated patterns, by the range argument.
constexpr const char* kPatterns[] = {
    "7 ",          // digits and spaces: every space asks for an inch mark
    "1'2 3/4\"",   // feet, inches and a fraction; the inch mark early
    "1234567890",  // digits only
    "12.5'3.25 ",  // points around a feet mark
    "9.\b.7 \b",   // points and spaces taken back
};

void BM_LongEntry(benchmark::State& state) {
  const std::string pattern = kPatterns[state.range(0)];
  std::size_t length = 0;
  for (auto _ : state) {
    state.PauseTiming();
    FakePlatform platform;
    MemorySettingsStore store;
    App app(platform, store);
    app.calculator.Readout().caption = "0.";
    app.engine.PendingOp = kOpStartUp;
    frmTape_Form_Load(app);
    state.ResumeTiming();
    for (int typed = 0; typed < kCharacters;) {
      for (char c : pattern) {
        Form_KeyPress(app, static_cast<unsigned char>(c));
        if (++typed == kCharacters) break;
      }
    }
    length = app.calculator.Readout().caption.size();
    benchmark::DoNotOptimize(length);
  }
  state.SetLabel(pattern);
  state.counters["readout_length"] = static_cast<double>(length);
}
BENCHMARK(BM_LongEntry)
    ->DenseRange(0, 4)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

}  // namespace
}  // namespace brenko
