// Two hundred memories: making and arranging them, and a memory file of that
// size written and read back. Each should stay well under 50 ms. Memory
// files of 1,000 and 32,767 memories opened: the latter well under 1 s; and
// all their memories erased.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

#include "core/commands/app.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "core/memory/memory_file.h"
#include "core/shell/main_frame.h"
#include "fake/fake_platform.h"
#include "support/memory_file_maker.h"

namespace brenko {
namespace {

constexpr int kMemories = 200;

std::string ValueOf(int i) { return " " + std::to_string(i) + "'- 7 3/16\" "; }

struct BenchApp {
  FakePlatform platform;
  MemorySettingsStore store;
  App app{platform, store};

  void Fill() { testing_support::FillMemories(app, kMemories, ValueOf); }
};

std::filesystem::path TempFile() {
  std::random_device rd;
  return std::filesystem::temp_directory_path() /
         ("brenko-bench-" + std::to_string(rd()) + ".mem");
}

void BM_Create200MemoriesAndArrange(benchmark::State& state) {
  for (auto _ : state) {
    BenchApp b;
    for (int i = 0; i < kMemories; ++i) NewMemory_Click(b.app);
    mnuArrangeMemory_Click(b.app);
    benchmark::DoNotOptimize(b.app.memory.Forms().back()->geometry.left);
  }
}
BENCHMARK(BM_Create200MemoriesAndArrange)->Unit(benchmark::kMillisecond);

void BM_Save200Memories(benchmark::State& state) {
  BenchApp b;
  b.Fill();
  const std::filesystem::path path = TempFile();
  for (auto _ : state) {
    benchmark::DoNotOptimize(SaveMemoryFile(
        b.platform.Files(),
        CollectMemoryFile(b.app.mainFrame.geometry, b.app.memory), path));
  }
  std::filesystem::remove(path);
}
BENCHMARK(BM_Save200Memories)->Unit(benchmark::kMillisecond);

void BM_Open200Memories(benchmark::State& state) {
  const std::filesystem::path path = TempFile();
  testing_support::WriteMemoryFile(path, kMemories, ValueOf);
  BenchApp b;
  for (auto _ : state) {
    LoadMemoryFile(b.app, path);
    benchmark::DoNotOptimize(b.app.memory.Forms().size());
  }
  std::filesystem::remove(path);
}
BENCHMARK(BM_Open200Memories)->Unit(benchmark::kMillisecond);

// A file of many memories opened, as File, Open reads it, in a frame of the
// default place and size: 1,000 memories, and 32,767 (as many as the file's
// count can say). The making of every memory window and its place in the
// frame's columns is timed, not the drawing. The second argument opens the
// file into a fresh program (0) or over the same memories again (1: their
// erasing timed too).
void BM_OpenManyMemories(benchmark::State& state) {
  const std::filesystem::path path = TempFile();
  const int count = static_cast<int>(state.range(0));
  const bool again = state.range(1) != 0;
  testing_support::WriteMemoryFileLines(
      path, MainFrameForm{}.geometry,
      static_cast<std::int16_t>(kFirstMemoryWidth), count, ValueOf);
  auto b = std::make_unique<BenchApp>();
  if (again) LoadMemoryFile(b->app, path);
  for (auto _ : state) {
    if (!again) {
      state.PauseTiming();
      b = std::make_unique<BenchApp>();
      state.ResumeTiming();
    }
    LoadMemoryFile(b->app, path);
    benchmark::DoNotOptimize(b->app.memory.Forms().size());
  }
  std::filesystem::remove(path);
}
BENCHMARK(BM_OpenManyMemories)
    ->Args({1000, 0})
    ->Args({32767, 0})
    ->Args({1000, 1})
    ->Args({32767, 1})
    ->Unit(benchmark::kMillisecond);

// Erase All of the memories a file of 1,000 and of 32,767 memories gave:
// the core's closing of every memory window, not the drawing.
void BM_EraseAllMemories(benchmark::State& state) {
  const std::filesystem::path path = TempFile();
  const int count = static_cast<int>(state.range(0));
  testing_support::WriteMemoryFileLines(
      path, MainFrameForm{}.geometry,
      static_cast<std::int16_t>(kFirstMemoryWidth), count, ValueOf);
  BenchApp b;
  for (auto _ : state) {
    state.PauseTiming();
    LoadMemoryFile(b.app, path);
    state.ResumeTiming();
    EraseMemory_Click(b.app);
    benchmark::DoNotOptimize(b.app.memory.Forms().size());
  }
  std::filesystem::remove(path);
}
BENCHMARK(BM_EraseAllMemories)
    ->Arg(1000)
    ->Arg(32767)
    ->Unit(benchmark::kMillisecond);

// Files at the limits: over 64 MiB (sparse, refused unread); 64 MiB with
// no line end (refused after its first 64 KiB); 64 MiB of short lines (read
// through once for their lengths, then opened).
void BM_RefuseOversizedMemoryFile(benchmark::State& state) {
  const std::filesystem::path path = TempFile();
  const auto kind = state.range(0);
  if (kind == 0) {
    std::ofstream(path, std::ios::binary).close();
    std::filesystem::resize_file(path, kMostMemoryFileBytes + 1);
  } else {
    std::ofstream out(path, std::ios::binary);
    const std::string line =
        kind == 1 ? std::string(1 << 20, '7') : std::string(" 12'- 7\" \r\n");
    for (std::uintmax_t n = 0; n + line.size() <= kMostMemoryFileBytes;
         n += line.size()) {
      out << line;
    }
  }
  BenchApp b;
  for (auto _ : state) {
    benchmark::DoNotOptimize(OpenMemoryFilePath(b.app, path.string()));
  }
  state.counters["bytes"] =
      static_cast<double>(std::filesystem::file_size(path));
  std::filesystem::remove(path);
}
BENCHMARK(BM_RefuseOversizedMemoryFile)
    ->Arg(0)
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brenko
