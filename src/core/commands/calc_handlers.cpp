#include "core/commands/calc_handlers.h"

#include "core/calc/formulas.h"
#include "core/calc/operator_keys.h"
#include "core/commands/app.h"

namespace brenko {

void Plus_Click(App& app) {
  // Areas and volumes are added by dragging them, not with this key.
  if (IsSquareOrCubic(app.calculator.Readout().caption)) {
    app.platform.Beep();
    return;
  }
  ChooseOperator(app.engine, app.calculator, "+", kOpAdd);
  FinishOperatorKey(app.calculator);
}

void Minus_Click(App& app) {
  if (IsSquareOrCubic(app.calculator.Readout().caption)) {
    app.platform.Beep();
    return;
  }
  ChooseMinus(app.engine, app.calculator);
  FinishOperatorKey(app.calculator);
}

void Multiply_Click(App& app) {
  ChooseOperator(app.engine, app.calculator, "x", kOpMultiply);
  FinishOperatorKey(app.calculator);
}

void Divide_Click(App& app) {
  ChooseDivide(app.engine, app.calculator);
  FinishOperatorKey(app.calculator);
}

void Equal_Click(App& app) {
  app.calculator.ActionLabel().caption.clear();
  app.engine.EntryText = app.calculator.Readout().caption;
  Calculate(CalcPartsOf(app));
}

void Square_Click(App& app) {
  if (IsSquareOrCubic(app.calculator.Readout().caption)) return;
  WorkOnEntry(CalcPartsOf(app), "x", kOpMultiply);
  app.calculator.focus = "Equal";
}

void SquareRoot_Click(App& app) {
  // Only an area is turned away here; the test meant to turn away a volume
  // never did, and a volume is rooted like any other value.
  if (app.calculator.Readout().caption.find("sq") != std::string::npos) {
    return;
  }
  WorkOnEntry(CalcPartsOf(app), "Sqt", kOpSquareRoot);
  app.calculator.focus = "Equal";
}

void Circumference_Click(App& app) {
  StartFormula(app.engine, app.calculator, kStageCircumference);
}

void CircArea_Click(App& app) {
  StartFormula(app.engine, app.calculator, kStageCircleArea);
}

void CylVolume_Click(App& app) {
  StartFormula(app.engine, app.calculator, kStageCylinderRadius);
}

void mnuDiagonal_Click(App& app) {
  StartFormula(app.engine, app.calculator, kStageDiagonalSide1);
}

void mnuPopUp1Circumference_Click(App& app) { Circumference_Click(app); }
void mnuPopUp1AreaofCircle_Click(App& app) { CircArea_Click(app); }
void mnuPopUp1VolumeofCylinder_Click(App& app) { CylVolume_Click(app); }
void mnuPopUp1Diagonal_Click(App& app) { mnuDiagonal_Click(app); }

}  // namespace brenko
