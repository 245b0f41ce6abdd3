#pragma once
// A headless App with the scripted platform, for the memory tests.

#include <string>

#include "core/commands/app.h"
#include "fake/fake_platform.h"

namespace brenko::testing {

struct MemoryTestApp {
  FakePlatform platform;
  MemorySettingsStore store;
  App app{platform, store};

  MemoryForm& Memory(int number) { return *app.memory.Find(number); }
  // Lines 1 ... count of a tape joined with "\n".
  std::string Tape(int tape) const {
    std::string out;
    const int count = app.tapes.TapeLineCount()[static_cast<size_t>(tape)];
    for (int row = 1; row <= count; ++row) {
      if (row > 1) out += "\n";
      out += app.tapes.Cell(row, tape);
    }
    return out;
  }
  void QueueText(const std::string& text) {
    QueuedAnswer a;
    a.kind = QueuedAnswer::Kind::kText;
    a.text = text;
    platform.answers.push_back(a);
  }
  void Queue(QueuedAnswer::Kind kind, const std::string& text = "") {
    QueuedAnswer a;
    a.kind = kind;
    a.text = text;
    platform.answers.push_back(a);
  }
};

}  // namespace brenko::testing
