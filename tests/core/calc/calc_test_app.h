#pragma once
// A started calculator for the calculation, keypad and tape tests: the state
// the calculator's load leaves (readout "0.", the start-up operator code,
// tape window loaded) with a scripted platform.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "core/calc/calc_engine.h"
#include "core/commands/app.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/tape_handlers.h"
#include "core/tape/tape_store.h"
#include "core/tape/tape_window.h"
#include "fake/fake_platform.h"

namespace brenko::calc_test {

class CalcTestApp : public ::testing::Test {
 protected:
  CalcTestApp() {
    app.calculator.Readout().caption = "0.";
    app.engine.PendingOp = kOpStartUp;
    frmTape_Form_Load(app);
  }

  // Types each character on the calculator's keyboard.
  void Type(std::string_view keys) {
    for (char c : keys) Form_KeyPress(app, static_cast<unsigned char>(c));
  }

  std::string& Readout() { return app.calculator.Readout().caption; }
  std::string& ActionLabel() { return app.calculator.ActionLabel().caption; }
  std::string& Label1() { return app.calculator.Label1().caption; }
  CalcEngine& Engine() { return app.engine; }

  // Lines 1 .. count of a tape.
  std::vector<std::string> Tape(int k = 0) const {
    std::vector<std::string> lines;
    const int count = app.tapes.TapeLineCount()[static_cast<size_t>(k)];
    for (int n = 1; n <= count; ++n) lines.push_back(app.tapes.Cell(n, k));
    return lines;
  }

  // Sets up a pending operation as if it had been keyed in.
  void Pending(double value, std::string text, std::int16_t op) {
    app.engine.PendingValue = value;
    app.engine.PendingText = std::move(text);
    app.engine.PendingOp = op;
  }

  // Equal on the given readout text.
  void EqualOn(std::string text) {
    Readout() = std::move(text);
    Type("\r");
  }

  FakePlatform platform;
  MemorySettingsStore store;
  App app{platform, store};
};

using Lines = std::vector<std::string>;

}  // namespace brenko::calc_test
