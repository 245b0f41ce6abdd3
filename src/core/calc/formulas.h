#pragma once
// The geometry formulas. A formula key only resets the engine, sets the
// formula stage and asks for the first measurement in the prompt line;
// Calculate does the rest when Equal is pressed.

#include <cstdint>

#include "core/base/calculator_form.h"
#include "core/calc/calc_engine.h"

namespace brenko {

// Starts the formula of `stage` (kStageCircumference, kStageCircleArea,
// kStageCylinderRadius or kStageDiagonalSide1). A formula already under way
// is carried on; the second key is ignored.
void StartFormula(CalcEngine& engine, CalculatorForm& calculator,
                  std::int16_t stage);

}  // namespace brenko
