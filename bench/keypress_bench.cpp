// Typing speed of the core, key by key through the calculator's keyboard
// handler: realistic calculations (tape lines included), and a million
// characters typed into one entry, where each key must cost the same however
// long the readout already is.

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
constexpr int kLongEntryCharacters = 1000000;

// The repeated patterns, by the range argument.
constexpr const char* kPatterns[] = {
    "7 ",          // digits and spaces: every space asks for an inch mark
    "1'2 3/4\"",   // feet, inches and a fraction; the inch mark early
    "1234567890",  // digits only
    "12.5'3.25 ",  // points around a feet mark
    "9.\b.7 \b",   // points and spaces taken back
};

// A started calculator, as the keyboard finds it.
struct TypingProgram {
  TypingProgram() {
    app.calculator.Readout().caption = "0.";
    app.engine.PendingOp = kOpStartUp;
    frmTape_Form_Load(app);
  }
  FakePlatform platform;
  MemorySettingsStore store;
  App app{platform, store};
};

// Types `keys` over and over until `count` keys are typed.
void TypeRepeated(App& app, const std::string& keys, int count) {
  for (int typed = 0; typed < count;) {
    for (char c : keys) {
      Form_KeyPress(app, static_cast<unsigned char>(c));
      if (++typed == count) break;
    }
  }
}

void BM_TypedKeys(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    TypingProgram program;
    state.ResumeTiming();
    TypeRepeated(program.app, kSession, kKeysPerRun);
    benchmark::DoNotOptimize(program.app.tapes.TapeLineCount()[0]);
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

void BM_LongEntry(benchmark::State& state) {
  const std::string pattern = kPatterns[state.range(0)];
  std::size_t length = 0;
  for (auto _ : state) {
    state.PauseTiming();
    TypingProgram program;
    state.ResumeTiming();
    TypeRepeated(program.app, pattern, kLongEntryCharacters);
    length = program.app.calculator.Readout().caption.size();
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
