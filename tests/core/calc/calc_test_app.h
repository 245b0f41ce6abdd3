#pragma once
// The program as the calculation, keypad and tape tests start it: the state
// the calculator's load leaves for the engine (readout "0.", the start-up
// operator code, tape window loaded), without the rest of the start-up.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/calc/calc_engine.h"
#include "core/commands/calc_handlers.h"
#include "core/commands/tape_handlers.h"
#include "support/test_program.h"

namespace brenko::calc_test {

class CalcTestApp : public ::testing::Test,
                    public testing_support::TestProgram {
 protected:
  CalcTestApp() {
    app.calculator.Readout().caption = "0.";
    app.engine.PendingOp = kOpStartUp;
    frmTape_Form_Load(app);
  }

  std::string& Readout() { return app.calculator.Readout().caption; }
  std::string& ActionLabel() { return app.calculator.ActionLabel().caption; }
  std::string& Label1() { return app.calculator.Label1().caption; }
  CalcEngine& Engine() { return app.engine; }

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
};

using Lines = std::vector<std::string>;

}  // namespace brenko::calc_test
