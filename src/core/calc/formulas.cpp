#include "core/calc/formulas.h"

namespace brenko {

namespace {

// The prompt line's question for the first measurement of a formula.
const char* FirstPrompt(std::int16_t stage) {
  switch (stage) {
    case kStageCircumference:
      return " Enter diameter of circle";
    case kStageCircleArea:
      return " Enter radius of circle";
    case kStageCylinderRadius:
      return " Enter radius of cylinder";
    case kStageDiagonalSide1:
      return " Enter length of side 1";
    default:
      return "";
  }
}

}  // namespace

void StartFormula(CalcEngine& e, CalculatorForm& calculator,
                  std::int16_t stage) {
  if (e.FormulaStage != kStageNone) return;
  e.FormulaStage = stage;
  calculator.Label1().caption = FirstPrompt(stage);
  calculator.SetReadout("");
  e.PendingValue.reset();
  e.CurrentValue.reset();
  e.PendingOp = kOpNone;
}

}  // namespace brenko
