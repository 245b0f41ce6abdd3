// Reading a settings file of 100,000 keys (and one of 1 MB, the most the
// program reads) must take well under 100 ms: the read is one pass.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/shell/ini_settings_store.h"
#include "os/system_file_ops.h"

namespace brenko {
namespace {

std::filesystem::path TempFile(const std::string& text) {
  std::random_device rd;
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() /
      ("brenko-bench-" + std::to_string(rd()) + ".ini");
  std::ofstream out(path, std::ios::binary);
  out << text;
  return path;
}

// `keys` distinct keys in the settings section, then the program's own.
std::string ManyKeys(int keys) {
  std::string text = "[Settings]\n";
  for (int i = 0; i < keys; ++i) text += "K" + std::to_string(i) + "=1\n";
  text += "Zoom=True\n";
  return text;
}

void ReadSettings(benchmark::State& state) {
  const std::string text = ManyKeys(static_cast<int>(state.range(0)));
  const std::filesystem::path path = TempFile(text);
  os::SystemFileOps files;
  for (auto _ : state) {
    IniSettingsStore store(path, files);
    if (store.Get("Settings", "Zoom") != "True") {
      state.SkipWithError("the last key was not read");
    }
  }
  state.counters["bytes"] = static_cast<double>(text.size());
  std::filesystem::remove(path);
}
BENCHMARK(ReadSettings)
    ->Arg(10000)
    ->Arg(40000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brenko
