#pragma once
// The one program the core's tests run: the whole App with the scripted
// platform, and settings in memory unless a test brings its own store.
// Nothing has run yet; Start() runs the calculator's load as the program
// does.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/settings_store.h"
#include "core/commands/app.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/startup.h"
#include "core/tape/tape_store.h"
#include "fake/fake_platform.h"

namespace brenko::testing_support {

class TestProgram {
 public:
  TestProgram() : TestProgram(nullptr) {}
  // A program whose settings are `settings` (a settings file, a store that
  // fails, one kept across runs).
  explicit TestProgram(SettingsStore& settings) : TestProgram(&settings) {}
  TestProgram(const TestProgram&) = delete;
  TestProgram& operator=(const TestProgram&) = delete;

  FakePlatform platform;
  MemorySettingsStore store;  // the settings, unless others were given
  App app;

  // Runs the start-up with what the store holds.
  App& Start() {
    Form_Load(app);
    return app;
  }

  // Types each character on the calculator's keyboard.
  void Type(std::string_view keys) {
    for (char c : keys) Form_KeyPress(app, static_cast<unsigned char>(c));
  }

  // The open memory with this number; the test fails loudly without one.
  MemoryForm& Memory(int number) {
    MemoryForm* form = app.memory.Find(number);
    if (form == nullptr) throw std::out_of_range("no memory window");
    return *form;
  }

  // Lines 1 ... count of a tape, and the same joined with "\n".
  std::vector<std::string> TapeLines(int tape = 0) const {
    return brenko::TapeLines(app.tapes, tape);
  }
  std::string Tape(int tape) const { return JoinedTapeLines(app.tapes, tape); }

  // A stored setting, or "<none>".
  std::string Setting(const std::string& section,
                      const std::string& key) const {
    return app.settings.GetSetting(section, key, "<none>");
  }

  // The answers the next dialogs get.
  void QueueText(const std::string& text) {
    Queue(QueuedAnswer::Kind::kText, text);
  }
  void Queue(QueuedAnswer::Kind kind, const std::string& text = "") {
    QueuedAnswer answer;
    answer.kind = kind;
    answer.text = text;
    platform.answers.push_back(answer);
  }

 private:
  explicit TestProgram(SettingsStore* settings)
      : app(platform, settings != nullptr ? *settings : store) {}
};

}  // namespace brenko::testing_support
