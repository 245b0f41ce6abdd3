#pragma once
// The scenario runner's extension points. Each subsystem registers its
// commands and probes in a file of its own (scenario_*.cpp); the runner
// parses the file, runs the commands and compares the probes.

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/commands/app.h"
#include "fake/fake_platform.h"

namespace brenko::scenario {

struct Token {
  std::string text;
  bool quoted = false;
};

// A probe's value: text, number, Boolean or "none".
struct Value {
  enum class Kind { kText, kNumber, kBool, kNone };
  Kind kind = Kind::kNone;
  std::string text;
  double number = 0;
  bool boolean = false;

  static Value Text(std::string t) {
    return {Kind::kText, std::move(t), 0, false};
  }
  static Value Number(double n) { return {Kind::kNumber, "", n, false}; }
  static Value Bool(bool b) { return {Kind::kBool, "", 0, b}; }
  static Value None() { return {}; }
  std::string ToString() const;
};

// A line the runner cannot understand; reported with its line number.
struct ScenarioError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Context {
  std::unique_ptr<FakePlatform> platform;
  std::unique_ptr<MemorySettingsStore> store;
  std::unique_ptr<App> app;
  std::filesystem::path folder;  // the working folder of this file
  bool started = false;
  int beepsSeen = 0;      // beeps counted by earlier `beeps` probes
  std::string clipboard;  // what the last `copy` took

  // Runs the start-up once, before the first action.
  void EnsureStarted();
  // A file name of the scenario, resolved in the working folder.
  std::filesystem::path Resolve(const std::string& name) const;
};

using Args = std::vector<Token>;
using Command = std::function<void(Context&, const Args&)>;
using Probe = std::function<Value(Context&, const Args&)>;

struct Registry {
  // Set-up commands run before the start-up; actions start the app first.
  std::map<std::string, Command> setup;
  std::map<std::string, Command> actions;
  // Keyed by the first word, or by "word target" (e.g. "close memory",
  // "geometry Converter"); either way they receive every word after the
  // first.
  std::map<std::string, Probe> probes;
};

// Helpers for registrations.
int ToInt(const Token& token);
double ToNumber(const Token& token);
void Expect(bool condition, const std::string& message);  // throws
// Argument i, or the usage as the error when there is none.
const Token& Arg(const Args& args, std::size_t i, const char* usage);

// The drop position a WHERE argument (at `at`) names: a side of the
// target's midpoint ("left", "right"), the midpoint itself ("mid"), or a
// given X ("at X").
float DropX(const Args& args, std::size_t at, float midpoint);
// The open memory window numbered by `number`, or the error "no memory K".
MemoryForm& MemoryWindow(Context& ctx, const Token& number);
// "LEFT TOP WIDTH HEIGHT" in twips, whole numbers without a point.
Value Geometry(const Rect& r);

void RegisterCore(Registry& registry);     // start, show/expect helpers
void RegisterMeasure(Registry& registry);  // Parse*/Format* probes
void RegisterCalc(Registry& registry);     // keys, click, engine, tape ...
void RegisterMemory(Registry& registry);   // drag, memories, converter ...
void RegisterShell(Registry& registry);    // setting, screen, quit, colours ...
void RegisterClipboard(Registry& registry);  // copy, paste, memory commands

}  // namespace brenko::scenario
