#pragma once
// A user who does, at random, everything the program lets a user do: typing,
// clicking keys, every menu command with any answer to the dialogs it opens,
// dragging between the readout, the memories and the converter, moving,
// resizing and closing windows, saving and opening memory files good and
// broken. One seed gives one exact run, so a failure can be replayed.

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

#include "core/base/window_model.h"
#include "core/commands/app.h"
#include "core/memory/drag_source.h"
#include "fake/fake_platform.h"

namespace brenko::testing_support {

class RandomUser {
 public:
  // Memory files are written and read only inside `folder`.
  RandomUser(App& app, FakePlatform& platform, std::uint32_t seed,
             std::filesystem::path folder);

  // Does one random thing. Exit and closing the calculator are left out: a
  // run ends them itself.
  void Step();
  // What the last step did, for failure messages.
  const std::string& Last() const { return last_; }

 private:
  // --- drawing -----------------------------------------------------------
  int Below(int n);  // 0 .. n-1
  bool Chance(int percent) { return Below(100) < percent; }
  float AnyCoordinate();
  float DropX(float midpoint);
  Rect AnyRect();
  std::string AnyText();
  std::string AnyPath();
  int AnyMemoryNumber();  // mostly an open memory, now and then a closed one
  DragSource AnySource();
  QueuedAnswer AnyAnswer();
  void QueueAnswers();
  void Queue(QueuedAnswer::Kind kind, const std::string& text = "");

  // --- actions -----------------------------------------------------------
  void TypeKey();
  void ClickKey();
  void MenuCommand();
  void Drag();
  void MemoryWindowEvent();
  void FrameEvent();
  void TapeEvent();
  void ConverterEvent();
  void CalculatorEvent();
  void MemoryFile();
  void WriteBrokenMemoryFile(const std::filesystem::path& path);

  App& app_;
  FakePlatform& platform_;
  std::mt19937 random_;
  std::filesystem::path folder_;
  std::string last_;
};

}  // namespace brenko::testing_support
